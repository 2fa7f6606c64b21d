#include "ui/sales/frmSale.h"

#include <QApplication>
#include <QCheckBox>
#include <QCloseEvent>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMdiSubWindow>
#include <QPushButton>
#include <QTimer>
#include <optional>
#include <utility>

#include "common/AmountText.h"
#include "devices/CustomerDisplay.h"
#include "devices/WeightService.h"
#include "sales/DailyTotals.h"
#include "sales/EntryOutcome.h"
#include "sales/FavouriteGoods.h"
#include "sales/SaleKeyDispatch.h"
#include "sales/SaleKeyMap.h"
#include "sales/SaleScreenLists.h"
#include "sales/SaleSession.h"
#include "sales/SaleTexts.h"
#include "sales/SettlingPause.h"
#include "settings/MachineSettings.h"
#include "settings/MessageService.h"
#include "ui/sales/SaleCustomerPanel.h"
#include "ui/sales/SaleDetailPanel.h"
#include "ui/sales/SaleFavouritesPanel.h"
#include "ui/sales/SaleGridView.h"
#include "ui/sales/SaleScreenLayout.h"
#include "ui/sales/SaleTotalsPanel.h"
#include "ui/sales/frmAskQty.h"
#include "ui/sales/frmChangeQty.h"
#include "ui/sales/frmGoodsSearch.h"
#include "ui/sales/frmSelectPrice.h"
#include "ui/sales/frmUserSelect.h"
#include "ui/widgets/AmountEdit.h"

