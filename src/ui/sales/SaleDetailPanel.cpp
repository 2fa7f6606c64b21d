#include "ui/sales/SaleDetailPanel.h"

#include <QButtonGroup>
#include <QComboBox>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QRadioButton>

#include "sales/SaleSession.h"
#include "sales/SaleSettlement.h"
#include "ui/sales/SaleTotalsPanel.h"
#include "ui/widgets/JalaliDateEdit.h"

namespace sandogh {

namespace {

QRadioButton* radio(QWidget* parent, const QString& caption, const char* name) {
    auto* button = new QRadioButton(caption, parent);
    button->setObjectName(QString::fromLatin1(name));
    return button;
}

QWidget* pair(QWidget* parent, QWidget* first, QWidget* second) {
    auto* row = new QWidget(parent);
    auto* layout = new QHBoxLayout(row);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(first);
    layout->addWidget(second);
    layout->addStretch(1);
    return row;
}

}  // namespace

SaleDetailPanel::SaleDetailPanel(SaleSession& sale, QWidget* parent)
    : QFrame(parent)
    , rdoType(new QButtonGroup(this))
    , rdoTypeSale(radio(this, QStringLiteral("فروش"), "rdoType0"))
    , rdoTypeReturn(radio(this, QStringLiteral("مرجوعی فروش (Ctrl+M)"), "rdoType1"))
    , rdoSalesType(new QButtonGroup(this))
    , rdoSalesTypeFirst(radio(this, QStringLiteral("قیمت فروش"), "rdoSalesType0"))
    , rdoSalesTypeSecond(radio(this, QStringLiteral("قیمت دوم"), "rdoSalesType1"))
    , cmbWarehouseSelector(new QComboBox(this))
    , cmbReturnCause(new QComboBox(this))
    , cmbPayType(new QComboBox(this))
    , txtDate(new JalaliDateEdit(this))
    , txtNote(new QLineEdit(this))
    , m_sale(sale) {
    setObjectName(QStringLiteral("frmDetail"));
    setFrameShape(QFrame::StyledPanel);
    rdoType->setObjectName(QStringLiteral("rdoType"));
    rdoType->addButton(rdoTypeSale, kSaleButton);
    rdoType->addButton(rdoTypeReturn, kReturnButton);
    rdoSalesType->setObjectName(QStringLiteral("rdoSalesType"));
    rdoSalesType->addButton(rdoSalesTypeFirst, SaleSession::kFirstSalesType);
    rdoSalesType->addButton(rdoSalesTypeSecond, SaleSession::kSecondSalesType);
    cmbWarehouseSelector->setObjectName(QStringLiteral("cmbWarehouseSelector"));
    cmbReturnCause->setObjectName(QStringLiteral("cmbReturnCause"));
    cmbPayType->setObjectName(QStringLiteral("cmbPayType"));
    txtDate->setObjectName(QStringLiteral("txtDate"));
    txtNote->setObjectName(QStringLiteral("txtNote"));

    connect(rdoType, &QButtonGroup::idClicked, this, [this](int id) {
        m_sale.setMode(id == kReturnButton ? SaleMode::Return : SaleMode::Sale);
    });
    connect(rdoSalesType, &QButtonGroup::idClicked, this, &SaleDetailPanel::onSalesTypeClicked);
    connect(cmbWarehouseSelector, &QComboBox::currentIndexChanged, this,
            &SaleDetailPanel::onWarehouseChosen);
    connect(txtDate, &JalaliDateEdit::dateChanged, this,
            [this](const QString& date) { m_sale.setSaleDate(date); });
    connect(&m_sale, &SaleSession::modeChanged, this, &SaleDetailPanel::showMode);
    connect(&m_sale, &SaleSession::salesTypeChanged, this, &SaleDetailPanel::showSalesType);

    buildLayout();
    showMode(m_sale.mode());
    showSalesType(m_sale.salesType());
    clearDocument();
}

void SaleDetailPanel::buildLayout() {
    auto* form = new QFormLayout(this);
    form->setContentsMargins(8, 8, 8, 8);
    form->addRow(QStringLiteral("نوع فاکتور:"), pair(this, rdoTypeSale, rdoTypeReturn));
    form->addRow(QStringLiteral("نحوه فروش:"), pair(this, rdoSalesTypeFirst, rdoSalesTypeSecond));
    form->addRow(QStringLiteral("انبار:"), cmbWarehouseSelector);
    form->addRow(QStringLiteral("علت مرجوعی:"), cmbReturnCause);
    form->addRow(QStringLiteral("نوع پرداخت:"), cmbPayType);
    form->addRow(QStringLiteral("تاریخ:"), txtDate);
    form->addRow(QStringLiteral("توضیحات:"), txtNote);
}

void SaleDetailPanel::fill(QComboBox* combo, const QList<SaleScreenLists::Item>& items) {
    combo->clear();
    // None chosen: the document keeps no value of this list.
    combo->addItem(QString(), QVariant());
    for (const SaleScreenLists::Item& item : items) {
        combo->addItem(item.name, item.code);
    }
}

void SaleDetailPanel::setWarehouses(const QList<SaleScreenLists::Item>& warehouses) {
    fill(cmbWarehouseSelector, warehouses);
}

void SaleDetailPanel::setReturnCauses(const QList<SaleScreenLists::Item>& causes) {
    fill(cmbReturnCause, causes);
}

void SaleDetailPanel::setPaymentKinds(const QList<SaleScreenLists::Item>& kinds) {
    fill(cmbPayType, kinds);
    chooseFirstPaymentKind();
}

void SaleDetailPanel::chooseFirstPaymentKind() {
    // Most sales are paid the shop's first way (cash): it is chosen for every new sale,
    // and the cashier changes it only when the customer pays otherwise.
    cmbPayType->setCurrentIndex(cmbPayType->count() > 1 ? 1 : 0);
}

void SaleDetailPanel::clearDocument() {
    cmbReturnCause->setCurrentIndex(0);
    chooseFirstPaymentKind();
    txtNote->clear();
    // The next sale is dated today unless the cashier types another date.
    m_sale.setSaleDate(QString());
    const bool blocked = txtDate->blockSignals(true);
    txtDate->setDateText(m_sale.saleDate());
    txtDate->blockSignals(blocked);
}

void SaleDetailPanel::showMode(SaleMode mode) {
    (mode == SaleMode::Return ? rdoTypeReturn : rdoTypeSale)->setChecked(true);
    cmbReturnCause->setEnabled(mode == SaleMode::Return);
}

void SaleDetailPanel::showSalesType(int salesType) {
    if (QAbstractButton* button = rdoSalesType->button(salesType)) {
        button->setChecked(true);
    }
}

void SaleDetailPanel::onSalesTypeClicked(int salesType) {
    if (!m_sale.setSalesType(salesType)) {
        // Refused with lines on the grid (the message has been shown): the choice stays.
        showSalesType(m_sale.salesType());
    }
}

void SaleDetailPanel::onWarehouseChosen(int index) {
    const QVariant code = cmbWarehouseSelector->itemData(index);
    m_sale.setWarehouse(code.isValid() ? code.toString() : QString());
}

void SaleDetailPanel::fillSettlement(SaleSettlement& settlement) const {
    settlement.payType = SaleTotalsPanel::chosenKind(cmbPayType);
    settlement.returnCauseId = SaleTotalsPanel::chosenKind(cmbReturnCause);
    settlement.note = txtNote->text().trimmed();
}

}  // namespace sandogh
