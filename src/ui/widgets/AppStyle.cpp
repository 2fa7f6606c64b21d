#include "ui/widgets/AppStyle.h"

#include <QApplication>
#include <QFontDatabase>
#include <QPalette>
#include <QStyleFactory>

namespace sandogh {

namespace {

constexpr int kPointSize = 10;

QPalette calmPalette() {
    QPalette palette;
    const QColor window(0xf4, 0xf2, 0xec);
    const QColor text(0x26, 0x2b, 0x33);
    const QColor highlight(0x2f, 0x6f, 0x9f);
    palette.setColor(QPalette::Window, window);
    palette.setColor(QPalette::WindowText, text);
    palette.setColor(QPalette::Base, Qt::white);
    palette.setColor(QPalette::AlternateBase, QColor(0xf7, 0xf6, 0xf1));
    palette.setColor(QPalette::Text, text);
    palette.setColor(QPalette::Button, QColor(0xfb, 0xfa, 0xf7));
    palette.setColor(QPalette::ButtonText, text);
    palette.setColor(QPalette::Highlight, highlight);
    palette.setColor(QPalette::HighlightedText, Qt::white);
    palette.setColor(QPalette::ToolTipBase, QColor(0xff, 0xfb, 0xe6));
    palette.setColor(QPalette::ToolTipText, text);
    palette.setColor(QPalette::PlaceholderText, QColor(0x8a, 0x91, 0x99));
    palette.setColor(QPalette::Disabled, QPalette::Text, QColor(0x9a, 0x9a, 0x9a));
    palette.setColor(QPalette::Disabled, QPalette::ButtonText, QColor(0x9a, 0x9a, 0x9a));
    palette.setColor(QPalette::Disabled, QPalette::WindowText, QColor(0x9a, 0x9a, 0x9a));
    return palette;
}

}  // namespace

QFont AppStyle::font() {
    QFont font = QApplication::font();
#ifndef Q_OS_WIN
    const QString persian = QString::fromLatin1(kPersianFamily);
    if (QFontDatabase::families().contains(persian)) {
        // Latin letters and digits come from the sans fonts beside it.
        font.setFamilies({persian, QStringLiteral("Noto Sans"), QStringLiteral("DejaVu Sans")});
    }
#endif
    font.setPointSize(kPointSize);
    return font;
}

QString AppStyle::styleSheet() {
    return QStringLiteral(
        "QPushButton { padding: 5px 16px; min-width: 64px; border: 1px solid #9fb0c0;"
        " border-radius: 4px; background: #fdfdfb; }"
        "QPushButton:hover { background: #eef4f9; }"
        "QPushButton:pressed { background: #d9e6f1; }"
        "QPushButton:default { border: 1px solid #2f6f9f; }"
        "QPushButton:focus { border: 2px solid #2f6f9f; }"
        "QPushButton:disabled { color: #9a9a9a; border-color: #cfd5db; }"
        "QLineEdit { padding: 3px 5px; border: 1px solid #b6bfc9; border-radius: 3px;"
        " background: white; }"
        "QLineEdit:focus { border: 1px solid #2f6f9f; }"
        "QLineEdit:read-only { background: #f1f0eb; }"
        "QLineEdit[invalid=\"true\"] { border: 1px solid #b8412f; background: #fcebe8; }"
        "QListWidget { border: 1px solid #c9cfd6; background: white; outline: 0; padding: 2px; }"
        "QListWidget::item { padding: 5px 10px; border: 0; background: transparent; }"
        "QListWidget::item:selected { background: #2f6f9f; color: white; }");
}

void AppStyle::apply(QApplication& app) {
    QApplication::setLayoutDirection(Qt::RightToLeft);
    if (QStyle* fusion = QStyleFactory::create(QStringLiteral("Fusion"))) {
        QApplication::setStyle(fusion);
    }
    QApplication::setPalette(calmPalette());
    QApplication::setFont(font());
    app.setStyleSheet(styleSheet());
}

}  // namespace sandogh
