#pragma once

#include <QDialog>
#include <QList>

#include "sales/PaymentAccounts.h"
#include "sales/SalePayment.h"

class QComboBox;
class QDialogButtonBox;
class QLabel;
class QPushButton;
class QTableWidget;

namespace sandogh {

class AmountEdit;
class MessageService;

// Splits the amount payable of a sale over payment rows, each a kind ("نقدي", "پوز
// بانکي", "چک"), an account and an amount; a bank account shows its terminal number.
// The row being entered is cmbPaymentKind, cmbAccount, txtAmount (lblPosId beside it) and
// btnAdd; the rows are in grdPayments, btnDelete removes the current one. OK is refused
// with a message while the rows do not add up to the amount payable.
//
//   frmSalePayment dialog(accounts, messages, parent);
//   dialog.DocSum(payable); dialog.setCustomerName(customer); dialog.FillTextValue();
//   if (dialog.exec() == QDialog::Accepted) settlement.payments = dialog.payments();
class frmSalePayment : public QDialog {
    Q_OBJECT

public:
    // accounts: tblAccountingGroup rows offered, with each account's PosId (empty when
    // the account has no terminal), read before the dialog opens.
    struct AccountChoice {
        PaymentAccounts::Account account;
        QString posId;
    };

    frmSalePayment(QList<AccountChoice> accounts, MessageService& messages,
                   QWidget* parent = nullptr);
    // Reads the accounts and their terminals itself.
    static QList<AccountChoice> readAccounts(PaymentAccounts& accounts);

    // The amount payable to split.
    void DocSum(double amount);
    double DocSum() const { return m_docSum; }
    // The customer's name shown above the rows.
    void setCustomerName(const QString& name);
    // Fills the amount of the row being entered with what is left to split, and the
    // figures under the rows.
    void FillTextValue();

    // Adds a row; false (with a message) without an account or amount.
    bool addRow(SalePayment::Kind kind, int accountingGroupId, double amount);
    QList<SalePayment> payments() const { return m_payments; }

public slots:
    void accept() override;

private:
    QComboBox* cmbPaymentKind;
    QComboBox* cmbAccount;
    AmountEdit* txtAmount;
    QLabel* lblPosId;
    QPushButton* btnAdd;
    QPushButton* btnDelete;
    QTableWidget* grdPayments;
    QLabel* lblCompanyName;
    QLabel* lblDocSum;
    QLabel* lblRemaining;
    QDialogButtonBox* buttons;

    void addEnteredRow();
    void deleteCurrentRow();
    void showPosId();
    void showRows();
    const AccountChoice* choiceOf(int accountingGroupId) const;

    QList<AccountChoice> m_accounts;
    MessageService& m_messages;
    QList<SalePayment> m_payments;
    double m_docSum = 0;
};

}  // namespace sandogh
