#pragma once

#include <QFrame>
#include <QList>

#include "sales/SaleMode.h"
#include "sales/SaleScreenLists.h"

class QButtonGroup;
class QComboBox;
class QLineEdit;
class QRadioButton;

namespace sandogh {

class JalaliDateEdit;
class SaleSession;
struct SaleSettlement;

// The detail panel frmDetail of the sale screen, opened beside the grid when the cashier
// needs it: the kind of document (rdoType: sale or return from sale), the sales type
// (rdoSalesType, only while the grid is empty), the warehouse, the return cause, the
// payment kind, the sale date and a note. Its choices go straight to the sale.
class SaleDetailPanel : public QFrame {
    Q_OBJECT

public:
    // Button ids of rdoType.
    static constexpr int kSaleButton = 0;
    static constexpr int kReturnButton = 1;

    explicit SaleDetailPanel(SaleSession& sale, QWidget* parent = nullptr);

    void setWarehouses(const QList<SaleScreenLists::Item>& warehouses);
    void setReturnCauses(const QList<SaleScreenLists::Item>& causes);
    void setPaymentKinds(const QList<SaleScreenLists::Item>& kinds);
    // A new sale: no return cause, today's date, no note.
    void clearDocument();
    // Fills the payment kind, the return cause and the note of a settlement.
    void fillSettlement(SaleSettlement& settlement) const;

private:
    QButtonGroup* rdoType;
    QRadioButton* rdoTypeSale;
    QRadioButton* rdoTypeReturn;
    QButtonGroup* rdoSalesType;
    QRadioButton* rdoSalesTypeFirst;
    QRadioButton* rdoSalesTypeSecond;
    QComboBox* cmbWarehouseSelector;
    QComboBox* cmbReturnCause;
    QComboBox* cmbPayType;
    JalaliDateEdit* txtDate;
    QLineEdit* txtNote;

    void buildLayout();
    void showMode(SaleMode mode);
    void chooseFirstPaymentKind();
    void showSalesType(int salesType);
    void onSalesTypeClicked(int salesType);
    void onWarehouseChosen(int index);
    static void fill(QComboBox* combo, const QList<SaleScreenLists::Item>& items);

    SaleSession& m_sale;
};

}  // namespace sandogh
