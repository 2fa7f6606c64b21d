#pragma once

#include <QLineEdit>

namespace sandogh {

class AmountValidator;

// A box for amounts that shows "##,###" thousands separators while the amount is typed.
// Persian digits are taken as digits; letters and other signs are refused. The cursor
// stays behind the digit it stood behind, and Backspace or Delete next to a separator
// removes the digit beyond it. Amounts read left to right, aligned to the right.
class AmountEdit : public QLineEdit {
    Q_OBJECT

public:
    explicit AmountEdit(QWidget* parent = nullptr);

    // The amount shown: separators removed and the numeric value taken; 0 when empty.
    double value() const;
    // Shows an amount in "##,###" form (with up to decimals() decimals). A negative amount
    // shows as 0 unless negatives are allowed, so that the box never holds text it refuses.
    void setValue(double value);

    // Decimals that may be typed after a point; 0 for whole rials (the default).
    int decimals() const;
    void setDecimals(int decimals);
    bool negativeAllowed() const;
    void setNegativeAllowed(bool allowed);

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    AmountValidator* m_validator;
};

}  // namespace sandogh
