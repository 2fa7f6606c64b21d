#include "data/repositories/DigitText.h"

namespace sandogh {

namespace {

bool isDigit(QChar c) {
    return c >= QLatin1Char('0') && c <= QLatin1Char('9');
}

}  // namespace

QString DigitText::leadingNumber(const QString& text) {
    qsizetype i = 0;
    while (i < text.size() && text.at(i).isSpace()) {
        ++i;
    }
    while (i < text.size() && text.at(i) == QLatin1Char('0')) {
        ++i;
    }
    const qsizetype first = i;
    while (i < text.size() && isDigit(text.at(i))) {
        ++i;
    }
    return i > first ? text.mid(first, i - first) : QStringLiteral("0");
}

QString DigitText::plusOne(const QString& digits) {
    QString number = leadingNumber(digits);
    for (qsizetype i = number.size() - 1; i >= 0; --i) {
        if (number.at(i) != QLatin1Char('9')) {
            number[i] = QChar(number.at(i).unicode() + 1);
            return number;
        }
        number[i] = QLatin1Char('0');
    }
    return QLatin1Char('1') + number;
}

}  // namespace sandogh
