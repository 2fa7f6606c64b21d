#pragma once

#include <QString>
#include <QStringView>

namespace sandogh {

// The shared reading rules of setting texts. A setting is kept as text; a reader turns it
// into a flag, a number or a text. The numeric value follows the rule the settings were
// always read with: blanks at the start are skipped, then a sign, digits and at most one
// decimal point are read, and whatever follows is ignored; text with no number reads as 0.
// Only ASCII digits count, as they always have.
class SettingReaders {
public:
    // "2abc" → 2, " 3" → 3, "-1" → -1, "1.5.2" → 1.5, "abc" → 0, "" → 0.
    static double numericValue(QStringView text);

    // On when the numeric value is greater than 0: "2" on; "0", "", "abc", "-1" off.
    static bool flagOn(QStringView text);

    // A numeric value as a whole number: halves go to the even neighbour (1.5 → 2,
    // 2.5 → 2), as the old ports and counts were converted; out-of-range values are
    // clamped to the int range.
    static int toInteger(double value);

    // The text that reads back as exactly this number: whole numbers without a point or
    // exponent ("1000000", "-3"), others in plain decimals ("0.25").
    static QString numberText(double value);

    // The text as kept, or defaultText when the kept text is empty or only blanks.
    static QString orDefault(const QString& kept, const QString& defaultText);
};

}  // namespace sandogh
