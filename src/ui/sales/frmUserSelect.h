#pragma once

#include <QDialog>
#include <QList>

#include "sales/SaleScreenLists.h"
#include "sales/SellerChooser.h"

class QDialogButtonBox;
class QListWidget;

namespace sandogh {

// Picks the seller of the line being added from the active users; Enter or a double
// click takes the chosen one, Escape keeps the logged-in user.
class frmUserSelect : public QDialog, public SellerChooser {
    Q_OBJECT

public:
    explicit frmUserSelect(QWidget* parent = nullptr);

    // The sellers offered (the sale screen's sellers list).
    void setSellers(const QList<SaleScreenLists::Item>& sellers);
    int sellerCount() const { return static_cast<int>(m_sellers.size()); }

    std::optional<Seller> chooseSeller() override;

    // Fills the list without showing the dialog; the first seller is chosen.
    void prepare();
    std::optional<Seller> chosenSeller() const;

private:
    QListWidget* lstUsers;
    QDialogButtonBox* buttons;
    QList<SaleScreenLists::Item> m_sellers;
};

}  // namespace sandogh
