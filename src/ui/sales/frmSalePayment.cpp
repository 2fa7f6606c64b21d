#include "ui/sales/frmSalePayment.h"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QGridLayout>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QTableWidget>
#include <QVBoxLayout>

#include "common/AmountText.h"
#include "sales/PaymentSplit.h"
#include "settings/MessageService.h"
#include "ui/sales/SaleDialogLook.h"
#include "ui/widgets/AmountEdit.h"

namespace sandogh {

namespace {

constexpr int kVisiblePaymentRows = 5;

enum Column { KindColumn, AccountColumn, PosColumn, AmountColumn, ColumnCount };

QString amountText(double value) {
    return QString::fromStdString(AmountText::formatWhole(value));
}

QTableWidgetItem* cell(const QString& text) {
    auto* item = new QTableWidgetItem(text);
    item->setFlags(Qt::ItemIsSelectable | Qt::ItemIsEnabled);
    return item;
}

}  // namespace

frmSalePayment::frmSalePayment(QList<AccountChoice> accounts, MessageService& messages,
                               QWidget* parent)
    : QDialog(parent)
    , cmbPaymentKind(new QComboBox(this))
    , cmbAccount(new QComboBox(this))
    , txtAmount(new AmountEdit(this))
    , lblPosId(new QLabel(this))
    , btnAdd(new QPushButton(QStringLiteral("افزودن"), this))
    , btnDelete(new QPushButton(QStringLiteral("حذف ردیف"), this))
    , grdPayments(new QTableWidget(0, ColumnCount, this))
    , lblCompanyName(new QLabel(this))
    , lblDocSum(new QLabel(this))
    , lblRemaining(new QLabel(this))
    , buttons(SaleDialogLook::okCancel(this))
    , m_accounts(std::move(accounts))
    , m_messages(messages) {
    setObjectName(QStringLiteral("frmSalePayment"));
    setWindowTitle(QStringLiteral("نحوه پرداخت"));
    setModal(true);
    setLayoutDirection(Qt::RightToLeft);

    cmbPaymentKind->setObjectName(QStringLiteral("cmbPaymentKind"));
    for (SalePayment::Kind kind : PaymentSplit::kinds()) {
        cmbPaymentKind->addItem(PaymentSplit::kindName(kind), int(kind));
    }
    cmbAccount->setObjectName(QStringLiteral("cmbAccount"));
    for (const AccountChoice& choice : m_accounts) {
        cmbAccount->addItem(choice.account.name, choice.account.id);
    }
    txtAmount->setObjectName(QStringLiteral("txtAmount"));
    txtAmount->setFont(SaleDialogLook::entryFont(font()));
    txtAmount->setMinimumWidth(SaleDialogLook::kEntryWidth);
    lblPosId->setObjectName(QStringLiteral("lblPosId"));
    btnAdd->setObjectName(QStringLiteral("btnAdd"));
    btnAdd->setAutoDefault(false);
    btnDelete->setObjectName(QStringLiteral("btnDelete"));
    btnDelete->setAutoDefault(false);
    lblCompanyName->setObjectName(QStringLiteral("lblCompanyName"));
    lblCompanyName->setFont(SaleDialogLook::titleFont(font()));
    lblDocSum->setObjectName(QStringLiteral("lblDocSum"));
    lblDocSum->setFont(SaleDialogLook::titleFont(font()));
    lblRemaining->setObjectName(QStringLiteral("lblRemaining"));

    grdPayments->setObjectName(QStringLiteral("grdPayments"));
    grdPayments->setHorizontalHeaderLabels({QStringLiteral("نوع پرداخت"), QStringLiteral("حساب"),
                                            QStringLiteral("شماره پایانه"),
                                            QStringLiteral("مبلغ")});
    grdPayments->setSelectionBehavior(QAbstractItemView::SelectRows);
    grdPayments->setSelectionMode(QAbstractItemView::SingleSelection);
    grdPayments->horizontalHeader()->setSectionResizeMode(QHeaderView::Stretch);
    grdPayments->verticalHeader()->setVisible(false);
    // Room for five rows of the split before it scrolls.
    grdPayments->setMinimumHeight(grdPayments->horizontalHeader()->sizeHint().height() +
                                  kVisiblePaymentRows *
                                      grdPayments->verticalHeader()->defaultSectionSize() +
                                  2 * grdPayments->frameWidth());

    connect(cmbAccount, &QComboBox::currentIndexChanged, this, [this] { showPosId(); });
    connect(btnAdd, &QPushButton::clicked, this, [this] { addEnteredRow(); });
    connect(btnDelete, &QPushButton::clicked, this, [this] { deleteCurrentRow(); });
    buttons->setObjectName(QStringLiteral("buttons"));
    connect(buttons, &QDialogButtonBox::accepted, this, &frmSalePayment::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);

    auto* entry = new QGridLayout;
    entry->addWidget(new QLabel(QStringLiteral("نوع پرداخت"), this), 0, 0);
    entry->addWidget(new QLabel(QStringLiteral("حساب"), this), 0, 1);
    entry->addWidget(new QLabel(QStringLiteral("مبلغ"), this), 0, 2);
    entry->addWidget(cmbPaymentKind, 1, 0);
    entry->addWidget(cmbAccount, 1, 1);
    entry->addWidget(txtAmount, 1, 2);
    entry->addWidget(btnAdd, 1, 3);
    entry->addWidget(lblPosId, 2, 1);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(lblCompanyName);
    layout->addWidget(lblDocSum);
    layout->addLayout(entry);
    layout->addWidget(grdPayments);
    layout->addWidget(btnDelete, 0, Qt::AlignLeading);
    layout->addWidget(lblRemaining);
    layout->addWidget(buttons);
    resize(640, 420);
    showPosId();
    showRows();
}

QList<frmSalePayment::AccountChoice> frmSalePayment::readAccounts(PaymentAccounts& accounts) {
    QList<AccountChoice> choices;
    for (const PaymentAccounts::Account& account : accounts.accounts()) {
        choices.append({account, accounts.posIdOf(account.id)});
    }
    return choices;
}

void frmSalePayment::DocSum(double amount) {
    m_docSum = amount;
    lblDocSum->setText(QStringLiteral("مبلغ قابل پرداخت : ") + amountText(amount));
    showRows();
}

void frmSalePayment::setCustomerName(const QString& name) {
    lblCompanyName->setText(name);
}

void frmSalePayment::FillTextValue() {
    const double left = PaymentSplit::remaining(m_payments, m_docSum);
    if (left > 0) {
        txtAmount->setValue(left);
    } else {
        txtAmount->clear();
    }
    txtAmount->selectAll();
    txtAmount->setFocus();
    showRows();
}

const frmSalePayment::AccountChoice* frmSalePayment::choiceOf(int accountingGroupId) const {
    for (const AccountChoice& choice : m_accounts) {
        if (choice.account.id == accountingGroupId) {
            return &choice;
        }
    }
    return nullptr;
}

bool frmSalePayment::addRow(SalePayment::Kind kind, int accountingGroupId, double amount) {
    const AccountChoice* choice = choiceOf(accountingGroupId);
    if (choice == nullptr || amount <= 0) {
        m_messages.show(PaymentSplit::incompleteRowMessage(), MessageStyle::Critical);
        return false;
    }
    SalePayment payment;
    payment.kind = kind;
    payment.accountingGroupId = accountingGroupId;
    payment.posId = choice->posId;
    payment.amount = amount;
    m_payments.append(payment);
    showRows();
    return true;
}

void frmSalePayment::addEnteredRow() {
    const QVariant account = cmbAccount->currentData();
    const auto kind = static_cast<SalePayment::Kind>(cmbPaymentKind->currentData().toInt());
    if (addRow(kind, account.isValid() ? account.toInt() : 0, txtAmount->value())) {
        FillTextValue();
    }
}

void frmSalePayment::deleteCurrentRow() {
    const int row = grdPayments->currentRow();
    if (row < 0 || row >= m_payments.size()) {
        return;
    }
    m_payments.removeAt(row);
    FillTextValue();
}

void frmSalePayment::showPosId() {
    const AccountChoice* choice = choiceOf(cmbAccount->currentData().toInt());
    lblPosId->setText(choice != nullptr && !choice->posId.isEmpty()
                          ? QStringLiteral("شماره پایانه : ") + choice->posId
                          : QString());
}

void frmSalePayment::showRows() {
    grdPayments->setRowCount(int(m_payments.size()));
    for (int row = 0; row < m_payments.size(); ++row) {
        const SalePayment& p = m_payments.at(row);
        const AccountChoice* choice = choiceOf(p.accountingGroupId);
        grdPayments->setItem(row, KindColumn, cell(PaymentSplit::kindName(p.kind)));
        grdPayments->setItem(row, AccountColumn,
                             cell(choice != nullptr ? choice->account.name : QString()));
        grdPayments->setItem(row, PosColumn, cell(p.posId));
        grdPayments->setItem(row, AmountColumn, cell(amountText(p.amount)));
    }
    lblRemaining->setText(QStringLiteral("مانده : ") +
                          amountText(PaymentSplit::remaining(m_payments, m_docSum)));
}

void frmSalePayment::accept() {
    if (!PaymentSplit::addsUp(m_payments, m_docSum)) {
        m_messages.show(PaymentSplit::mismatchMessage(PaymentSplit::total(m_payments), m_docSum),
                        MessageStyle::Critical);
        return;
    }
    QDialog::accept();
}

}  // namespace sandogh
