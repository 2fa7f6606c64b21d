#pragma once

#include <QByteArray>
#include <QObject>
#include <QString>

#include "SerialPortConfig.h"
#include "SerialSettings.h"

class QSerialPort;

namespace sandogh {

// One serial port object of the cash desk, with the properties the rest of the
// program reasons in: CommPort, Settings, PortOpen, InputLen, RThreshold,
// RTSEnable, DTREnable, Handshaking, the buffer sizes, Output and Input.
// Failures never throw: open() and write() answer false and errorString() says why.
class SerialLine : public QObject {
    Q_OBJECT

public:
    explicit SerialLine(const SerialPortConfig& config, QObject* parent = nullptr);
    ~SerialLine() override;

    // "COMn" on Windows, "/dev/ttyS<n-1>" elsewhere; empty for numbers below 1.
    static QString deviceForComPort(int commPort);

    int commPort() const { return m_commPort; }
    // Refused (false) while the port is open on another number.
    bool setCommPort(int commPort);

    // A path that replaces the COM number mapping (USB adapters, pseudo-terminals).
    const QString& devicePath() const { return m_devicePath; }
    void setDevicePath(const QString& path) { m_devicePath = path; }
    // The device that open() uses: the device path if set, else the COM mapping.
    QString deviceName() const;

    const QString& settings() const { return m_settingsText; }
    // False for text that is not a valid settings text; the old value stays.
    // On an open port the new settings apply at once.
    bool setSettings(const QString& text);

    int inputLen() const { return m_inputLen; }
    void setInputLen(int count) { m_inputLen = count < 0 ? 0 : count; }

    int rThreshold() const { return m_rThreshold; }
    void setRThreshold(int count) { m_rThreshold = count < 0 ? 0 : count; }

    bool rtsEnable() const { return m_rtsEnable; }
    void setRTSEnable(bool on);

    bool dtrEnable() const { return m_dtrEnable; }
    void setDTREnable(bool on);

    // 0 none, 1 XON/XOFF, 2 RTS/CTS, 3 both (RTS/CTS is used).
    int handshaking() const { return m_handshaking; }
    void setHandshaking(int mode);

    int inBufferSize() const { return m_inBufferSize; }
    void setInBufferSize(int size) { m_inBufferSize = size; }
    int outBufferSize() const { return m_outBufferSize; }
    void setOutBufferSize(int size) { m_outBufferSize = size; }

    bool isOpen() const;
    // PortOpen = True. Opening an open port does nothing and succeeds.
    bool open();
    // PortOpen = False; harmless on a closed port.
    void close();

    // Output: hands the bytes to the port and pushes out what the line takes
    // at once; the rest leaves while the event loop runs. False when closed.
    bool write(const QByteArray& bytes);
    // Input: InputLen bytes, or everything waiting when InputLen is 0.
    QByteArray read();
    qint64 bytesAvailable() const;
    qint64 bytesToWrite() const;

    // Waits until queued output has left or maxMs have passed, keeping the
    // event loop running meanwhile. Returns at once when nothing is queued.
    void drain(int maxMs);

    QString errorString() const { return m_error; }

signals:
    // The receive event: raised when at least RThreshold bytes are waiting.
    void received();

private:
    void apply();
    void onReadyRead();

    QSerialPort* m_port;
    int m_commPort;
    QString m_devicePath;
    QString m_settingsText;
    SerialSettings m_settings;
    int m_inputLen = 0;
    int m_rThreshold = 0;
    bool m_rtsEnable = false;
    bool m_dtrEnable = true;  // the serial control's own default
    int m_handshaking = 0;
    int m_inBufferSize;
    int m_outBufferSize;
    QString m_error;
};

}  // namespace sandogh
