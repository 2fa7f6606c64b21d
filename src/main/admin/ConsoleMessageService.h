#pragma once

#include <QTextStream>

#include "settings/MessageService.h"

namespace sandogh {

// The messages of sandogh-admin: each shown as one line "title text" on the error stream;
// a prompt (a price, a quantity, a card password) is printed and answered with nothing,
// that is, cancelled.
class ConsoleMessageService final : public MessageService {
public:
    explicit ConsoleMessageService(QTextStream& err) : m_err(err) {}

    bool show(const QString& text, MessageStyle style, const QString& title) override;
    bool prompt(const QString& text, QString& answer, bool password) override;

private:
    QTextStream& m_err;
};

}  // namespace sandogh
