#include "GeneralPorts.h"

namespace sandogh {

namespace {

SerialPortConfig withDevice(SerialPortConfig config, const QString& device) {
    config.devicePath = device;
    return config;
}

// Pushes a printer or display on the line past its last line before release.
const QByteArray kClosingFeed("\r\n\r\n\r\n");

}  // namespace

GeneralPorts::GeneralPorts(const GeneralPortsConfig& config, QObject* parent)
    : QObject(parent)
    , m_config(config)
    , m_comm1(withDevice(SerialPortConfig::MSComm1(), config.port1Device), this)
    , m_comm2(withDevice(SerialPortConfig::MSComm2(), config.port2Device), this) {}

GeneralPorts::StartupBranch GeneralPorts::load() {
    const StartupBranch branch = configureAtStartup();
    OpenPort();
    return branch;
}

GeneralPorts::StartupBranch GeneralPorts::configureAtStartup() {
    if (!m_config.portsActive)
        return StartupBranch::None;
    if (m_config.callerIdActive) {
        m_comm2.setSettings(m_config.callerIdModel.trimmed() == QLatin1String("TK104U")
                                ? QStringLiteral("115200,n,8,1")
                                : QStringLiteral("57600,n,8,1"));
        return StartupBranch::CallerId;
    }
    if (m_config.barcodeReaderModel.trimmed() == QLatin1String("1")) {
        m_comm1.setRThreshold(3);
        return StartupBranch::BarcodeReader;
    }
    if (m_config.displayLine == 1) {
        m_comm1.setSettings(QStringLiteral("2400,n,8,1"));
        return StartupBranch::LineDisplay;
    }
    return StartupBranch::None;
}

void GeneralPorts::OpenPort() {
    if (!m_config.portsActive)
        return;
    // As before, the first failure ends the whole operation.
    if (m_config.portNo != 0) {
        if (!m_comm1.setCommPort(m_config.portNo))
            return;
        if (!m_comm1.isOpen() && !m_comm1.open())
            return;
    }
    if (m_config.portNo2 != 0) {
        if (!m_comm2.setCommPort(m_config.portNo2))
            return;
        if (!m_comm2.isOpen())
            m_comm2.open();
    }
}

void GeneralPorts::ClosePort() {
    if (!m_config.portsActive)
        return;
    // Output still queued leaves first; the event loop keeps running meanwhile.
    m_comm1.drain(kClosingDrainMs);
    m_comm2.drain(kClosingDrainMs);
    closeOne(m_comm1);
    closeOne(m_comm2);
}

void GeneralPorts::closeOne(SerialLine& line) {
    // The open test makes a close re-entered from an event during the drain harmless.
    if (!line.isOpen())
        return;
    line.write(kClosingFeed);
    line.drain(kClosingDrainMs);
    line.close();
}

QString GeneralPorts::statusText() const {
    if (!m_config.portsActive || m_comm2.commPort() < 1)
        return {};
    return QStringLiteral(" COM:%1").arg(m_comm2.commPort());
}

}  // namespace sandogh
