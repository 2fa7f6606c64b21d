#include "ConsoleMessageService.h"

namespace sandogh {

bool ConsoleMessageService::show(const QString& text, MessageStyle, const QString& title) {
    m_err << title << ' ' << text.trimmed() << '\n';
    m_err.flush();
    return true;
}

bool ConsoleMessageService::prompt(const QString& text, QString&, bool) {
    m_err << text.trimmed() << ": " << QStringLiteral("(no answer)") << '\n';
    m_err.flush();
    return false;
}

}  // namespace sandogh
