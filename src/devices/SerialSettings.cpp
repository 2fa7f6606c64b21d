#include "SerialSettings.h"

#include <QStringList>

namespace sandogh {

namespace {

std::optional<QSerialPort::Parity> parityOf(const QString& letter) {
    const QString p = letter.trimmed().toLower();
    if (p == QLatin1String("n"))
        return QSerialPort::NoParity;
    if (p == QLatin1String("e"))
        return QSerialPort::EvenParity;
    if (p == QLatin1String("o"))
        return QSerialPort::OddParity;
    if (p == QLatin1String("m"))
        return QSerialPort::MarkParity;
    if (p == QLatin1String("s"))
        return QSerialPort::SpaceParity;
    return std::nullopt;
}

QChar letterOf(QSerialPort::Parity parity) {
    switch (parity) {
        case QSerialPort::EvenParity:
            return QLatin1Char('e');
        case QSerialPort::OddParity:
            return QLatin1Char('o');
        case QSerialPort::MarkParity:
            return QLatin1Char('m');
        case QSerialPort::SpaceParity:
            return QLatin1Char('s');
        default:
            return QLatin1Char('n');
    }
}

}  // namespace

std::optional<SerialSettings> SerialSettings::parse(const QString& text) {
    const QStringList parts = text.split(QLatin1Char(','));
    if (parts.size() != 4)
        return std::nullopt;

    SerialSettings s;
    bool ok = false;
    s.baudRate = parts[0].trimmed().toInt(&ok);
    if (!ok || s.baudRate <= 0)
        return std::nullopt;

    const auto parity = parityOf(parts[1]);
    if (!parity)
        return std::nullopt;
    s.parity = *parity;

    const int bits = parts[2].trimmed().toInt(&ok);
    if (!ok || bits < 5 || bits > 8)
        return std::nullopt;
    s.dataBits = static_cast<QSerialPort::DataBits>(bits);

    const QString stop = parts[3].trimmed();
    if (stop == QLatin1String("1")) {
        s.stopBits = QSerialPort::OneStop;
    } else if (stop == QLatin1String("1.5")) {
        s.stopBits = QSerialPort::OneAndHalfStop;
    } else if (stop == QLatin1String("2")) {
        s.stopBits = QSerialPort::TwoStop;
    } else {
        return std::nullopt;
    }
    return s;
}

QString SerialSettings::toText() const {
    QString stop = QStringLiteral("1");
    if (stopBits == QSerialPort::OneAndHalfStop)
        stop = QStringLiteral("1.5");
    if (stopBits == QSerialPort::TwoStop)
        stop = QStringLiteral("2");
    return QStringLiteral("%1,%2,%3,%4")
        .arg(baudRate)
        .arg(letterOf(parity))
        .arg(static_cast<int>(dataBits))
        .arg(stop);
}

}  // namespace sandogh
