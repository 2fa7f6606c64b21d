#include "ui/catalog/ResultMessage.h"

#include "data/repositories/CheckResult.h"
#include "settings/MessageService.h"

namespace sandogh {

void ResultMessage::show(MessageService& messages, const CheckResult& result) {
    if (result.message.isEmpty()) {
        return;
    }
    messages.show(result.message, result.ok ? MessageStyle::Information : MessageStyle::Critical,
                  result.title);
}

}  // namespace sandogh
