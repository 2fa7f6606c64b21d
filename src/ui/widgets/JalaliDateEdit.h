#pragma once

#include <QLineEdit>
#include <QString>

namespace sandogh {

// A box for one Jalali date, typed into the mask "____/__/__" (the look of an empty date
// column). What is typed is checked against the calendar: a month or day of one digit and
// a two-digit year (13xx) are accepted and shown in full when the box is left. A text that
// is not a real day is kept for correction and marked with the property invalid=true.
class JalaliDateEdit : public QLineEdit {
    Q_OBJECT

public:
    explicit JalaliDateEdit(QWidget* parent = nullptr);

    // The canonical date text "1404/01/05", or empty text when the box is empty or what is
    // typed is not a real day.
    QString dateText() const;
    // Shows a date given in any form normalizeDateText reads; false (and the box emptied)
    // when it names no real day. Empty text empties the box.
    bool setDateText(const QString& text);

    // Nothing typed.
    bool isBlank() const;
    // Empty, or a real day.
    bool isAcceptable() const;

signals:
    // The canonical date, or empty text, whenever it changes.
    void dateChanged(const QString& dateText);

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    // What is typed, without the mask's blanks.
    QString typed() const;
    void onTextChanged();
    void showCanonical();

    QString m_lastDate;
};

}  // namespace sandogh
