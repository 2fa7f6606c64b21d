#pragma once

#include <QDialog>
#include <optional>

class QDialogButtonBox;
class QLabel;

namespace sandogh {

class AmountEdit;
struct SaleLine;

// Changes the quantity of the grid's current line: shows the article and the quantity on
// the line, and takes the new one (above 0; up to three decimals for weighed goods).
class frmChangeQty : public QDialog {
    Q_OBJECT

public:
    static constexpr int kQuantityDecimals = 3;

    explicit frmChangeQty(QWidget* parent = nullptr);

    // Shows the dialog for a line; the new quantity, or nothing when cancelled.
    std::optional<double> changeQuantity(const SaleLine& line);

    // Fills the dialog for a line without showing it.
    void prepare(const SaleLine& line);
    std::optional<double> quantity() const;

private:
    void acceptQuantity();

    QLabel* lblGoods;
    QLabel* lblCurrentQty;
    AmountEdit* txtQty;
    QDialogButtonBox* buttons;
};

}  // namespace sandogh
