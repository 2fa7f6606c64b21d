#pragma once

#include <QSerialPort>
#include <QString>
#include <optional>

namespace sandogh {

// The "Settings" text of a serial port: baud rate, parity letter, data bits
// and stop bits separated by commas, as in "9600,n,8,1" or "19200,N,8,1".
struct SerialSettings {
    qint32 baudRate = 9600;
    QSerialPort::Parity parity = QSerialPort::NoParity;
    QSerialPort::DataBits dataBits = QSerialPort::Data8;
    QSerialPort::StopBits stopBits = QSerialPort::OneStop;

    // Reads the text; parity letters N, E, O, M, S in either case, data bits
    // 5 to 8, stop bits 1, 1.5 or 2. Anything else is not a valid setting.
    static std::optional<SerialSettings> parse(const QString& text);

    // Back to the text form with a lower-case parity letter ("9600,n,8,1").
    QString toText() const;

    bool operator==(const SerialSettings&) const = default;
};

}  // namespace sandogh
