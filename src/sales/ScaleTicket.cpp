#include "sales/ScaleTicket.h"

namespace sandogh {

namespace {

QString twoDigits(int value) {
    return QStringLiteral("%1").arg(value, 2, 10, QLatin1Char('0'));
}

}  // namespace

bool ScaleTicket::isMizanTicket(const QString& text, const QString& prefix) {
    return text.size() == kMizanLength && !prefix.isEmpty() && text.at(0) == prefix.at(0);
}

QString ScaleTicket::mizanKey(const QString& text, const QDate& today) {
    const QString scale = text.mid(1, 1);
    const QString ticket = text.mid(2, 5);
    return QStringLiteral("00000") + scale + QStringLiteral("00000") + ticket +
           twoDigits(today.day()) + twoDigits(today.month()) + twoDigits(today.year() % 100) +
           QLatin1Char('0');
}

int ScaleTicket::onlineSalesReceipt(const QString& text) {
    return text.mid(11, 4).trimmed().toInt();
}

int ScaleTicket::onlineSalesScale(const QString& text) {
    return text.mid(15, 3).trimmed().toInt();
}

QString ScaleTicket::onlineSalesDate(const QString& todayJalali) {
    return todayJalali.right(8);
}

}  // namespace sandogh
