#pragma once

#include <QObject>
#include <QString>
#include <QTimer>
#include <functional>

#include "PecConfig.h"
#include "PosPaymentRecorder.h"
#include "SerialLine.h"
#include "settings/Clock.h"
#include "settings/MessageService.h"

namespace sandogh {

// The PEC card terminal on the sale screen's port MSCommPec. One request is
// outstanding at a time: the port is opened for it and closed once the answer
// has been read; a new request closes the port first, abandoning the old one.
// There is no time-out: a terminal that never answers leaves the request open
// until the cashier sends it again.
class PecTerminal : public QObject {
    Q_OBJECT

public:
    static constexpr const char* kSettings = "19200,N,8,1";

    // workingDate gives the program's working date (Jalali text) at the moment
    // an approval is recorded; the clock gives the time of day.
    PecTerminal(const PecConfig& config, PosPaymentRecorder& recorder, MessageService& messages,
                const Clock& clock, std::function<QString()> workingDate,
                QObject* parent = nullptr);

    SerialLine& MSCommPec() { return m_port; }

    // Configures and opens the port and writes one request for the amount text
    // (as on the screen, with ",") and the sale number. False when the port
    // could not be opened or written (nothing is shown then) or when the amount
    // does not fit the request (refused with a message, nothing sent).
    bool sendPaymentRequest(const QString& amountText, const QString& saleNo);

    // True between a request and the reading of its answer.
    bool waiting() const { return m_waiting; }

signals:
    // Everything read from the terminal for one answer, before it is looked at.
    void answerRead(const QByteArray& received);
    // The response code of an answer that had one, after it was acted upon.
    void answered(const QString& code);

private:
    void onReceived();
    void onSettled();
    void approve();

    PecConfig m_config;
    PosPaymentRecorder& m_recorder;
    MessageService& m_messages;
    const Clock& m_clock;
    std::function<QString()> m_workingDate;
    SerialLine m_port;
    QTimer m_settle;
    bool m_waiting = false;
    QString m_amountText;
    QString m_saleNo;
};

}  // namespace sandogh
