#pragma once

#include <QString>
#include <QTest>
#include <QWidget>

namespace sandogh::test {

// Types text key by key as a keyboard would, Persian letters and digits included
// (QTest::keyClicks only knows ASCII). The key code of a non-ASCII character is its code
// point, as the platform reports it for a Persian keyboard layout.
inline void typeText(QWidget* widget, const QString& text) {
    for (const QChar c : text) {
        if (c.unicode() < 0x80) {
            QTest::keyClick(widget, c.toLatin1());
            continue;
        }
        const auto key = static_cast<Qt::Key>(c.unicode());
        QTest::sendKeyEvent(QTest::Press, widget, key, QString(c), Qt::NoModifier);
        QTest::sendKeyEvent(QTest::Release, widget, key, QString(c), Qt::NoModifier);
    }
}

}  // namespace sandogh::test
