#pragma once

#include <QWidget>

#include "purchase/PurchaseSaveResult.h"
#include "purchase/PurchaseSession.h"

class QComboBox;
class QLabel;
class QLineEdit;
class QPushButton;
class QTableView;

namespace sandogh {

class AmountEdit;
class AppContext;
class Clock;
class Database;
class JalaliDateEdit;
class MessageService;

// The purchase screen (or the purchase return screen): supplier, invoice number, date,
// warehouse, payment kind, accounting group, reference, note, document discount and
// surcharge; the barcode box txtBarcode and the grid grdLines whose quantity, list price,
// discount and tax are edited in place; the totals; saving through PurchaseSaver.
//
// Keys: Enter in the barcode box adds the article; Down or F2 goes to the quantity of the
// last line and Escape back to the box; Delete removes the grid's current line; F5 or
// Ctrl+S saves. A user without the purchases permission is told so by every action.
class frmBuy : public QWidget {
    Q_OBJECT

public:
    frmBuy(Database& database, MessageService& messages, const Clock& clock, int userId,
           bool allowed, bool isReturn, QWidget* parent = nullptr);
    ~frmBuy() override;

    // The screen for the logged-in user of the context.
    static frmBuy* create(AppContext& context, bool isReturn);

    PurchaseSession& session() { return m_session; }

    // The barcode box's Enter: adds the typed article and clears the box.
    void txtBarcode_Enter();
    // Checks and saves; on success says so and starts a new document of the same kind.
    PurchaseSaveResult cmdSave_Click();
    // Starts again from the pre-invoice or the document named in the boxes beside the
    // buttons.
    bool cmdPreFactor_Click();
    bool cmdLoadDocument_Click();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    bool allowedOrSay();
    void readHeader();
    void showHeader();
    void showTotals();
    void newDocument();
    void editLastQuantity();

    PurchaseSession m_session;
    Database& m_database;
    MessageService& m_messages;
    const Clock& m_clock;
    bool m_allowed;

    QLabel* lblCode;
    QComboBox* cmbSupplier;
    QLineEdit* txtDocNo;
    JalaliDateEdit* txtDate;
    QComboBox* cmbWarehouse;
    QComboBox* cmbPayType;
    QComboBox* cmbAccountingGroup;
    QLineEdit* txtBase;
    QLineEdit* txtNote;
    AmountEdit* txtDiscount;
    AmountEdit* txtSarbar;
    QLineEdit* txtBarcode;
    QTableView* grdLines;
    QLabel* lblCount;
    QLabel* lblSum;
    QLabel* lblTax;
    QLabel* lblPayable;
    QLineEdit* txtPreFactor;
    QPushButton* cmdPreFactor;
    QComboBox* cmbSourceType;
    QLineEdit* txtSourceNo;
    QPushButton* cmdLoadDocument;
    QPushButton* cmdSave;
};

}  // namespace sandogh
