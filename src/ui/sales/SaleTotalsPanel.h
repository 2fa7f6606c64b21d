#pragma once

#include <QFrame>
#include <QList>

#include "sales/SaleMode.h"
#include "sales/SaleScreenLists.h"
#include "sales/SaleSettlement.h"
#include "sales/SettlementCalculator.h"

class QComboBox;
class QLabel;
class QPushButton;

namespace sandogh {

class AmountEdit;

// The amounts of the sale under the grid: the total of the lines (txtSum, the largest
// figure on the screen), the document discount with its percent and kind, the added
// charge with its kind, the amount payable (txtSumReceived), the amount handed over
// (txtReceivedPrice, labelled for a sale or a return), the change (txtReturn) and its
// state (lblReturnCalculator). Every amount reads left to right, flush right.
//
// Each change of the total, the discount, the charge or the amount handed over recomputes
// the amount payable, the change and its state; DiscountButton turns the percent into the
// discount amount.
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

    // The figures of the boxes as they stand.
    SettlementCalculator::Amounts amounts() const;
    // The amounts and the chosen kinds (item data of cmbDiscountType and cmbOverhead: the
    // Ids; none for the empty first entry) as a settlement; the rest left empty.
    SaleSettlement settlement() const;
    // Fills the amounts and kinds of a settlement, keeping its other values. With the
    // total of the lines, that total is used in place of its rounded text in txtSum, and
    // a payable amount typed over the computed one is taken as received.
    void fillSettlement(SaleSettlement& settlement) const;
    void fillSettlement(SaleSettlement& settlement, double linesTotal) const;
    // txtSumReceived as typed, when it holds an amount above 0; otherwise empty.
    QString payableText() const;
    // What the sale just saved leaves in sight: the amount handed over (the payable one
    // when nothing was typed) and the change ("0" then).
    QString handedOverText() const;
    QString changeText() const;
    // The Id (item data) chosen in a kind list; nothing for the empty first row.
    static std::optional<int> chosenKind(const QComboBox* combo);
    // The discount kind chosen in cmbDiscountType; nothing for the empty first row.
    std::optional<int> discountKind() const { return chosenKind(cmbDiscountType); }
    // Writes a discount (the loyalty gift) and recomputes.
    void setDiscount(double discount);
    // Chooses a discount kind by its Id; false when the list has no such kind.
    bool chooseDiscountKind(int id);

    // The boxes a key of the sale screen jumps to.
    enum class Box { Payable, HandedOver, Discount, Overhead };
    // Focuses a box as a click would; only the discount's text is selected, ready to be
    // typed over.
    void focusBox(Box box);

    // DiscountButton: the percent of txtDiscountPercent applied to the total.
    void applyDiscountPercent();
    // txtSumReceived, txtReturn and lblReturnCalculator from the other boxes.
    void recompute();

private:
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
    QPushButton* DiscountButton;

    void buildLayout();
    // The amounts over a total and the chosen kinds.
    void fillAmounts(SaleSettlement& settlement, double total) const;
    static void fillKinds(QComboBox* combo, const QList<SaleScreenLists::Item>& kinds);

    bool m_clearing = false;
};

}  // namespace sandogh
