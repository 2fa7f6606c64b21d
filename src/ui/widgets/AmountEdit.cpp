#include "ui/widgets/AmountEdit.h"

#include <cmath>

#include <QKeyEvent>

#include "common/AmountText.h"
#include "ui/widgets/AmountValidator.h"

namespace sandogh {

AmountEdit::AmountEdit(QWidget* parent)
    : QLineEdit(parent), m_validator(new AmountValidator(this)) {
    setValidator(m_validator);
    setLayoutDirection(Qt::LeftToRight);
    setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    setInputMethodHints(Qt::ImhFormattedNumbersOnly);
}

double AmountEdit::value() const {
    return AmountText::parse(text().toStdString());
}

void AmountEdit::setValue(double value) {
    if (!std::isfinite(value)) {
        clear();
        return;
    }
    if (value < 0 && !negativeAllowed()) {
        value = 0;
    }
    setText(QString::fromStdString(AmountText::format(value, decimals())));
}

int AmountEdit::decimals() const {
    return m_validator->decimals();
}

void AmountEdit::setDecimals(int decimals) {
    m_validator->setDecimals(decimals);
}

bool AmountEdit::negativeAllowed() const {
    return m_validator->negativeAllowed();
}

void AmountEdit::setNegativeAllowed(bool allowed) {
    m_validator->setNegativeAllowed(allowed);
}

void AmountEdit::keyPressEvent(QKeyEvent* event) {
    // Removing a separator would only bring it back; remove the digit beyond it instead.
    if (!hasSelectedText() && event->modifiers() == Qt::NoModifier) {
        const int pos = cursorPosition();
        const QString shown = text();
        if (event->key() == Qt::Key_Backspace && pos > 1 && shown.at(pos - 1) == u',') {
            setCursorPosition(pos - 1);
        } else if (event->key() == Qt::Key_Delete && pos + 1 < shown.size() &&
                   shown.at(pos) == u',') {
            setCursorPosition(pos + 1);
        }
    }
    QLineEdit::keyPressEvent(event);
}

}  // namespace sandogh
