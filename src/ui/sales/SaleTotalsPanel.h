#pragma once

#include <QFrame>
#include <QList>

#include "sales/SaleMode.h"
#include "sales/SaleScreenLists.h"

class QComboBox;
class QLabel;

namespace sandogh {

class AmountEdit;

// The amounts of the sale under the grid: the total of the lines (txtSum, the largest
// figure on the screen), the document discount with its percent and kind, the added
// charge with its kind, the amount payable (txtSumReceived), the amount handed over
// (txtReceivedPrice, labelled for a sale or a return), the change (txtReturn) and its
// state (lblReturnCalculator). Every amount reads left to right, flush right.
class SaleTotalsPanel : public QFrame {
    Q_OBJECT

public:
    explicit SaleTotalsPanel(QWidget* parent = nullptr);

    // The total as the sale shows it ("##,###").
    void showTotal(const QString& totalText);
    // The label of the amount handed over: received for a sale, paid back for a return.
    void showMode(SaleMode mode);
    void setDiscountKinds(const QList<SaleScreenLists::Item>& kinds);
    void setOverheadKinds(const QList<SaleScreenLists::Item>& kinds);
    // Whether a document discount may be given on this desk.
    void setDiscountEnabled(bool enabled);
    // A new sale: every amount but the total emptied, no kinds chosen.
    void clearSettlement();

    AmountEdit* txtSum;
    AmountEdit* txtDiscountPercent;
    AmountEdit* txtDiscount;
    QComboBox* cmbDiscountType;
    AmountEdit* txtOther;
    QComboBox* cmbOverhead;
    AmountEdit* txtSumReceived;
    QLabel* lblReceivedPrice;
    AmountEdit* txtReceivedPrice;
    AmountEdit* txtReturn;
    QLabel* lblReturnCalculator;

private:
    void buildLayout();
    static void fillKinds(QComboBox* combo, const QList<SaleScreenLists::Item>& kinds);
};

}  // namespace sandogh
