#pragma once

#include <QObject>
#include <QPointer>

#include "settings/MessageService.h"

namespace sandogh {

// The message service of a worker thread: what it shows is handed to the screen's own
// service on the thread of receiver (message boxes live there) and does not wait for it.
// Questions are not asked from a worker: show() answers true, prompt() cancels.
class QueuedMessages final : public MessageService {
public:
    QueuedMessages(MessageService& target, QObject* receiver);

    bool show(const QString& text, MessageStyle style, const QString& title) override;
    bool prompt(const QString& text, QString& answer, bool password) override;

private:
    MessageService& m_target;
    QPointer<QObject> m_receiver;
};

}  // namespace sandogh
