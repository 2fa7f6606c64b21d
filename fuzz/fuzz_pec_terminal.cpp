// The card terminal: any answer on the line, and requests for any amount text. A request
// is built only for an amount that fits, and its amount is never negative.

#include "FuzzInput.h"
#include "devices/PecRequest.h"
#include "devices/PecResponse.h"

using namespace sandogh;

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    const QByteArray received = fuzz::bytes(data, size);
    if (const auto code = PecResponse::code(received)) {
        (void)PecResponse::message(*code);
    }
    const QString text = fuzz::text(data, size);
    const qsizetype split = text.size() / 2;
    const QByteArray request = PecRequest::build(text.left(split), text.mid(split));
    const QString digits = PecRequest::amountDigits(text.left(split));
    if (request.isEmpty() != digits.isEmpty() || digits.startsWith(QLatin1Char('-'))) {
        fuzz::broken();
    }
    return 0;
}
