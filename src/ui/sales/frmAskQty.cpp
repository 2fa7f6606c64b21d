#include "ui/sales/frmAskQty.h"

#include <QDialogButtonBox>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include "ui/sales/SaleDialogLook.h"
#include "ui/widgets/AmountEdit.h"

namespace sandogh {

frmAskQty::frmAskQty(QWidget* parent)
    : QDialog(parent)
    , lblGoods(new QLabel(this))
    , txtQty(new AmountEdit(this))
    , buttons(SaleDialogLook::okCancel(this)) {
    setObjectName(QStringLiteral("frmAskQty"));
    setWindowTitle(QStringLiteral("تعداد کالا"));
    setModal(true);
    setLayoutDirection(Qt::RightToLeft);

    lblGoods->setObjectName(QStringLiteral("lblGoods"));
    lblGoods->setWordWrap(true);
    lblGoods->setFont(SaleDialogLook::titleFont(font()));

    txtQty->setObjectName(QStringLiteral("txtQty"));
    txtQty->setDecimals(kQuantityDecimals);
    txtQty->setFont(SaleDialogLook::entryFont(font()));
    txtQty->setMinimumWidth(SaleDialogLook::kEntryWidth);

    auto* prompt = new QLabel(QStringLiteral("تعداد را وارد کنید:"), this);
    prompt->setBuddy(txtQty);

    connect(buttons, &QDialogButtonBox::accepted, this, &frmAskQty::acceptQuantity);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);

    auto* layout = new QVBoxLayout(this);
    layout->addWidget(lblGoods);
    layout->addWidget(prompt);
    layout->addWidget(txtQty);
    layout->addWidget(buttons);
}

void frmAskQty::prepare(const QString& barcode, const QString& name) {
    lblGoods->setText(name.trimmed().isEmpty() ? barcode : name.trimmed() + u'\n' + barcode);
    txtQty->setValue(1);
    txtQty->selectAll();
    txtQty->setFocus();
}

std::optional<double> frmAskQty::quantity() const {
    const double typed = txtQty->value();
    if (txtQty->text().trimmed().isEmpty() || typed <= 0) {
        return std::nullopt;
    }
    return typed;
}

std::optional<double> frmAskQty::askQuantity(const QString& barcode, const QString& name) {
    prepare(barcode, name);
    if (exec() != QDialog::Accepted) {
        return std::nullopt;
    }
    return quantity();
}

void frmAskQty::acceptQuantity() {
    // An empty or zero box is not an answer: the cashier corrects it or presses Escape.
    if (!quantity()) {
        txtQty->selectAll();
        txtQty->setFocus();
        return;
    }
    accept();
}

}  // namespace sandogh
