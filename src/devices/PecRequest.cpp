#include "PecRequest.h"

#include <cmath>

#include "common/AmountText.h"
#include "devices/Cp1256.h"

namespace sandogh {

namespace {

// The ISO 4217 number of the Iranian rial.
const QString kCurrency = QStringLiteral("364");

QString zeroPadded(qsizetype value, int width) {
    return QStringLiteral("%1").arg(value, width, 10, QLatin1Char('0'));
}

}  // namespace

QString PecRequest::invoicePrefix() {
    return QString::fromUtf16(u"فاکتور فروش: ");
}

QString PecRequest::field(const QString& tag, const QString& value) {
    return tag + zeroPadded(value.size(), 3) + value;
}

bool PecRequest::amountFits(const QString& amountText) {
    const double value = AmountText::parse(amountText.toStdString());
    return AmountText::isUsable(value) && value >= 0;
}

QString PecRequest::amountDigits(const QString& amountText) {
    if (!amountFits(amountText)) {
        return {};
    }
    const double value = std::trunc(AmountText::parse(amountText.toStdString()));
    return QString::number(static_cast<qint64>(value));
}

QString PecRequest::body(const QString& amountText, const QString& saleNo) {
    const QString none;
    return field(QStringLiteral("PR"), none) +
           field(QStringLiteral("AM"), amountDigits(amountText)) +
           field(QStringLiteral("CU"), kCurrency) +
           field(QStringLiteral("R1"), invoicePrefix() + saleNo) +
           field(QStringLiteral("R2"), none) + field(QStringLiteral("T1"), none) +
           field(QStringLiteral("T2"), none) + field(QStringLiteral("SV"), none) +
           field(QStringLiteral("SG"), none) + field(QStringLiteral("AD"), none) +
           field(QStringLiteral("PD"), QStringLiteral("1"));
}

QString PecRequest::frame(const QString& body) {
    const QString rest = QStringLiteral("RQ") + zeroPadded(body.size(), 3) + body;
    return zeroPadded(rest.size(), 4) + rest;
}

QByteArray PecRequest::build(const QString& amountText, const QString& saleNo) {
    if (!amountFits(amountText)) {
        return {};
    }
    return Cp1256::encode(frame(body(amountText, saleNo)));
}

}  // namespace sandogh
