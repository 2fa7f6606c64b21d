#include "ui/reports/QueuedMessages.h"

#include <QMetaObject>

namespace sandogh {

QueuedMessages::QueuedMessages(MessageService& target, QObject* receiver)
    : m_target(target), m_receiver(receiver) {}

bool QueuedMessages::show(const QString& text, MessageStyle style, const QString& title) {
    QObject* receiver = m_receiver.data();
    if (receiver == nullptr) {
        return true;
    }
    MessageService* target = &m_target;
    QMetaObject::invokeMethod(
        receiver, [target, text, style, title] { target->show(text, style, title); },
        Qt::QueuedConnection);
    return true;
}

bool QueuedMessages::prompt(const QString&, QString&, bool) {
    return false;
}

}  // namespace sandogh
