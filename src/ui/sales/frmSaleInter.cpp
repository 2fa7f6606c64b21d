#include "ui/sales/frmSaleInter.h"

#include <QCheckBox>
#include <QCloseEvent>
#include <QComboBox>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

#include "app/AppContext.h"
#include "common/AmountText.h"
#include "sales/InternalSaleSaver.h"
#include "sales/InternalSaleSession.h"
#include "sales/ReceiptOptions.h"
#include "sales/SaleKeyDispatch.h"
#include "sales/SaleKeyMap.h"
#include "sales/SaleReceipt.h"
#include "sales/SaleSession.h"
#include "sales/SettlingPause.h"
#include "settings/Clock.h"
#include "settings/MachineSettings.h"
#include "ui/sales/SaleGridView.h"

namespace sandogh {

namespace {

QString amount(double value) {
    return QString::fromStdString(AmountText::formatWhole(value));
}

}  // namespace

frmSaleInter::frmSaleInter(AppContext& context, QWidget* parent)
    : QWidget(parent)
    , m_context(context)
    , m_sale(std::make_unique<InternalSaleSession>(context.database(), context.machineSettings(),
                                                   context.messages(), context.clock()))
    , m_saver(std::make_unique<InternalSaleSaver>(context.database(), context.messages(),
                                                  context.clock())) {
    setObjectName(QStringLiteral("frmSaleInter"));
    setLayoutDirection(Qt::RightToLeft);
    SaleSession& entry = m_sale->entry();
    if (context.station().id != 0) {
        entry.setStation(context.station().id);
    }
    if (context.user().id != 0) {
        entry.setUser(context.user().id, context.user().userName);
    }
    buildControls();
    buildLayout();
    loadBranches();
    m_saver->setReceiptHook(
        [this](const InternalSaleResult& saved, const InternalSaleSession&) { print(saved); });
    connect(&entry, &SaleSession::totalChanged, this, [this](double total) {
        txtSum->setText(amount(total));
        lblStock->setText(amount(m_sale->lastStock()));
    });
    connect(&entry, &SaleSession::modeChanged, this, [this] { showMode(); });
    showMode();
    showDesk();
    txtBarcode->setFocus();
}

frmSaleInter::~frmSaleInter() = default;

frmSaleInter* frmSaleInter::editor(AppContext& context, qint64 code, QWidget* parent) {
    auto* screen = new frmSaleInter(context, parent);
    if (!screen->m_sale->loadDocument(code)) {
        delete screen;
        return nullptr;
    }
    screen->setObjectName(QStringLiteral("frmSaleInterUpdate"));
    screen->txtNo->setText(screen->m_sale->docNo());
    screen->txtAtf->setText(screen->m_sale->returnedInvoice());
    screen->showBranch();
    screen->showMode();
    return screen;
}

void frmSaleInter::showBranch() {
    const int index = cboBranch->findData(m_sale->branchId());
    if (index >= 0) {
        cboBranch->setCurrentIndex(index);
    }
}

void frmSaleInter::buildControls() {
    const auto named = [this](auto* widget, const char* name) {
        widget->setObjectName(QString::fromLatin1(name));
        return widget;
    };
    lblCaption = named(new QLabel(this), "lblCaption");
    cboBranch = named(new QComboBox(this), "cboBranch");
    txtNo = named(new QLineEdit(this), "txtNo");
    lblAtf = named(new QLabel(QStringLiteral("شماره فاكتور"), this), "lblAtf");
    txtAtf = named(new QLineEdit(this), "txtAtf");
    txtBarcode = named(new QLineEdit(this), "txtBarcode");
    Grid1 = named(new SaleGridView(m_sale->entry().linesModel(), this), "Grid1");
    lblStock = named(new QLabel(this), "lblStock");
    txtSum = named(new QLineEdit(this), "txtSum");
    txtSum->setReadOnly(true);
    lblPrevFactor = named(new QLabel(this), "lblPrevFactor");
    lblPrevPrice = named(new QLabel(this), "lblPrevPrice");
    lblDailySale = named(new QLabel(this), "lblDailySale");
    lblDailyReceived = named(new QLabel(this), "lblDailyReceived");
    chkPrint = named(new QCheckBox(QStringLiteral("چاپ"), this), "chkPrint");
    chkPrint->setChecked(true);
    chkReturn = named(new QCheckBox(QStringLiteral("مرجوعي"), this), "chkReturn");
    cmdSave = named(new QPushButton(QStringLiteral("ثبت"), this), "cmdSave");
    cmdDel = named(new QPushButton(QStringLiteral("حذف سطر"), this), "cmdDel");
    cmdExit = named(new QPushButton(QStringLiteral("خروج"), this), "cmdExit");
    QFont big = txtBarcode->font();
    big.setPointSize(big.pointSize() + 6);
    txtBarcode->setFont(big);
    txtSum->setFont(big);
    lblCaption->setFont(big);

    txtBarcode->installEventFilter(this);
    Grid1->installEventFilter(this);
    connect(txtNo, &QLineEdit::textEdited, this,
            [this](const QString& text) { m_sale->setDocNo(text, true); });
    connect(txtAtf, &QLineEdit::textChanged, this,
            [this](const QString& text) { m_sale->setReturnedInvoice(text); });
    connect(cboBranch, &QComboBox::currentIndexChanged, this, [this](int index) {
        m_sale->setBranch(
            CenterBranch{cboBranch->itemData(index).toInt(), cboBranch->itemText(index)});
    });
    connect(chkReturn, &QCheckBox::toggled, this,
            [this](bool on) { m_sale->entry().setMode(on ? SaleMode::Return : SaleMode::Sale); });
    connect(cmdSave, &QPushButton::clicked, this, [this] { save(); });
    connect(cmdDel, &QPushButton::clicked, this,
            [this] { m_sale->entry().removeLine(Grid1->selectedRow()); });
    connect(cmdExit, &QPushButton::clicked, this, [this] { close(); });
}

void frmSaleInter::buildLayout() {
    auto* top = new QHBoxLayout;
    top->addWidget(lblCaption);
    top->addStretch();
    top->addWidget(new QLabel(QStringLiteral("شعبه"), this));
    top->addWidget(cboBranch);
    top->addWidget(new QLabel(QStringLiteral("شماره"), this));
    top->addWidget(txtNo);
    top->addWidget(chkReturn);
    top->addWidget(lblAtf);
    top->addWidget(txtAtf);

    auto* entryRow = new QHBoxLayout;
    entryRow->addWidget(txtBarcode, 1);
    entryRow->addWidget(new QLabel(QStringLiteral("موجودي"), this));
    entryRow->addWidget(lblStock);

    auto* desk = new QGridLayout;
    desk->addWidget(lblPrevFactor, 0, 0);
    desk->addWidget(lblPrevPrice, 0, 1);
    desk->addWidget(lblDailySale, 1, 0);
    desk->addWidget(lblDailyReceived, 1, 1);
    desk->addWidget(new QLabel(QStringLiteral("جمع"), this), 0, 2);
    desk->addWidget(txtSum, 0, 3, 2, 1);

    auto* buttons = new QHBoxLayout;
    buttons->addWidget(cmdSave);
    buttons->addWidget(chkPrint);
    buttons->addWidget(cmdDel);
    buttons->addStretch();
    buttons->addWidget(cmdExit);

    auto* layout = new QVBoxLayout(this);
    layout->addLayout(top);
    layout->addLayout(entryRow);
    layout->addWidget(Grid1, 1);
    layout->addLayout(desk);
    layout->addLayout(buttons);
}

void frmSaleInter::loadBranches() {
    cboBranch->clear();
    if (const auto branches = m_sale->branches()) {
        for (const CenterBranch& branch : *branches) {
            cboBranch->addItem(branch.name, branch.id);
        }
    }
    cboBranch->setCurrentIndex(-1);
    m_sale->setBranch({});
}

void frmSaleInter::showMode() {
    const bool isReturn = m_sale->entry().mode() == SaleMode::Return;
    lblCaption->setText(m_sale->entry().caption());
    lblAtf->setVisible(isReturn);
    txtAtf->setVisible(isReturn);
    chkReturn->setChecked(isReturn);
    if (!m_sale->docNoTyped()) {
        txtNo->setText(m_sale->proposeDocNo());
    }
}

void frmSaleInter::showTotals() {
    // As on the sale screen, the day's totals are shown only while the desk shows them.
    if (!m_context.machineSettings().displayDailySale()) {
        return;
    }
    const DailyTotals::Figures day =
        m_saver->dailyTotals(m_sale->entry().station(), m_sale->entry().saleDate());
    if (day.ok) {
        lblDailySale->setText(DailyTotals::salesLabel(day));
        lblDailyReceived->setText(DailyTotals::receivedLabel(day));
    }
}

void frmSaleInter::showDesk() {
    const PreviousInvoice previous = m_saver->previousInvoice(m_sale->entry().station());
    lblPrevFactor->setText(previous.docNo);
    lblPrevPrice->setText(amount(previous.received));
    showTotals();
}

void frmSaleInter::enterBarcode() {
    SettlingPause::settle([this] { return txtBarcode->text(); });
    const QString text = txtBarcode->text();
    txtBarcode->clear();
    if (!text.trimmed().isEmpty()) {
        m_sale->entry().enterText(text);
    }
    txtBarcode->setFocus();
}

bool frmSaleInter::save() {
    const InternalSaleResult r = m_saver->save(*m_sale, chkPrint->isChecked());
    if (!r.saved) {
        return false;
    }
    if (m_sale->editedCode() != 0) {
        m_left = true;
        close();
        return true;
    }
    m_sale->newSale();
    txtAtf->clear();
    showMode();
    showDesk();
    txtBarcode->setFocus();
    return true;
}

void frmSaleInter::print(const InternalSaleResult& saved) {
    SaleReceipt receipt(m_context.database(), m_context.machineSettings(), m_context.messages(),
                        m_context.launcher(), m_context.programFolder(), &m_context.rawPrinter(),
                        nullptr);
    // Printed from what was written, as a reprint would be: with the shop's heading, the
    // total in words and the sentence of the day.
    ReceiptOptions options;
    options.title = m_sale->entry().caption();
    options.family = DocumentFamily::Internal;
    receipt.print(saved.code, options);
}

bool frmSaleInter::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() != QEvent::KeyPress) {
        return QWidget::eventFilter(watched, event);
    }
    auto* key = static_cast<QKeyEvent*>(event);
    if (watched == txtBarcode && (key->key() == Qt::Key_Return || key->key() == Qt::Key_Enter) &&
        key->modifiers() == Qt::NoModifier) {
        enterBarcode();
        return true;
    }
    const std::optional<SaleKeyBinding> binding = SaleKeyMap::lookup(key->key(), key->modifiers());
    if (!binding) {
        return QWidget::eventFilter(watched, event);
    }
    switch (binding->command) {
        case SaleCommand::Save:
        case SaleCommand::SaveAndPrint:
            save();
            return true;
        case SaleCommand::NewSale:
        case SaleCommand::DeleteLine:
        case SaleCommand::SwitchMode:
            SaleKeyDispatch(m_sale->entry(), m_context.machineSettings())
                .execute(*binding, Grid1->selectedRow());
            if (binding->command == SaleCommand::NewSale && m_sale->entry().isEmpty()) {
                m_sale->newSale();
                txtAtf->clear();
                showMode();
            }
            return true;
        default:
            return QWidget::eventFilter(watched, event);
    }
}

void frmSaleInter::closeEvent(QCloseEvent* event) {
    if (!m_left && !m_sale->entry().confirmLeave()) {
        event->ignore();
        return;
    }
    m_left = true;
    event->accept();
}

}  // namespace sandogh