namespace sandogh {

namespace {

// Ctrl+F6 lets this many event passes run before saving, so that a receipt switch just
// ticked has taken effect.
constexpr int kPassesBeforePrintedSave = 9;

QPushButton* button(QWidget* parent, const QString& caption, const char* name) {
    auto* b = new QPushButton(caption, parent);
    b->setObjectName(QString::fromLatin1(name));
    b->setAutoDefault(false);
    b->setFocusPolicy(Qt::TabFocus);
    return b;
}

SaleKeyBinding command(SaleCommand c) {
    return SaleKeyBinding{c, QString()};
}

}  // namespace

frmSale::frmSale(Database& database, MachineSettings& settings, MessageService& messages,
                 const Clock& clock, QWidget* parent)
    : QWidget(parent)
    , m_database(database)
    , m_settings(settings)
    , m_messages(messages)
    , m_sale(std::make_unique<SaleSession>(database, settings, messages, clock))
    , m_favouriteGoods(std::make_unique<FavouriteGoods>(database, settings)) {
    setObjectName(QStringLiteral("frmSale"));
    buildControls();
    SaleScreenLayout::arrange(*this);
    connectSale();
    loadLists();
    showMode();
    m_totals->showTotal(m_sale->totalText());
    if (m_settings.displayDailySale()) {
        showDailyTotals();
    }
    // Every key of the application passes here first; only this screen's are taken.
    qApp->installEventFilter(this);
    focusBarcode();
}

frmSale::~frmSale() {
    qApp->removeEventFilter(this);
}

void frmSale::buildControls() {
    lblCaption = new QLabel(this);
    lblCaption->setObjectName(QStringLiteral("lblCaption"));
    txtBarcode = new QLineEdit(this);
    txtBarcode->setObjectName(QStringLiteral("txtBarcode"));
    txtBarcode->setPlaceholderText(QStringLiteral("بارکد یا تعداد، سپس Enter"));
    Grid1 = new SaleGridView(m_sale->linesModel(), this);
    if (const int height = m_settings.gridHeight(); height > 0) {
        Grid1->verticalHeader()->setDefaultSectionSize(height);
    }
    txtNo = new QLineEdit(this);
    txtNo->setObjectName(QStringLiteral("txtNo"));
    txtNo->setReadOnly(true);
    txtNo->setFocusPolicy(Qt::NoFocus);
    txtNo->setLayoutDirection(Qt::LeftToRight);
    lblDailySale = new QLabel(this);
    lblDailySale->setObjectName(QStringLiteral("lblDailySale"));
    lblDailySale->hide();
    lblDailyReceived = new QLabel(this);
    lblDailyReceived->setObjectName(QStringLiteral("lblDailyReceived"));
    lblDailyReceived->hide();
    lblPrevFactor = new QLabel(this);
    lblPrevFactor->setObjectName(QStringLiteral("lblPrevFactor"));
    lblPrevPrice = new QLabel(this);
    lblPrevPrice->setObjectName(QStringLiteral("lblPrevPrice"));
    lblLastReceived = new QLabel(this);
    lblLastReceived->setObjectName(QStringLiteral("lblLastReceived"));
    lblLastChange = new QLabel(this);
    lblLastChange->setObjectName(QStringLiteral("lblLastChange"));
    lblBarcodeStatus = new QLabel(this);
    lblBarcodeStatus->setObjectName(QStringLiteral("lblBarcodeStatus"));

    m_customer = new SaleCustomerPanel(*m_sale, m_database, m_messages, this);
    m_totals = new SaleTotalsPanel(this);
    m_totals->setDiscountEnabled(!m_settings.discountDisabled());
    frmDetail = new SaleDetailPanel(*m_sale, this);
    frmDetail->hide();
    m_favourites =
        new SaleFavouritesPanel(*m_favouriteGoods, m_settings.favoriteListDoubleClick(), this);
    m_favourites->setVisible(m_favourites->hasGoods());

    btnDetail = button(this, QStringLiteral("جزئیات"), "btnDetail");
    btnDetail->setCheckable(true);
    btnBarcodeSearch = button(this, QStringLiteral("جستجوی کالا"), "btnBarcodeSearch");
    btnGetScaleWeight = button(this, QStringLiteral("وزن ترازو"), "btnGetScaleWeight");
    cmdSave = button(this, QStringLiteral("ثبت فاکتور  F6"), "cmdSave");
    chkPrint = new QCheckBox(QStringLiteral("چاپ فاکتور"), this);
    chkPrint->setObjectName(QStringLiteral("chkPrint"));
    chkPrint->setChecked(m_settings.printFactorEnabled());
    chkPrint->setFocusPolicy(Qt::NoFocus);
    btnPaymentType = button(this, QStringLiteral("نحوه پرداخت"), "btnPaymentType");
    btnParsianPos = button(this, QStringLiteral("کارتخوان  F5"), "btnParsianPos");
    btnOpenCash = button(this, QStringLiteral("کشوی پول"), "btnOpenCash");
    btnOpenCash->setVisible(m_settings.cashDrawerEnabled());
    btnBuyFactor = button(this, QStringLiteral("هدیه خرید"), "btnBuyFactor");
    btnCalculateHesab = button(this, QStringLiteral("حساب مشتری"), "btnCalculateHesab");
    btnProfit = button(this, QStringLiteral("سود ردیف"), "btnProfit");
    btnProfit->setVisible(m_settings.profitEnabled());
    cmdDel = button(this, QStringLiteral("حذف ردیف"), "cmdDel");
    cmdNewSaleForm = button(this, QStringLiteral("فروش جدید  F3"), "cmdNewSaleForm");
    cmdNewSaleForm->setEnabled(m_settings.salesNewFormEnabled());
    btnGoodDefinition = button(this, QStringLiteral("تعریف کالا  F2"), "btnGoodDefinition");
    btnGoodDefinition->setEnabled(m_settings.goodDefinitionEnabled());
    cmdExit = button(this, QStringLiteral("خروج"), "cmdExit");
    // The keys of the buttons whose captions do not name them.
    btnBarcodeSearch->setToolTip(QStringLiteral("Ctrl+L"));
    btnCalculateHesab->setToolTip(QStringLiteral("Ctrl+H"));
    cmdDel->setToolTip(QStringLiteral("Ctrl+D"));
    cmdSave->setToolTip(QStringLiteral("F6, Ctrl+Enter"));

    m_askQty = new frmAskQty(this);
    m_changeQty = new frmChangeQty(this);
    m_selectPrice = new frmSelectPrice(this);
    m_searchGoods = new frmGoodsSearch(m_database, this);
    m_userSelect = new frmUserSelect(this);
}

void frmSale::connectSale() {
    m_sale->setQuantityAsker(m_askQty);
    m_sale->setPriceChooser(m_selectPrice);
    m_sale->setSellerChooser(m_userSelect);
    connect(m_sale.get(), &SaleSession::totalChanged, this,
            [this] { m_totals->showTotal(m_sale->totalText()); });
    connect(m_sale.get(), &SaleSession::modeChanged, this, &frmSale::showMode);

    connect(m_favourites, &SaleFavouritesPanel::goodsChosen, this, [this](const QString& barcode) {
        m_sale->addGoods(barcode);
        focusBarcode();
    });
    connect(btnDetail, &QPushButton::toggled, frmDetail, &QWidget::setVisible);
    connect(btnBarcodeSearch, &QPushButton::clicked, this,
            [this] { runCommand(command(SaleCommand::GoodsSearch)); });
    connect(btnGetScaleWeight, &QPushButton::clicked, this, &frmSale::readWeight);
    connect(cmdSave, &QPushButton::clicked, this,
            [this] { runCommand(command(SaleCommand::Save)); });
    connect(btnPaymentType, &QPushButton::clicked, this,
            [this] { SaleKeyDispatch(*m_sale, m_settings).choosePayment(); });
    connect(btnParsianPos, &QPushButton::clicked, this,
            [this] { runCommand(command(SaleCommand::PecPayment)); });
    connect(btnOpenCash, &QPushButton::clicked, this, [this] {
        if (m_allows && !m_allows(Permission::OpenDrawer)) {
            m_messages.show(SaleTexts::forbidden(), MessageStyle::Critical);
        } else {
            SaleKeyDispatch(*m_sale, m_settings).openDrawer();
        }
        focusBarcode();
    });
    connect(btnBuyFactor, &QPushButton::clicked, this, &frmSale::loyaltyGiftRequested);
    connect(btnCalculateHesab, &QPushButton::clicked, this,
            [this] { runCommand(command(SaleCommand::CustomerSummary)); });
    connect(btnProfit, &QPushButton::clicked, this, &frmSale::showProfit);
    connect(cmdDel, &QPushButton::clicked, this,
            [this] { runCommand(command(SaleCommand::DeleteLine)); });
    connect(cmdNewSaleForm, &QPushButton::clicked, this,
            [this] { runCommand(command(SaleCommand::NewSaleForm)); });
    connect(btnGoodDefinition, &QPushButton::clicked, this,
            [this] { runCommand(command(SaleCommand::GoodDefinition)); });
    connect(cmdExit, &QPushButton::clicked, this, &frmSale::leave);
}

void frmSale::loadLists() {
    const SaleScreenLists::Lists lists = SaleScreenLists(m_database).readAll();
    m_totals->setDiscountKinds(lists.discountKinds);
    m_totals->setOverheadKinds(lists.overheadKinds);
    frmDetail->setWarehouses(lists.warehouses);
    frmDetail->setReturnCauses(lists.returnCauses);
    frmDetail->setPaymentKinds(lists.paymentKinds);
    m_userSelect->setSellers(lists.sellers);
}

void frmSale::setActions(SaleActions* actions) {
    m_sale->setActions(actions);
}

void frmSale::setTotalDisplay(TotalDisplay* display) {
    m_sale->setDisplay(display);
}

void frmSale::setCustomerDisplay(CustomerDisplay* display) {
    m_display = display;
    if (m_display != nullptr) {
        m_display->saleScreenLoaded();
    }
}

void frmSale::setWeightService(WeightService* service) {
    if (m_weight != nullptr) {
        disconnect(m_weight, nullptr, this, nullptr);
    }
    m_weight = service;
    if (m_weight == nullptr) {
        return;
    }
    connect(m_weight, &WeightService::weightRead, this, [this](double weight) {
        int row = Grid1->selectedRow();
        if (row < 0) {
            row = m_sale->linesModel().lineCount() - 1;
        }
        m_sale->changeQuantity(row, weight);
        focusBarcode();
    });
    connect(m_weight, &WeightService::noWeight, this, [this](const QString& reason) {
        m_messages.show(QStringLiteral("وزن از ترازو خوانده نشد.\r\n") + reason,
                        MessageStyle::Information);
        focusBarcode();
    });
}

void frmSale::setGoodsSearch(std::function<QString()> search) {
    m_goodsSearch = std::move(search);
}

void frmSale::setAccess(std::function<bool(Permission)> allows) {
    m_allows = std::move(allows);
}

bool frmSale::permitted(SaleCommand command) {
    std::optional<Permission> needed;
    switch (command) {
        case SaleCommand::NewSaleForm:
            needed = Permission::Sale;
            break;
        case SaleCommand::GoodDefinition:
            needed = Permission::Goods;
            break;
        case SaleCommand::DeleteInvoice:
            needed = Permission::DeleteSales;
            break;
        case SaleCommand::CustomerSearch:
        case SaleCommand::CustomerSummary:
            needed = Permission::CustomerSearch;
            break;
        default:
            break;
    }
    if (!needed || !m_allows || m_allows(*needed)) {
        return true;
    }
    m_messages.show(SaleTexts::forbidden(), MessageStyle::Critical);
    focusBarcode();
    return false;
}

void frmSale::enterBarcode() {
    if (m_entering) {
        // Another Enter while the box settles: taken up once this one is done.
        m_enterPending = true;
        return;
    }
    m_entering = true;
    SettlingPause::settle([this] { return txtBarcode->text(); });
    const QString text = txtBarcode->text();
    if (text.trimmed().isEmpty()) {
        txtBarcode->clear();
    } else {
        showSettled(QString(), QString());
        const EntryOutcome outcome = m_sale->enterText(text);
        showEntryOutcome(outcome.boxText, outcome.notFound);
        if (outcome.clearBox) {
            txtBarcode->clear();
        } else {
            txtBarcode->setText(outcome.boxText);
            txtBarcode->selectAll();
        }
    }
    focusBarcode();
    m_entering = false;
    if (std::exchange(m_enterPending, false)) {
        QTimer::singleShot(0, this, &frmSale::enterBarcode);
    }
}

bool frmSale::eventFilter(QObject* watched, QEvent* event) {
    const QEvent::Type type = event->type();
    if (type != QEvent::KeyPress && type != QEvent::ShortcutOverride) {
        return QWidget::eventFilter(watched, event);
    }
    auto* widget = qobject_cast<QWidget*>(watched);
    if (widget == nullptr || (widget != this && !isAncestorOf(widget))) {
        return QWidget::eventFilter(watched, event);
    }
    auto* key = static_cast<QKeyEvent*>(event);
    const bool plainEnter = (key->key() == Qt::Key_Return || key->key() == Qt::Key_Enter) &&
                            (key->modifiers() & ~Qt::KeypadModifier) == Qt::NoModifier;
    if (type == QEvent::ShortcutOverride) {
        // The screen's keys are never taken by a shortcut of the main window or a
        // control's own use of them (Ctrl+C, Ctrl+Z in a text box).
        if (SaleKeyMap::lookup(key->key(), key->modifiers())) {
            event->accept();
            return true;
        }
        return false;
    }
    if (plainEnter && widget == txtBarcode) {
        enterBarcode();
        return true;
    }
    return handleKey(key);
}

bool frmSale::handleKey(QKeyEvent* key) {
    const std::optional<SaleKeyBinding> binding = SaleKeyMap::lookup(key->key(), key->modifiers());
    if (!binding) {
        return false;
    }
    runCommand(*binding);
    return true;
}

void frmSale::runCommand(const SaleKeyBinding& binding) {
    using Result = SaleKeyDispatch::Result;
    switch (binding.command) {
        case SaleCommand::Save:
            if (cmdSave->isEnabled()) {
                save(false);
            }
            return;
        case SaleCommand::SaveAndPrint:
            if (cmdSave->isEnabled() && chkPrint->isChecked()) {
                save(true);
            }
            return;
        case SaleCommand::NewSale:
            if (frmDetail->isVisible()) {
                btnDetail->setChecked(false);
                frmDetail->hide();
                focusBarcode();
                return;
            }
            break;
        default:
            break;
    }
    const Result result =
        SaleKeyDispatch(*m_sale, m_settings).execute(binding, Grid1->selectedRow());
    if (result == Result::Refused || !permitted(binding.command)) {
        return;
    }
    switch (binding.command) {
        case SaleCommand::NewSale:
            newSale();
            break;
        case SaleCommand::GoodDefinition:
            if (btnGoodDefinition->isEnabled()) {
                emit goodDefinitionRequested();
            }
            break;
        case SaleCommand::NewSaleForm:
            if (cmdNewSaleForm->isEnabled()) {
                emit newSaleFormRequested();
            }
            break;
        case SaleCommand::DeleteInvoice:
            emit deleteInvoiceRequested();
            break;
        case SaleCommand::FocusSumReceived:
            m_totals->focusBox(SaleTotalsPanel::Box::Payable);
            break;
        case SaleCommand::FocusReceivedPrice:
            m_totals->focusBox(SaleTotalsPanel::Box::HandedOver);
            break;
        case SaleCommand::FocusDiscount:
            m_totals->focusBox(SaleTotalsPanel::Box::Discount);
            break;
        case SaleCommand::FocusOther:
            m_totals->focusBox(SaleTotalsPanel::Box::Overhead);
            break;
        case SaleCommand::CustomerSummary:
            m_customer->showSummary();
            break;
        case SaleCommand::CustomerSearch:
            m_customer->focusSearch();
            break;
        case SaleCommand::GoodsSearch:
            searchGoods();
            break;
        case SaleCommand::ChangeQuantity:
            changeQuantity();
            break;
        case SaleCommand::DailyTotals:
            showDailyTotals();
            break;
        case SaleCommand::DeleteLine:
        case SaleCommand::PecPayment:
        case SaleCommand::TerminalHandOff:
            focusBarcode();
            break;
        default:
            break;
    }
}

void frmSale::save(bool printing) {
    if (printing) {
        for (int pass = 0; pass < kPassesBeforePrintedSave; ++pass) {
            QCoreApplication::processEvents(QEventLoop::AllEvents);
        }
    }
    // One save at a time: the button stays off while the sale is written.
    cmdSave->setEnabled(false);
    const SaleKeyDispatch::Result result =
        SaleKeyDispatch(*m_sale, m_settings)
            .execute(command(printing ? SaleCommand::SaveAndPrint : SaleCommand::Save),
                     Grid1->selectedRow());
    cmdSave->setEnabled(true);
    if (result == SaleKeyDispatch::Result::Done && m_sale->isEmpty()) {
        newSale();
    }
    focusBarcode();
}

void frmSale::newSale() {
    m_totals->clearSettlement();
    m_customer->reset();
    frmDetail->clearDocument();
    txtBarcode->clear();
    focusBarcode();
}

void frmSale::changeQuantity() {
    const int row = Grid1->selectedRow();
    if (row >= 0) {
        if (const std::optional<double> qty =
                m_changeQty->changeQuantity(m_sale->linesModel().line(row))) {
            m_sale->changeQuantity(row, *qty);
        }
    }
    focusBarcode();
}

void frmSale::searchGoods() {
    const QString barcode =
        (m_goodsSearch ? m_goodsSearch() : m_searchGoods->chooseGoods()).trimmed();
    if (!barcode.isEmpty()) {
        m_sale->addGoods(barcode);
    }
    focusBarcode();
}

void frmSale::showProfit() {
    const int row = Grid1->selectedRow();
    if (row < 0) {
        return;
    }
    const double profit = m_sale->lineProfit(row);
    m_messages.show(m_sale->linesModel().line(row).name + QStringLiteral("\r\nسود: ") +
                        QString::fromStdString(AmountText::formatWhole(profit)),
                    MessageStyle::Information);
    focusBarcode();
}

void frmSale::readWeight() {
    if (m_weight == nullptr || !m_weight->url().isValid()) {
        m_messages.show(QStringLiteral("نشانی ترازو در تنظیمات این صندوق وارد نشده است."),
                        MessageStyle::Information);
        return;
    }
    m_weight->requestWeight();
}

bool frmSale::showDailyTotals() {
    const bool on = m_settings.displayDailySale();
    lblDailySale->setVisible(on);
    lblDailyReceived->setVisible(on);
    if (!on) {
        return false;
    }
    const DailyTotals::Figures figures =
        DailyTotals(m_database).read(m_sale->station(), m_sale->todayJalali());
    lblDailySale->setText(DailyTotals::salesLabel(figures));
    lblDailyReceived->setText(DailyTotals::receivedLabel(figures));
    return figures.ok;
}

void frmSale::showPreviousInvoice(const QString& docNo, double received) {
    lblPrevFactor->setText(QStringLiteral("فاکتور قبلی: ") + docNo);
    lblPrevPrice->setText(QStringLiteral("مبلغ: ") +
                          QString::fromStdString(AmountText::formatWhole(received)));
}

QString frmSale::docNoText() const {
    return txtNo->text().trimmed();
}

void frmSale::showDocNo(const QString& docNo) {
    txtNo->setText(docNo);
}

bool frmSale::printsReceipt() const {
    return chkPrint->isChecked();
}

void frmSale::showSettled(const QString& received, const QString& change) {
    const bool shown = !received.isEmpty() || !change.isEmpty();
    lblLastReceived->setText(shown ? QStringLiteral("دریافتی: ") + received : QString());
    lblLastChange->setText(
        shown ? QStringLiteral("باقی‌مانده به مشتری: ") + change : QString());
}

void frmSale::showEntryOutcome(const QString& text, bool notFound) {
    if (!notFound) {
        lblBarcodeStatus->clear();
        return;
    }
    // No dialog: the next scan goes on at once, and the text stays readable here.
    lblBarcodeStatus->setText(SaleTexts::goodsNotFound() + QStringLiteral(": ") + text.trimmed());
    QApplication::beep();
}

void frmSale::focusBarcode() {
    txtBarcode->setFocus(Qt::OtherFocusReason);
}

void frmSale::showMode() {
    const bool returning = m_sale->mode() == SaleMode::Return;
    lblCaption->setText(m_sale->caption());
    lblCaption->setProperty("returning", returning);
    lblCaption->setStyleSheet(
        returning ? QStringLiteral("QLabel { color: white; background: #a23b2a; padding: 4px 14px;"
                                   " border-radius: 5px; }")
                  : QStringLiteral("QLabel { color: white; background: #2f6f9f; padding: 4px 14px;"
                                   " border-radius: 5px; }"));
    setWindowTitle(m_sale->caption());
    m_totals->showMode(m_sale->mode());
}

void frmSale::leave() {
    if (auto* window = qobject_cast<QMdiSubWindow*>(parentWidget())) {
        window->close();
    } else {
        close();
    }
}

void frmSale::closeEvent(QCloseEvent* event) {
    if (!m_left) {
        if (!m_sale->confirmLeave()) {
            event->ignore();
            focusBarcode();
            return;
        }
        m_left = true;
        if (m_display != nullptr) {
            m_display->leaveSaleScreen();
        }
    }
    event->accept();
}

}  // namespace sandogh
