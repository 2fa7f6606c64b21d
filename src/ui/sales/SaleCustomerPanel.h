#pragma once

#include <QFrame>

#include "sales/CustomerSearch.h"

class QComboBox;
class QLabel;
class QLineEdit;
class QListWidget;
class QPushButton;

namespace sandogh {

class Database;
class MessageService;
class SaleSession;

// The customer of the sale: the search box txtAccountSearch (Enter searches by the kind
// chosen beside it; Up and Down move in the results instead), the result list under it,
// and the chosen customer's name (txtCustomerName), account (txtAccount) and balance
// (lblCredit). The current result is the sale's customer.
class SaleCustomerPanel : public QFrame {
    Q_OBJECT

public:
    SaleCustomerPanel(SaleSession& sale, Database& database, MessageService& messages,
                      QWidget* parent = nullptr);

    // Runs the search of the box's text; the number of customers found.
    int search();
    // A new sale: no results, an empty box.
    void reset();
    // Ctrl+S: the search box with its text selected.
    void focusSearch();
    // btnCustomerDetail and Ctrl+H: the customer's purchases, balance and net sales.
    void showSummary();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QLineEdit* txtAccountSearch;
    QComboBox* cmbSearchKind;
    QPushButton* cmdCustomerSearch;
    QListWidget* lstCustomers;
    QLineEdit* txtCustomerName;
    QLineEdit* txtAccount;
    QLabel* lblCredit;
    QPushButton* btnCustomerDetail;

    void buildLayout();
    void moveTo(int index);
    void showCustomer();

    SaleSession& m_sale;
    Database& m_database;
    MessageService& m_messages;
    CustomerSearch m_search;
};

}  // namespace sandogh
