#pragma once

#include <QList>

#include "data/MessageService.h"

namespace sandogh::test {

// Remembers every message instead of showing it.
class RecordingMessageService final : public MessageService {
public:
    struct Shown {
        QString text;
        MessageStyle style;
        QString title;
    };

    bool show(const QString& text, MessageStyle style, const QString& title) override {
        shown.append({text, style, title});
        return true;
    }
    bool prompt(const QString&, QString&, bool) override { return false; }

    QList<Shown> shown;
};

}  // namespace sandogh::test
