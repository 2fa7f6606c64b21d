#include "DisplayFrames.h"

#include <cmath>

#include "common/AmountText.h"
#include "devices/Cp1256.h"

namespace sandogh {

QString DisplayFrames::centre(const QString& line) {
    if (line.size() > kColumns)
        return line;
    QString text = line;
    if (text.size() % 2 != 0)
        text += QLatin1Char(' ');
    const QString pad((kColumns - text.size()) / 2, QLatin1Char(' '));
    return pad + text + pad;
}

QString DisplayFrames::plainNumber(const QString& amountText) {
    const double value = AmountText::parse(amountText.toStdString());
    if (value == std::trunc(value) && std::fabs(value) < 1e18) {
        return QString::number(static_cast<qint64>(value));
    }
    return QString::number(value, 'g', 15);
}

QByteArray DisplayFrames::priceDisplay(const QString& amountText) {
    return QByteArray("\x1b\x51\x41") + plainNumber(amountText).toLatin1() + '\r';
}

QByteArray DisplayFrames::priceDisplayReset() {
    return QByteArray("\x1b\x73\x31\x0d");
}

QByteArray DisplayFrames::lineDisplayClear() {
    return QByteArray("\x0c");
}

QByteArray DisplayFrames::lineDisplayAmount(const QString& amountText) {
    QString text = amountText;
    text.remove(QLatin1Char(','));
    return Cp1256::encode(text);
}

QByteArray DisplayFrames::twoLineDisplay(const QString& amountText, const QString& greeting) {
    const QString upper = centre(QStringLiteral("Price:") + amountText.trimmed());
    const QString lower = centre(greeting.trimmed());
    return QByteArray("\r\n\r\n") + Cp1256::encode(upper + lower);
}

}  // namespace sandogh
