#include "ui/widgets/JalaliDateEdit.h"

#include <algorithm>
#include <optional>
#include <string>

#include <QKeyEvent>
#include <QStyle>

#include "common/JalaliCalendar.h"

namespace sandogh {

namespace {

std::optional<QString> canonical(const QString& typed) {
    const std::optional<std::string> date = JalaliCalendar::normalizeDateText(typed.toStdString());
    if (!date) {
        return std::nullopt;
    }
    return QString::fromStdString(*date);
}

// The ASCII digit of a Persian or Arabic-Indic digit; a null char otherwise.
QChar asciiDigitOf(QChar c) {
    const char16_t u = c.unicode();
    if (u >= 0x06F0 && u <= 0x06F9) {
        return QChar(u'0' + (u - 0x06F0));
    }
    if (u >= 0x0660 && u <= 0x0669) {
        return QChar(u'0' + (u - 0x0660));
    }
    return {};
}

}  // namespace

JalaliDateEdit::JalaliDateEdit(QWidget* parent) : QLineEdit(parent) {
    setInputMask(QStringLiteral("0000/00/00;_"));
    setLayoutDirection(Qt::LeftToRight);
    setAlignment(Qt::AlignCenter);
    setProperty("invalid", false);
    connect(this, &QLineEdit::textChanged, this, &JalaliDateEdit::onTextChanged);
    connect(this, &QLineEdit::editingFinished, this, &JalaliDateEdit::showCanonical);
}

QString JalaliDateEdit::typed() const {
    QString shown = displayText();
    shown.remove(u'_');
    shown.remove(u' ');
    return shown;
}

bool JalaliDateEdit::isBlank() const {
    const QString shown = typed();
    return std::none_of(shown.cbegin(), shown.cend(), [](QChar c) { return c.isDigit(); });
}

QString JalaliDateEdit::dateText() const {
    if (isBlank()) {
        return {};
    }
    return canonical(typed()).value_or(QString());
}

bool JalaliDateEdit::isAcceptable() const {
    return isBlank() || canonical(typed()).has_value();
}

bool JalaliDateEdit::setDateText(const QString& text) {
    if (text.trimmed().isEmpty()) {
        clear();
        return true;
    }
    const std::optional<QString> date = canonical(text);
    if (!date) {
        clear();
        return false;
    }
    setText(*date);
    return true;
}

void JalaliDateEdit::onTextChanged() {
    const bool invalid = !isAcceptable();
    if (property("invalid").toBool() != invalid) {
        setProperty("invalid", invalid);
        style()->unpolish(this);
        style()->polish(this);
    }
    const QString date = dateText();
    if (date != m_lastDate) {
        m_lastDate = date;
        emit dateChanged(date);
    }
}

void JalaliDateEdit::showCanonical() {
    const QString date = dateText();
    if (!date.isEmpty() && typed() != date) {
        setText(date);
    }
}

void JalaliDateEdit::keyPressEvent(QKeyEvent* event) {
    // Persian keyboards type Persian digits; the mask and the calendar want ASCII ones.
    const QString keyText = event->text();
    if (keyText.size() == 1) {
        if (const QChar digit = asciiDigitOf(keyText.at(0)); !digit.isNull()) {
            QKeyEvent ascii(event->type(), Qt::Key_0 + (digit.unicode() - u'0'), event->modifiers(),
                            QString(digit), event->isAutoRepeat(),
                            static_cast<ushort>(event->count()));
            QLineEdit::keyPressEvent(&ascii);
            event->setAccepted(ascii.isAccepted());
            return;
        }
    }
    QLineEdit::keyPressEvent(event);
}

}  // namespace sandogh
