#include "ui/sales/SaleDialogLook.h"

#include <QDialogButtonBox>
#include <QPushButton>

#include "ui/widgets/ButtonCaptions.h"

namespace sandogh {

namespace {

constexpr double kEntryScale = 1.8;
constexpr double kTitleScale = 1.2;

QFont scaled(QFont font, double scale) {
    const qreal size = font.pointSizeF() > 0 ? font.pointSizeF() : 10;
    font.setPointSizeF(size * scale);
    return font;
}

}  // namespace

QFont SaleDialogLook::entryFont(QFont base) {
    QFont font = scaled(std::move(base), kEntryScale);
    font.setBold(true);
    return font;
}

QFont SaleDialogLook::titleFont(QFont base) {
    QFont font = scaled(std::move(base), kTitleScale);
    font.setBold(true);
    return font;
}

QDialogButtonBox* SaleDialogLook::okCancel(QWidget* parent) {
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, parent);
    buttons->setObjectName(QStringLiteral("buttons"));
    buttons->button(QDialogButtonBox::Ok)->setText(ButtonCaptions::ok());
    buttons->button(QDialogButtonBox::Ok)->setDefault(true);
    buttons->button(QDialogButtonBox::Cancel)->setText(ButtonCaptions::cancel());
    return buttons;
}

}  // namespace sandogh
