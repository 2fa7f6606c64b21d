#include "PecTerminal.h"

#include "PecRequest.h"
#include "PecResponse.h"
#include "common/AmountText.h"

namespace sandogh {

PecTerminal::PecTerminal(const PecConfig& config, PosPaymentRecorder& recorder,
                         MessageService& messages, const Clock& clock,
                         std::function<QString()> workingDate, QObject* parent)
    : QObject(parent)
    , m_config(config)
    , m_recorder(recorder)
    , m_messages(messages)
    , m_clock(clock)
    , m_workingDate(std::move(workingDate))
    , m_port(SerialPortConfig::MSCommPec(), this) {
    m_settle.setSingleShot(true);
    connect(&m_settle, &QTimer::timeout, this, &PecTerminal::onSettled);
    connect(&m_port, &SerialLine::received, this, &PecTerminal::onReceived);
}

bool PecTerminal::sendPaymentRequest(const QString& amountText, const QString& saleNo) {
    const QByteArray request = PecRequest::build(amountText, saleNo);
    if (request.isEmpty()) {
        m_messages.show(QString::fromStdString(AmountText::refusal(amountText.toStdString())),
                        MessageStyle::Critical);
        return false;
    }
    // A request still waiting is abandoned with its port.
    m_settle.stop();
    m_waiting = false;
    m_port.close();

    m_port.setDevicePath(m_config.devicePath);
    m_port.setCommPort(m_config.commPort);
    m_port.setSettings(QString::fromLatin1(kSettings));
    m_port.setInBufferSize(1024);
    m_port.setOutBufferSize(512);
    m_port.setRThreshold(1);
    m_port.setInputLen(0);
    m_port.setRTSEnable(true);
    m_port.setDTREnable(true);
    m_port.setHandshaking(0);
    if (!m_port.isOpen() && !m_port.open())
        return false;

    m_amountText = amountText;
    m_saleNo = saleNo;
    if (!m_port.write(request))
        return false;
    m_waiting = true;
    return true;
}

void PecTerminal::onReceived() {
    if (!m_waiting)
        return;
    // The answer comes in pieces; it is read once the line has been quiet for a while.
    m_settle.start(m_config.settleMs);
}

void PecTerminal::onSettled() {
    if (!m_waiting)
        return;
    const QByteArray received = m_port.read();
    m_port.close();
    m_waiting = false;
    emit answerRead(received);

    const auto code = PecResponse::code(received);
    if (!code)
        return;  // not an answer to a request
    if (*code == QLatin1String(PecResponse::kApproved)) {
        approve();
    } else {
        const QString message = PecResponse::message(*code);
        // Right-to-left information box under the program's own title.
        if (!message.isEmpty())
            m_messages.show(message, MessageStyle::Information, QString());
    }
    emit answered(*code);
}

void PecTerminal::approve() {
    PosPayment payment;
    payment.docNo = m_saleNo.trimmed().toLongLong();
    const QString date = m_workingDate ? m_workingDate() : QString();
    payment.dateTime =
        date + QStringLiteral(" - ") + m_clock.now().toString(QStringLiteral("HH:mm"));
    payment.paymentAmount = AmountText::parse(m_amountText.toStdString());
    // A broken connection has been reported by the data layer; nothing more to do.
    m_recorder.record(payment);
}

}  // namespace sandogh
