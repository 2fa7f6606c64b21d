#pragma once

#include <QDialog>

#include "sales/QuantityAsker.h"

class QDialogButtonBox;
class QLabel;

namespace sandogh {

class AmountEdit;

// Asks how many of an article whose quantity-asking flag is set are sold, before its
// line is added. The box starts at 1, selected, so a typed number replaces it; Enter
// takes it and Escape adds nothing.
class frmAskQty : public QDialog, public QuantityAsker {
    Q_OBJECT

public:
    // Quantities may hold this many decimals (kilograms of weighed goods).
    static constexpr int kQuantityDecimals = 3;

    explicit frmAskQty(QWidget* parent = nullptr);

    std::optional<double> askQuantity(const QString& barcode, const QString& name) override;

    // Fills the dialog for an article without showing it.
    void prepare(const QString& barcode, const QString& name);
    // The quantity typed, when it is a number above 0.
    std::optional<double> quantity() const;

private:
    void acceptQuantity();

    QLabel* lblGoods;
    AmountEdit* txtQty;
    QDialogButtonBox* buttons;
};

}  // namespace sandogh
