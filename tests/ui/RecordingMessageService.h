#pragma once

#include <QList>
#include <QString>

#include "data/MessageService.h"

namespace sandogh::test {

// A namespace of its own: the shared test support library has a RecordingMessageService
// of a different shape under the same name, and both are linked into this executable.
inline namespace widgets {

// Remembers every message instead of showing it; questions get the answer set in advance.
class RecordingMessageService final : public MessageService {
public:
    struct Shown {
        QString text;
        MessageStyle style;
        QString title;
    };

    bool show(const QString& text, MessageStyle style, const QString& title) override {
        shown.append({text, style, title});
        return answer;
    }
    bool prompt(const QString&, QString&, bool) override { return false; }

    QList<Shown> shown;
    bool answer = true;
};

}  // namespace widgets
}  // namespace sandogh::test
