#include "ui/sales/frmSaleList.h"

#include <QComboBox>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLineEdit>
#include <QPushButton>
#include <QTableView>
#include <QVBoxLayout>

#include "app/AppContext.h"
#include "devices/CompanionHandOff.h"
#include "sales/SaleDelete.h"
#include "sales/SaleReceipt.h"
#include "settings/MachineSettings.h"

namespace sandogh {

namespace {

QLineEdit* edit(QWidget* parent, const char* name) {
    auto* e = new QLineEdit(parent);
    e->setObjectName(QString::fromLatin1(name));
    return e;
}

QPushButton* button(QWidget* parent, const char* name, const QString& caption) {
    auto* b = new QPushButton(caption, parent);
    b->setObjectName(QString::fromLatin1(name));
    return b;
}

}  // namespace

frmSaleList::frmSaleList(AppContext& context, int transType, QWidget* parent)
    : frmSaleList(context, transType, DocumentFamily::Ordinary, parent) {}

frmSaleList::frmSaleList(AppContext& context, int transType, DocumentFamily family, QWidget* parent)
    : QWidget(parent)
    , m_context(context)
    , m_family(family)
    , m_model(new SaleListModel(context.database(), family, this)) {
    const bool internal = family == DocumentFamily::Internal;
    setObjectName(internal ? QStringLiteral("frmSaleInterList") : QStringLiteral("frmSaleList"));
    setLayoutDirection(Qt::RightToLeft);
    cmbChoice = new QComboBox(this);
    cmbChoice->setObjectName(QStringLiteral("cmbChoice"));
    cmbChoice->addItems(SaleList::choiceNames());
    txtNo = edit(this, "txtNo");
    txtDate = edit(this, "txtDate");
    txtCustomer = edit(this, "txtCustomer");
    txtBase = edit(this, "txtBase");
    cmdSearch = button(this, "cmdSearch", QStringLiteral("جستجو"));
    cmdPrint = button(this, "cmdPrint", QStringLiteral("چاپ"));
    cmdDelete = button(this, "cmdDelete", QStringLiteral("حذف"));
    cmdEdit = button(this, "cmdEdit", QStringLiteral("ويرايش"));
    Grid1 = new QTableView(this);
    Grid1->setObjectName(QStringLiteral("Grid1"));
    Grid1->setModel(m_model);
    Grid1->setSelectionBehavior(QAbstractItemView::SelectRows);
    Grid1->setSelectionMode(QAbstractItemView::SingleSelection);
    Grid1->setEditTriggers(QAbstractItemView::NoEditTriggers);
    Grid1->horizontalHeader()->setStretchLastSection(true);

    auto* filters = new QFormLayout;
    filters->addRow(QStringLiteral("نمايش"), cmbChoice);
    filters->addRow(QStringLiteral("شماره"), txtNo);
    filters->addRow(QStringLiteral("تاريخ"), txtDate);
    filters->addRow(internal ? QStringLiteral("شعبه") : QStringLiteral("مشتري"), txtCustomer);
    filters->addRow(QStringLiteral("مبنا"), txtBase);
    if (internal) {
        // Internal documents have no Base and no voucher.
        filters->setRowVisible(txtBase, false);
        for (int column :
             {SaleListModel::Base, SaleListModel::VoucherCode, SaleListModel::DocumentHID}) {
            Grid1->setColumnHidden(column, true);
        }
    }
    auto* buttons = new QHBoxLayout;
    buttons->addWidget(cmdSearch);
    buttons->addWidget(cmdPrint);
    buttons->addWidget(cmdDelete);
    buttons->addWidget(cmdEdit);
    buttons->addStretch();
    auto* layout = new QVBoxLayout(this);
    layout->addLayout(filters);
    layout->addLayout(buttons);
    layout->addWidget(Grid1, 1);

    connect(cmdSearch, &QPushButton::clicked, this, &frmSaleList::FillGrid);
    connect(cmbChoice, &QComboBox::currentIndexChanged, this, &frmSaleList::FillGrid);
    for (QLineEdit* e : {txtNo, txtDate, txtCustomer, txtBase}) {
        connect(e, &QLineEdit::returnPressed, this, &frmSaleList::FillGrid);
    }
    connect(cmdPrint, &QPushButton::clicked, this, &frmSaleList::cmdPrint_Click);
    connect(cmdDelete, &QPushButton::clicked, this, &frmSaleList::cmdDelete_Click);
    connect(cmdEdit, &QPushButton::clicked, this, &frmSaleList::cmdEdit_Click);
    setTransType(transType);
}

frmSaleList::~frmSaleList() = default;

void frmSaleList::setTransType(int transType) {
    m_transType = transType;
    // The internal documents' editor is not opened from this list.
    cmdEdit->setVisible(transType == 2 || transType == 3);
    FillGrid();
}

void frmSaleList::FillGrid() {
    SaleListQuery::Filter filter;
    filter.transType = m_transType;
    filter.docNo = txtNo->text();
    filter.docDate = txtDate->text();
    filter.customer = txtCustomer->text();
    filter.base = txtBase->text();
    m_model->load(static_cast<SaleList::Choice>(cmbChoice->currentIndex()), filter);
}

const SaleListQuery::Row* frmSaleList::selectedRow() const {
    const QModelIndex current = Grid1->currentIndex();
    if (!current.isValid() || current.row() >= m_model->rowCount()) {
        return nullptr;
    }
    return &m_model->row(current.row());
}

bool frmSaleList::cmdPrint_Click() {
    const SaleListQuery::Row* row = selectedRow();
    if (row == nullptr) {
        return false;
    }
    const MachineSettings& settings = m_context.machineSettings();
    if (m_family == DocumentFamily::Internal) {
        // The companion's list reports read the ordinary documents: an internal one goes
        // through the receipt path, which hands it over itself when the companion is there.
        SaleReceipt receipt(m_context.database(), settings, m_context.messages(),
                            m_context.launcher(), m_context.programFolder(),
                            &m_context.rawPrinter(), nullptr);
        ReceiptOptions options;
        options.family = DocumentFamily::Internal;
        return receipt.print(row->code, options);
    }
    CompanionHandOff companion(m_context.launcher(),
                               settings.companionProgramPath(m_context.programFolder()));
    if (companion.isPresent()) {
        return companion.send(SaleList::printCommand(m_transType) + QString::number(row->code));
    }
    SaleReceipt receipt(m_context.database(), settings, m_context.messages(), m_context.launcher(),
                        m_context.programFolder(), &m_context.rawPrinter(), nullptr);
    return receipt.print(row->code);
}

bool frmSaleList::cmdDelete_Click() {
    const SaleListQuery::Row* row = selectedRow();
    if (row == nullptr) {
        return false;
    }
    SaleDelete deleter(m_context.database(), m_context.messages(), m_context.clock(),
                       {m_context.user().id, m_context.station().id});
    const SaleDelete::Outcome outcome =
        m_family == DocumentFamily::Internal
            ? deleter.deleteInternal(m_transType, row->docNo)
            : deleter.deleteOne(m_transType, row->docNo, row->docDate);
    const bool deleted = outcome == SaleDelete::Outcome::Deleted;
    if (deleted) {
        FillGrid();
    }
    return deleted;
}

bool frmSaleList::cmdEdit_Click() {
    const SaleListQuery::Row* row = selectedRow();
    if (row == nullptr || (m_transType != 2 && m_transType != 3)) {
        return false;
    }
    emit editRequested(row->code, row->customerName, row->customerId);
    return true;
}

}  // namespace sandogh
