#include "ui/purchase/frmBuy.h"

#include <QComboBox>
#include <QFormLayout>
#include <QGridLayout>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QShortcut>
#include <QTableView>
#include <QVBoxLayout>

#include "app/AppContext.h"
#include "data/procedures/StockDocumentHeader.h"
#include "data/repositories/PartiesRepository.h"
#include "data/repositories/PurchaseDocuments.h"
#include "purchase/PurchaseSaver.h"
#include "purchase/PurchaseTexts.h"
#include "settings/MessageService.h"
#include "ui/widgets/AmountEdit.h"
#include "ui/widgets/JalaliDateEdit.h"

namespace sandogh {

namespace {

template <typename T>
T* named(T* widget, const char* name) {
    widget->setObjectName(QString::fromLatin1(name));
    return widget;
}

// Puts the combo box on the item whose data is key; the empty first item for none.
void choose(QComboBox* box, int key) {
    const int index = box->findData(key);
    box->setCurrentIndex(index >= 0 ? index : 0);
}

void fill(QComboBox* box, const QList<PurchaseDocuments::Item>& items) {
    box->addItem(QString(), 0);
    for (const PurchaseDocuments::Item& item : items) {
        box->addItem(item.name, item.key);
    }
}

std::optional<int> chosen(const QComboBox* box) {
    const int key = box->currentData().toInt();
    return key != 0 ? std::optional<int>(key) : std::nullopt;
}

}  // namespace

frmBuy::frmBuy(Database& database, MessageService& messages, const Clock& clock, int userId,
               bool allowed, bool isReturn, QWidget* parent)
    : QWidget(parent)
    , m_session(database, messages, clock)
    , m_database(database)
    , m_messages(messages)
    , m_clock(clock)
    , m_allowed(allowed) {
    setObjectName(QStringLiteral("frmBuy"));
    setLayoutDirection(Qt::RightToLeft);
    setWindowTitle(isReturn ? PurchaseTexts::returnCaption() : PurchaseTexts::purchaseCaption());
    m_session.setUser(userId);

    lblCode = named(new QLabel(this), "lblCode");
    cmbSupplier = named(new QComboBox(this), "cmbSupplier");
    txtDocNo = named(new QLineEdit(this), "txtDocNo");
    txtDate = named(new JalaliDateEdit(this), "txtDate");
    cmbWarehouse = named(new QComboBox(this), "cmbWarehouse");
    cmbPayType = named(new QComboBox(this), "cmbPayType");
    cmbAccountingGroup = named(new QComboBox(this), "cmbAccountingGroup");
    txtBase = named(new QLineEdit(this), "txtBase");
    txtNote = named(new QLineEdit(this), "txtNote");
    txtDiscount = named(new AmountEdit(this), "txtDiscount");
    txtSarbar = named(new AmountEdit(this), "txtSarbar");
    txtBarcode = named(new QLineEdit(this), "txtBarcode");
    txtBarcode->setPlaceholderText(QStringLiteral("بارکد، سپس Enter"));
    grdLines = named(new QTableView(this), "grdLines");
    lblCount = named(new QLabel(this), "lblCount");
    lblSum = named(new QLabel(this), "lblSum");
    lblTax = named(new QLabel(this), "lblTax");
    lblPayable = named(new QLabel(this), "lblPayable");
    txtPreFactor = named(new QLineEdit(this), "txtPreFactor");
    cmdPreFactor =
        named(new QPushButton(QStringLiteral("از پیش‌فاکتور"), this), "cmdPreFactor");
    cmbSourceType = named(new QComboBox(this), "cmbSourceType");
    cmbSourceType->addItem(QStringLiteral("خرید"), procedures::kPurchase);
    cmbSourceType->addItem(QStringLiteral("برگشت از خرید"), procedures::kPurchaseReturn);
    txtSourceNo = named(new QLineEdit(this), "txtSourceNo");
    cmdLoadDocument = named(new QPushButton(QStringLiteral("از سند"), this), "cmdLoadDocument");
    cmdSave = named(new QPushButton(QStringLiteral("ذخیره (F5)"), this), "cmdSave");

    for (const Party& p : PartiesRepository(database).list(
             Party::kCompany, PartiesRepository::SearchColumn::None, {}, false)) {
        cmbSupplier->addItem(p.name, p.counter);
    }
    cmbSupplier->insertItem(0, QString(), 0);
    const PurchaseDocuments::Lists lists = PurchaseDocuments(database).lists();
    fill(cmbWarehouse, lists.warehouses);
    fill(cmbPayType, lists.paymentKinds);
    fill(cmbAccountingGroup, lists.accountingGroups);

    grdLines->setModel(&m_session.lines());
    grdLines->setSelectionBehavior(QAbstractItemView::SelectItems);
    grdLines->setSelectionMode(QAbstractItemView::SingleSelection);
    grdLines->setEditTriggers(QAbstractItemView::AnyKeyPressed | QAbstractItemView::EditKeyPressed |
                              QAbstractItemView::DoubleClicked);
    grdLines->horizontalHeader()->setSectionResizeMode(PurchaseLinesModel::ColName,
                                                       QHeaderView::Stretch);

    auto* header = new QGridLayout;
    const auto place = [header](int row, int column, const QString& caption, QWidget* field) {
        header->addWidget(new QLabel(caption), row, column * 2);
        header->addWidget(field, row, column * 2 + 1);
    };
    place(0, 0, QStringLiteral("تأمین‌کننده"), cmbSupplier);
    place(0, 1, QStringLiteral("شماره فاکتور"), txtDocNo);
    place(0, 2, QStringLiteral("تاریخ"), txtDate);
    place(0, 3, QStringLiteral("کد سند"), lblCode);
    place(1, 0, QStringLiteral("حساب خرید"), cmbAccountingGroup);
    place(1, 1, QStringLiteral("انبار"), cmbWarehouse);
    place(1, 2, QStringLiteral("نوع پرداخت"), cmbPayType);
    place(1, 3, QStringLiteral("عطف"), txtBase);
    place(2, 0, QStringLiteral("توضیحات"), txtNote);
    place(2, 1, QStringLiteral("پیش‌فاکتور"), txtPreFactor);
    header->addWidget(cmdPreFactor, 2, 4);
    header->addWidget(cmbSourceType, 2, 5);
    header->addWidget(txtSourceNo, 2, 6);
    header->addWidget(cmdLoadDocument, 2, 7);

    auto* totals = new QFormLayout;
    totals->addRow(QStringLiteral("تعداد اقلام"), lblCount);
    totals->addRow(QStringLiteral("جمع"), lblSum);
    totals->addRow(QStringLiteral("مالیات"), lblTax);
    totals->addRow(QStringLiteral("تخفیف"), txtDiscount);
    totals->addRow(QStringLiteral("سربار"), txtSarbar);
    totals->addRow(QStringLiteral("قابل پرداخت"), lblPayable);
    totals->addRow(cmdSave);

    auto* bottom = new QHBoxLayout;
    bottom->addWidget(grdLines, 1);
    bottom->addLayout(totals);
    auto* layout = new QVBoxLayout(this);
    layout->addLayout(header);
    layout->addWidget(txtBarcode);
    layout->addLayout(bottom, 1);

    txtBarcode->installEventFilter(this);
    grdLines->installEventFilter(this);
    connect(&m_session.lines(), &PurchaseLinesModel::linesChanged, this, &frmBuy::showTotals);
    connect(txtDiscount, &QLineEdit::textChanged, this, &frmBuy::showTotals);
    connect(txtSarbar, &QLineEdit::textChanged, this, &frmBuy::showTotals);
    connect(cmdSave, &QPushButton::clicked, this, [this] { cmdSave_Click(); });
    connect(cmdPreFactor, &QPushButton::clicked, this, [this] { cmdPreFactor_Click(); });
    connect(cmdLoadDocument, &QPushButton::clicked, this, [this] { cmdLoadDocument_Click(); });
    for (const QKeySequence& key : {QKeySequence(Qt::Key_F5), QKeySequence(Qt::CTRL | Qt::Key_S)}) {
        auto* shortcut = new QShortcut(key, this);
        shortcut->setContext(Qt::WidgetWithChildrenShortcut);
        connect(shortcut, &QShortcut::activated, this, [this] { cmdSave_Click(); });
    }

    m_session.newDocument(isReturn);
    showHeader();
    showTotals();
    txtBarcode->setFocus(Qt::OtherFocusReason);
}

frmBuy::~frmBuy() = default;

frmBuy* frmBuy::create(AppContext& context, bool isReturn) {
    const UserAccount& user = context.user();
    return new frmBuy(context.database(), context.messages(), context.clock(), user.id,
                      user.permissions().allows(Permission::Purchases), isReturn);
}

bool frmBuy::allowedOrSay() {
    if (!m_allowed) {
        m_messages.show(PurchaseTexts::forbidden(), MessageStyle::Critical);
    }
    return m_allowed;
}

void frmBuy::txtBarcode_Enter() {
    if (!allowedOrSay()) {
        return;
    }
    if (m_session.addBarcode(txtBarcode->text())) {
        txtBarcode->clear();
        grdLines->scrollToBottom();
    } else {
        txtBarcode->selectAll();
    }
}

void frmBuy::readHeader() {
    PurchaseHeader& h = m_session.header();
    h.supplier = cmbSupplier->currentData().toInt();
    h.docNo = txtDocNo->text();
    h.docDate = txtDate->dateText();
    h.warehouseCode = chosen(cmbWarehouse);
    h.payType = chosen(cmbPayType);
    h.accountingGroupId = cmbAccountingGroup->currentData().toInt();
    h.base = txtBase->text();
    h.note = txtNote->text();
    h.discount = txtDiscount->value();
    h.sarbar = txtSarbar->value();
}

void frmBuy::showHeader() {
    const PurchaseHeader& h = m_session.header();
    lblCode->setText(QString::number(m_session.proposedCode()));
    choose(cmbSupplier, h.supplier);
    txtDocNo->setText(h.docNo);
    txtDate->setDateText(h.docDate);
    choose(cmbWarehouse, h.warehouseCode.value_or(0));
    choose(cmbPayType, h.payType.value_or(0));
    choose(cmbAccountingGroup, h.accountingGroupId);
    txtBase->setText(h.base);
    txtNote->setText(h.note);
    txtDiscount->setValue(h.discount);
    txtSarbar->setValue(h.sarbar);
}

void frmBuy::showTotals() {
    const PurchaseTotals t = m_session.totals();
    lblCount->setText(QString::number(t.lineCount));
    lblSum->setText(PurchaseTotals::format(t.sum));
    lblTax->setText(PurchaseTotals::format(t.tax));
    lblPayable->setText(PurchaseTotals::format(t.sum - txtDiscount->value() + txtSarbar->value()));
}

void frmBuy::newDocument() {
    m_session.newDocument(m_session.isReturn());
    showHeader();
    showTotals();
    txtBarcode->setFocus(Qt::OtherFocusReason);
}

PurchaseSaveResult frmBuy::cmdSave_Click() {
    if (!allowedOrSay()) {
        return {};
    }
    readHeader();
    const PurchaseSaveResult r = PurchaseSaver(m_database, m_messages, m_clock).save(m_session);
    if (r.saved) {
        m_messages.show(PurchaseTexts::saved(), MessageStyle::Information,
                        PurchaseTexts::noticeTitle());
        newDocument();
    } else {
        // The number may have been read as digits: the box shows what will be saved.
        txtDocNo->setText(m_session.header().docNo);
    }
    return r;
}

bool frmBuy::cmdPreFactor_Click() {
    if (!allowedOrSay()) {
        return false;
    }
    bool ok = false;
    const qint64 code = txtPreFactor->text().trimmed().toLongLong(&ok);
    readHeader();
    if (!ok || !m_session.loadPreInvoice(code)) {
        m_messages.show(PurchaseTexts::sourceNotFound(), MessageStyle::Critical);
        return false;
    }
    showHeader();
    return true;
}

bool frmBuy::cmdLoadDocument_Click() {
    if (!allowedOrSay()) {
        return false;
    }
    readHeader();
    if (!m_session.loadDocument(cmbSourceType->currentData().toInt(), txtSourceNo->text())) {
        m_messages.show(PurchaseTexts::sourceNotFound(), MessageStyle::Critical);
        return false;
    }
    showHeader();
    return true;
}

void frmBuy::editLastQuantity() {
    const int row = m_session.lines().lineCount() - 1;
    if (row < 0) {
        return;
    }
    const QModelIndex cell = m_session.lines().index(row, PurchaseLinesModel::ColQty);
    grdLines->setFocus(Qt::OtherFocusReason);
    grdLines->setCurrentIndex(cell);
}

bool frmBuy::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() != QEvent::KeyPress) {
        return QWidget::eventFilter(watched, event);
    }
    const auto* key = static_cast<QKeyEvent*>(event);
    const bool plain = key->modifiers() == Qt::NoModifier || key->modifiers() == Qt::KeypadModifier;
    // F5 from the two places the keyboard lives, should the window's shortcut not have
    // taken it (a window that is not the active one).
    if ((watched == txtBarcode || watched == grdLines) && plain && key->key() == Qt::Key_F5) {
        cmdSave_Click();
        return true;
    }
    if (watched == txtBarcode && plain) {
        if (key->key() == Qt::Key_Return || key->key() == Qt::Key_Enter) {
            txtBarcode_Enter();
            return true;
        }
        if (key->key() == Qt::Key_Down || key->key() == Qt::Key_F2) {
            editLastQuantity();
            return true;
        }
    }
    if (watched == grdLines && plain) {
        if (key->key() == Qt::Key_Escape) {
            txtBarcode->setFocus(Qt::OtherFocusReason);
            return true;
        }
        if (key->key() == Qt::Key_Delete && grdLines->currentIndex().isValid()) {
            if (allowedOrSay()) {
                m_session.lines().removeLine(grdLines->currentIndex().row());
            }
            return true;
        }
    }
    return QWidget::eventFilter(watched, event);
}

}  // namespace sandogh
