#include "ui/sales/frmUserSelect.h"

#include <QDialogButtonBox>
#include <QLabel>
#include <QListWidget>
#include <QVBoxLayout>

#include "ui/sales/SaleDialogLook.h"

namespace sandogh {

frmUserSelect::frmUserSelect(QWidget* parent)
    : QDialog(parent), lstUsers(new QListWidget(this)), buttons(SaleDialogLook::okCancel(this)) {
    setObjectName(QStringLiteral("frmUserSelect"));
    setWindowTitle(QStringLiteral("انتخاب فروشنده"));
    setModal(true);
    setLayoutDirection(Qt::RightToLeft);

    lstUsers->setObjectName(QStringLiteral("lstUsers"));
    lstUsers->setFont(SaleDialogLook::titleFont(font()));
    lstUsers->setMinimumWidth(SaleDialogLook::kEntryWidth);
    lstUsers->setSelectionMode(QAbstractItemView::SingleSelection);

    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    connect(lstUsers, &QListWidget::itemActivated, this, &QDialog::accept);

    auto* layout = new QVBoxLayout(this);
    layout->addWidget(new QLabel(QStringLiteral("فروشنده این ردیف:"), this));
    layout->addWidget(lstUsers);
    layout->addWidget(buttons);
}

void frmUserSelect::setSellers(const QList<SaleScreenLists::Item>& sellers) {
    m_sellers = sellers;
}

void frmUserSelect::prepare() {
    lstUsers->clear();
    for (const SaleScreenLists::Item& seller : m_sellers) {
        lstUsers->addItem(seller.name);
    }
    if (!m_sellers.isEmpty()) {
        lstUsers->setCurrentRow(0);
    }
    lstUsers->setFocus();
}

std::optional<Seller> frmUserSelect::chosenSeller() const {
    const int row = lstUsers->currentRow();
    if (row < 0 || row >= m_sellers.size()) {
        return std::nullopt;
    }
    const SaleScreenLists::Item& seller = m_sellers.at(row);
    return Seller{seller.code, seller.name};
}

std::optional<Seller> frmUserSelect::chooseSeller() {
    if (m_sellers.isEmpty()) {
        return std::nullopt;
    }
    prepare();
    if (exec() != QDialog::Accepted) {
        return std::nullopt;
    }
    return chosenSeller();
}

}  // namespace sandogh
