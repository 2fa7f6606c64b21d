#pragma once

#include <QByteArray>
#include <QString>

namespace sandogh {

// The bytes of the three customer display kinds. Text goes out in code page 1256.
class DisplayFrames {
public:
    static constexpr int kColumns = 20;

    // Centres a line in 20 columns: an odd length first gets one blank
    // appended, then (20 - length) / 2 blanks go on each side. A line longer
    // than 20 characters is left as it is.
    static QString centre(const QString& line);

    // The numeric value of the amount text ("," removed) as plain digits.
    static QString plainNumber(const QString& amountText);

    // Eight-digit price display: ESC "Q" "A", the digits, CR.
    static QByteArray priceDisplay(const QString& amountText);
    // Eight-digit price display when the sale screen is left: ESC "s" "1" CR.
    static QByteArray priceDisplayReset();

    // Single-line display: form feed, then (after a pause) the amount without ",".
    static QByteArray lineDisplayClear();
    static QByteArray lineDisplayAmount(const QString& amountText);

    // Two-line display: CR LF CR LF, "Price:" and the amount, the greeting,
    // each line centred, all in one write.
    static QByteArray twoLineDisplay(const QString& amountText, const QString& greeting);
};

}  // namespace sandogh
