#include "CustomerDisplay.h"

#include "DisplayFrames.h"

namespace sandogh {

namespace {

constexpr int kPriceDisplayKind = 3;
constexpr int kSingleLineKind = 1;
constexpr int kResetDrainMs = 200;

}  // namespace

CustomerDisplay::CustomerDisplay(const DisplayConfig& config, GeneralPorts& generalPorts,
                                 QObject* parent)
    : QObject(parent)
    , m_config(config)
    , m_general(generalPorts)
    , m_port(SerialPortConfig::port(), this) {
    m_port.setDevicePath(config.devicePath);
    m_pause.setSingleShot(true);
    connect(&m_pause, &QTimer::timeout, this, &CustomerDisplay::writeSingleLineAmount);
}

int CustomerDisplay::singleLinePauseMs() const {
    return m_config.delay > 0 ? m_config.delay * kMsPerDelayUnit : 0;
}

void CustomerDisplay::saleScreenLoaded() {
    if (m_config.enabled && m_config.kind == kPriceDisplayKind)
        openPort();
}

void CustomerDisplay::openPort() {
    if (!m_port.setCommPort(m_config.port))
        return;
    m_port.setSettings(QString::fromLatin1(kPriceDisplaySettings));
    m_port.setInputLen(0);
    m_port.setRTSEnable(true);
    if (!m_port.isOpen())
        m_port.open();
}

void CustomerDisplay::ShowOnCustomerDisplay(const QString& amountText) {
    if (!m_config.enabled)
        return;

    if (m_config.kind == kPriceDisplayKind) {
        if (m_port.isOpen())
            m_port.write(DisplayFrames::priceDisplay(amountText));
        return;
    }
    if (!m_general.portsActive())
        return;
    SerialLine& line = m_general.MSComm1();

    if (m_config.kind == kSingleLineKind) {
        // Written whether or not the port is open; a closed port drops them.
        line.write(DisplayFrames::lineDisplayClear());
        m_pendingAmount = amountText;
        // The display needs a moment after clearing; the screen keeps working
        // meanwhile, and a newer amount replaces one still waiting.
        const int pause = singleLinePauseMs();
        if (pause > 0) {
            m_pause.start(pause);
        } else {
            m_pause.stop();
            writeSingleLineAmount();
        }
        return;
    }

    if (line.isOpen())
        line.write(DisplayFrames::twoLineDisplay(amountText, m_config.greeting));
}

void CustomerDisplay::writeSingleLineAmount() {
    m_general.MSComm1().write(DisplayFrames::lineDisplayAmount(m_pendingAmount));
}

void CustomerDisplay::leaveSaleScreen() {
    if (!m_port.isOpen())
        return;
    m_port.write(DisplayFrames::priceDisplayReset());
    m_port.drain(kResetDrainMs);
    m_port.close();
}

}  // namespace sandogh
