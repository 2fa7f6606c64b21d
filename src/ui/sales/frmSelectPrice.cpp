#include "ui/sales/frmSelectPrice.h"

#include <QDialogButtonBox>
#include <QLabel>
#include <QListWidget>
#include <QVBoxLayout>

#include "common/AmountText.h"
#include "ui/sales/SaleDialogLook.h"

namespace sandogh {

frmSelectPrice::frmSelectPrice(QWidget* parent)
    : QDialog(parent)
    , lblGoods(new QLabel(this))
    , lstPrices(new QListWidget(this))
    , buttons(SaleDialogLook::okCancel(this)) {
    setObjectName(QStringLiteral("frmSelectPrice"));
    setWindowTitle(QStringLiteral("انتخاب قیمت"));
    setModal(true);
    setLayoutDirection(Qt::RightToLeft);

    lblGoods->setObjectName(QStringLiteral("lblGoods"));
    lblGoods->setFont(SaleDialogLook::titleFont(font()));
    lstPrices->setObjectName(QStringLiteral("lstPrices"));
    lstPrices->setFont(SaleDialogLook::entryFont(font()));
    lstPrices->setMinimumWidth(SaleDialogLook::kEntryWidth);
    lstPrices->setSelectionMode(QAbstractItemView::SingleSelection);

    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    connect(lstPrices, &QListWidget::itemActivated, this, &QDialog::accept);

    auto* layout = new QVBoxLayout(this);
    layout->addWidget(lblGoods);
    layout->addWidget(lstPrices);
    layout->addWidget(buttons);
}

void frmSelectPrice::prepare(const PriceChoice& choice) {
    m_prices = choice.prices;
    lblGoods->setText(choice.barcode);
    lstPrices->clear();
    for (const double price : m_prices) {
        auto* item = new QListWidgetItem(QString::fromStdString(AmountText::formatWhole(price)));
        // Amounts line up on their last digit.
        item->setTextAlignment(Qt::AlignRight | Qt::AlignAbsolute | Qt::AlignVCenter);
        lstPrices->addItem(item);
    }
    if (!m_prices.isEmpty()) {
        lstPrices->setCurrentRow(0);
    }
    lstPrices->setFocus();
}

std::optional<double> frmSelectPrice::chosenPrice() const {
    const int row = lstPrices->currentRow();
    if (row < 0 || row >= m_prices.size()) {
        return std::nullopt;
    }
    return m_prices.at(row);
}

std::optional<double> frmSelectPrice::choosePrice(const PriceChoice& choice) {
    prepare(choice);
    if (exec() != QDialog::Accepted) {
        return std::nullopt;
    }
    return chosenPrice();
}

}  // namespace sandogh
