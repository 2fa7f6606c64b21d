#pragma once

#include <optional>

#include <QString>
#include <QStringView>
#include <QValidator>

namespace sandogh {

// Keeps an amount box in the shop's "##,###" form while it is typed into: Persian and
// Arabic-Indic digits become ASCII digits, the thousands separators are put back where they
// belong, and anything that is not part of a number is refused.
class AmountValidator : public QValidator {
    Q_OBJECT

public:
    // Most digits before the decimal point; a double holds them all exactly.
    static constexpr int kMaxWholeDigits = 15;

    explicit AmountValidator(QObject* parent = nullptr);

    // Decimals allowed after a point; 0 (the default) refuses a point altogether.
    int decimals() const { return m_decimals; }
    void setDecimals(int decimals);
    bool negativeAllowed() const { return m_negativeAllowed; }
    void setNegativeAllowed(bool allowed) { m_negativeAllowed = allowed; }

    State validate(QString& input, int& pos) const override;

    struct Formatted {
        QString text;
        int cursor = 0;
    };
    // The text in "##,###" form with the cursor behind the same digit it stood behind,
    // or nothing when the text is not a number of that form. Separators and blanks may
    // stand anywhere in the input; leading zeros of the whole part are dropped.
    static std::optional<Formatted> reformat(QStringView input, int cursor, int decimals,
                                             bool negativeAllowed);

private:
    int m_decimals = 0;
    bool m_negativeAllowed = false;
};

}  // namespace sandogh
