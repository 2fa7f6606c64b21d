#pragma once

#include <QWidget>
#include <memory>

#include "sales/SaleListModel.h"

class QComboBox;
class QLineEdit;
class QPushButton;
class QTableView;

namespace sandogh {

class AppContext;

// The saved documents of one kind (property TransType: 1 purchase, 2 sale, 3 sale return,
// 4 purchase return): the choice cmbChoice ("500 فاکتور آخر", "500 فاکتور اول",
// "تمام فاکتورها"), the filters txtNo, txtDate, txtCustomer and txtBase combined, and the
// grid Grid1 whose model reads pages as it scrolls. cmdPrint hands the chosen document to
// the companion program ("mnuRptSaleFactor," or "mnuRptBuyFactor,") or, without one,
// prints its receipt here; cmdDelete deletes it as frmDeleteFactor does; cmdEdit asks for
// the editor of a sale or return.
//
// Made for the internal family it is frmSaleInterList: the internal documents of the kind
// (2 internal sale, 3 internal return), the branch in the customer's place (txtCustomer
// filters on the branch name), no Base or voucher columns; cmdPrint prints the receipt of
// the internal document and cmdDelete deletes it as frmDeleteFactorInternal does.
class frmSaleList : public QWidget {
    Q_OBJECT
    Q_PROPERTY(int TransType READ TransType WRITE setTransType)

public:
    frmSaleList(AppContext& context, int transType, QWidget* parent = nullptr);
    frmSaleList(AppContext& context, int transType, DocumentFamily family,
                QWidget* parent = nullptr);
    ~frmSaleList() override;

    int TransType() const { return m_transType; }
    DocumentFamily family() const { return m_family; }
    void setTransType(int transType);
    SaleListModel& model() { return *m_model; }

    // Reads the first page of the choice and filters.
    void FillGrid();
    // The selected document printed; false when none is selected or nothing was printed.
    bool cmdPrint_Click();
    // The selected document deleted; false when none is selected or it was not deleted.
    bool cmdDelete_Click();
    // Asks for the editor of the selected sale or return (editRequested); false when none
    // is selected or the list is of purchases.
    bool cmdEdit_Click();

signals:
    void editRequested(qint64 code, const QString& customerName, int customerCounter);

private:
    const SaleListQuery::Row* selectedRow() const;

    AppContext& m_context;
    DocumentFamily m_family = DocumentFamily::Ordinary;
    int m_transType = 2;
    SaleListModel* m_model;

    QComboBox* cmbChoice;
    QLineEdit* txtNo;
    QLineEdit* txtDate;
    QLineEdit* txtCustomer;
    QLineEdit* txtBase;
    QPushButton* cmdSearch;
    QPushButton* cmdPrint;
    QPushButton* cmdDelete;
    QPushButton* cmdEdit;
    QTableView* Grid1;
};

}  // namespace sandogh
