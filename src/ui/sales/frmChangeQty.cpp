#include "ui/sales/frmChangeQty.h"

#include <QDialogButtonBox>
#include <QFormLayout>
#include <QLabel>
#include <QVBoxLayout>

#include "common/AmountText.h"
#include "sales/SaleLine.h"
#include "ui/sales/SaleDialogLook.h"
#include "ui/widgets/AmountEdit.h"

namespace sandogh {

frmChangeQty::frmChangeQty(QWidget* parent)
    : QDialog(parent)
    , lblGoods(new QLabel(this))
    , lblCurrentQty(new QLabel(this))
    , txtQty(new AmountEdit(this))
    , buttons(SaleDialogLook::okCancel(this)) {
    setObjectName(QStringLiteral("frmChangeQty"));
    setWindowTitle(QStringLiteral("تغییر تعداد"));
    setModal(true);
    setLayoutDirection(Qt::RightToLeft);

    lblGoods->setObjectName(QStringLiteral("lblGoods"));
    lblGoods->setWordWrap(true);
    lblGoods->setFont(SaleDialogLook::titleFont(font()));
    lblCurrentQty->setObjectName(QStringLiteral("lblCurrentQty"));
    lblCurrentQty->setFont(SaleDialogLook::titleFont(font()));

    txtQty->setObjectName(QStringLiteral("txtQty"));
    txtQty->setDecimals(kQuantityDecimals);
    txtQty->setFont(SaleDialogLook::entryFont(font()));
    txtQty->setMinimumWidth(SaleDialogLook::kEntryWidth);

    connect(buttons, &QDialogButtonBox::accepted, this, &frmChangeQty::acceptQuantity);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);

    auto* form = new QFormLayout;
    form->addRow(QStringLiteral("تعداد فعلی:"), lblCurrentQty);
    form->addRow(QStringLiteral("تعداد جدید:"), txtQty);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(lblGoods);
    layout->addLayout(form);
    layout->addWidget(buttons);
}

void frmChangeQty::prepare(const SaleLine& line) {
    lblGoods->setText(line.name.isEmpty() ? line.barcode : line.name + u'\n' + line.barcode);
    lblCurrentQty->setText(QString::fromStdString(AmountText::formatDecimals(line.quantity)));
    txtQty->setValue(line.quantity);
    txtQty->selectAll();
    txtQty->setFocus();
}

std::optional<double> frmChangeQty::quantity() const {
    const double typed = txtQty->value();
    if (txtQty->text().trimmed().isEmpty() || typed <= 0) {
        return std::nullopt;
    }
    return typed;
}

std::optional<double> frmChangeQty::changeQuantity(const SaleLine& line) {
    prepare(line);
    if (exec() != QDialog::Accepted) {
        return std::nullopt;
    }
    return quantity();
}

void frmChangeQty::acceptQuantity() {
    if (!quantity()) {
        txtQty->selectAll();
        txtQty->setFocus();
        return;
    }
    accept();
}

}  // namespace sandogh
