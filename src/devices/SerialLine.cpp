#include "SerialLine.h"

#include <QEventLoop>
#include <QSerialPort>
#include <QTimer>

namespace sandogh {

SerialLine::SerialLine(const SerialPortConfig& config, QObject* parent)
    : QObject(parent)
    , m_port(new QSerialPort(this))
    , m_commPort(config.commPort)
    , m_devicePath(config.devicePath)
    , m_inBufferSize(config.inBufferSize)
    , m_outBufferSize(config.outBufferSize) {
    if (!setSettings(config.settings)) {
        m_settingsText = m_settings.toText();
    }
    connect(m_port, &QSerialPort::readyRead, this, &SerialLine::onReadyRead);
    connect(m_port, &QSerialPort::errorOccurred, this, [this](QSerialPort::SerialPortError e) {
        // A device that went away (USB adapter pulled, far end hung up) leaves
        // the port closed, as a port that never opened.
        if (e == QSerialPort::ResourceError && m_port->isOpen()) {
            m_error = m_port->errorString();
            m_port->close();
        }
    });
}

SerialLine::~SerialLine() {
    close();
}

QString SerialLine::deviceForComPort(int commPort) {
    if (commPort < 1)
        return {};
#ifdef _WIN32
    return QStringLiteral("COM%1").arg(commPort);
#else
    return QStringLiteral("/dev/ttyS%1").arg(commPort - 1);
#endif
}

bool SerialLine::setCommPort(int commPort) {
    if (isOpen() && commPort != m_commPort) {
        m_error = QStringLiteral("Port already open");
        return false;
    }
    m_commPort = commPort;
    return true;
}

QString SerialLine::deviceName() const {
    return m_devicePath.isEmpty() ? deviceForComPort(m_commPort) : m_devicePath;
}

bool SerialLine::setSettings(const QString& text) {
    const auto parsed = SerialSettings::parse(text);
    if (!parsed) {
        m_error = QStringLiteral("Invalid property value");
        return false;
    }
    m_settings = *parsed;
    m_settingsText = text;
    if (isOpen())
        apply();
    return true;
}

void SerialLine::setRTSEnable(bool on) {
    m_rtsEnable = on;
    if (isOpen())
        apply();
}

void SerialLine::setDTREnable(bool on) {
    m_dtrEnable = on;
    if (isOpen())
        apply();
}

void SerialLine::setHandshaking(int mode) {
    m_handshaking = mode;
    if (isOpen())
        apply();
}

bool SerialLine::isOpen() const {
    return m_port->isOpen();
}

bool SerialLine::open() {
    if (isOpen())
        return true;
    const QString device = deviceName();
    if (device.isEmpty()) {
        m_error = QStringLiteral("No port number");
        return false;
    }
    m_port->setPortName(device);
    m_port->setReadBufferSize(m_inBufferSize > 0 ? m_inBufferSize : 0);
    if (!m_port->open(QIODevice::ReadWrite)) {
        m_error = m_port->errorString();
        m_port->clearError();
        return false;
    }
    apply();
    // A freshly opened port starts with an empty input buffer.
    m_port->clear(QSerialPort::Input);
    m_port->clearError();
    m_error.clear();
    return true;
}

void SerialLine::close() {
    if (m_port->isOpen())
        m_port->close();
}

void SerialLine::apply() {
    m_port->setBaudRate(m_settings.baudRate);
    m_port->setParity(m_settings.parity);
    m_port->setDataBits(m_settings.dataBits);
    m_port->setStopBits(m_settings.stopBits);
    switch (m_handshaking) {
        case 1:
            m_port->setFlowControl(QSerialPort::SoftwareControl);
            break;
        case 2:
        case 3:
            m_port->setFlowControl(QSerialPort::HardwareControl);
            break;
        default:
            m_port->setFlowControl(QSerialPort::NoFlowControl);
            break;
    }
    // Lines without modem signals (pseudo-terminals, some USB adapters) refuse
    // these; the port works without them, so the refusal is not an error.
    m_port->setDataTerminalReady(m_dtrEnable);
    if (m_port->flowControl() != QSerialPort::HardwareControl) {
        m_port->setRequestToSend(m_rtsEnable);
    }
    m_port->clearError();
}

bool SerialLine::write(const QByteArray& bytes) {
    if (!isOpen()) {
        m_error = QStringLiteral("Operation valid only when the port is open");
        return false;
    }
    if (m_port->write(bytes) != bytes.size()) {
        m_error = m_port->errorString();
        m_port->clearError();
        return false;
    }
    m_port->flush();
    return true;
}

QByteArray SerialLine::read() {
    if (!isOpen())
        return {};
    return m_inputLen > 0 ? m_port->read(m_inputLen) : m_port->readAll();
}

qint64 SerialLine::bytesAvailable() const {
    return isOpen() ? m_port->bytesAvailable() : 0;
}

qint64 SerialLine::bytesToWrite() const {
    return isOpen() ? m_port->bytesToWrite() : 0;
}

void SerialLine::drain(int maxMs) {
    if (!isOpen())
        return;
    m_port->flush();
    if (m_port->bytesToWrite() == 0)
        return;

    QEventLoop loop;
    QTimer limit;
    limit.setSingleShot(true);
    connect(&limit, &QTimer::timeout, &loop, &QEventLoop::quit);
    connect(m_port, &QSerialPort::bytesWritten, &loop, [this, &loop] {
        if (m_port->bytesToWrite() == 0)
            loop.quit();
    });
    // A close re-entered from an event handled meanwhile ends the wait.
    connect(m_port, &QSerialPort::aboutToClose, &loop, &QEventLoop::quit);
    limit.start(maxMs);
    loop.exec();
}

void SerialLine::onReadyRead() {
    if (m_rThreshold > 0 && m_port->bytesAvailable() >= m_rThreshold)
        emit received();
}

}  // namespace sandogh
