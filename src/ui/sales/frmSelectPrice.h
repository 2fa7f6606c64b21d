#pragma once

#include <QDialog>

#include "sales/PriceChooser.h"

class QDialogButtonBox;
class QLabel;
class QListWidget;

namespace sandogh {

// Lets the cashier pick one of the prices the goods master holds for an article (the
// multiple-price option). The prices are listed in the order the sale offers them, the
// first one chosen; Enter or a double click takes the chosen price, Escape none.
class frmSelectPrice : public QDialog, public PriceChooser {
    Q_OBJECT

public:
    explicit frmSelectPrice(QWidget* parent = nullptr);

    std::optional<double> choosePrice(const PriceChoice& choice) override;

    // Fills the dialog without showing it.
    void prepare(const PriceChoice& choice);
    // The chosen price; nothing without a choice.
    std::optional<double> chosenPrice() const;

private:
    QLabel* lblGoods;
    QListWidget* lstPrices;
    QDialogButtonBox* buttons;
    QList<double> m_prices;
};

}  // namespace sandogh
