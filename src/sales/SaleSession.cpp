#include "sales/SaleSession.h"

#include <chrono>

#include "common/AmountText.h"
#include "common/JalaliCalendar.h"
#include "data/Database.h"
#include "data/repositories/PurchasePrices.h"
#include "sales/BarcodeResolver.h"
#include "sales/CustomerSearch.h"
#include "sales/LinePricer.h"
#include "sales/SaleChecks.h"
#include "sales/SaleOptions.h"
#include "sales/SalePricing.h"
#include "sales/SaleTexts.h"
#include "sales/TotalDisplay.h"
#include "settings/Clock.h"
#include "settings/MachineSettings.h"
#include "settings/MessageService.h"

namespace sandogh {

namespace {

const QString kModule = QStringLiteral("frmSale");

QString jalaliText(const QDate& day) {
    using namespace std::chrono;
    const DaySerial serial = PlatformDate::fromDate(
        year_month_day{year{day.year()}, month{static_cast<unsigned>(day.month())},
                       std::chrono::day{static_cast<unsigned>(day.day())}});
    return QString::fromStdString(JalaliCalendar::toJalaliText(serial));
}

}  // namespace

struct SaleSession::Private {
    Private(Database& db, const MachineSettings& s, MessageService& m, const Clock& c)
        : database(db), settings(s), messages(m), clock(c) {}

    Database& database;
    const MachineSettings& settings;
    MessageService& messages;
    const Clock& clock;
    SaleActions* actions = nullptr;
    PriceChooser* priceChooser = nullptr;
    SellerChooser* sellerChooser = nullptr;
    QuantityAsker* quantityAsker = nullptr;
    TotalDisplay* display = nullptr;
    LinePricer* pricer = nullptr;

    SaleLinesModel model;
    int station = 0;
    int userId = 0;
    QString userName;
    QString warehouse;
    QString saleDate;
    SaleMode mode = SaleMode::Sale;
    int salesType = kFirstSalesType;
    SaleCustomer customer;
    QString barcode;
    int changedRow = -1;
    double changedQty = 0;
    LoadedDocument loaded;

    // The options are read once per outermost call, so that one scan reads the
    // settings store once however many lines it adds.
    SaleOptions options;
    int depth = 0;
};

// Keeps the options of the outermost public call for the calls it makes.
class OptionsScope {
public:
    OptionsScope(int& depth, SaleOptions& options, const MachineSettings& settings)
        : m_depth(depth) {
        if (m_depth++ == 0) {
            options = SaleOptions::read(settings);
        }
    }
    ~OptionsScope() { --m_depth; }
    OptionsScope(const OptionsScope&) = delete;
    OptionsScope& operator=(const OptionsScope&) = delete;

private:
    int& m_depth;
};

SaleSession::SaleSession(Database& database, const MachineSettings& settings,
                         MessageService& messages, const Clock& clock, QObject* parent)
    : QObject(parent), d(std::make_unique<Private>(database, settings, messages, clock)) {
    d->station = settings.stationId();
    d->userId = settings.userId();
    d->userName = settings.userName();
}

SaleSession::~SaleSession() = default;

void SaleSession::setActions(SaleActions* actions) {
    d->actions = actions;
}
void SaleSession::setPriceChooser(PriceChooser* chooser) {
    d->priceChooser = chooser;
}
void SaleSession::setSellerChooser(SellerChooser* chooser) {
    d->sellerChooser = chooser;
}
void SaleSession::setQuantityAsker(QuantityAsker* asker) {
    d->quantityAsker = asker;
}
void SaleSession::setDisplay(TotalDisplay* display) {
    d->display = display;
}
void SaleSession::setLinePricer(LinePricer* pricer) {
    d->pricer = pricer;
}
SaleActions* SaleSession::actions() const {
    return d->actions;
}
QuantityAsker* SaleSession::quantityAsker() const {
    return d->quantityAsker;
}

SaleLinesModel& SaleSession::linesModel() {
    return d->model;
}
const SaleLinesModel& SaleSession::linesModel() const {
    return d->model;
}
const QList<SaleLine>& SaleSession::lines() const {
    return d->model.lines();
}
bool SaleSession::isEmpty() const {
    return d->model.isEmpty();
}
double SaleSession::total() const {
    return d->model.total();
}
QString SaleSession::totalText() const {
    return QString::fromStdString(AmountText::formatWhole(total()));
}

void SaleSession::setStation(int stationId) {
    d->station = stationId;
}
int SaleSession::station() const {
    return d->station;
}
void SaleSession::setUser(int userId, const QString& userName) {
    d->userId = userId;
    d->userName = userName;
}
int SaleSession::userId() const {
    return d->userId;
}
QString SaleSession::userName() const {
    return d->userName;
}
void SaleSession::setWarehouse(const QString& warehouseCode) {
    d->warehouse = warehouseCode;
}
QString SaleSession::warehouse() const {
    return d->warehouse;
}
QString SaleSession::saleDate() const {
    return d->saleDate.isEmpty() ? todayJalali() : d->saleDate;
}
void SaleSession::setSaleDate(const QString& jalaliDate) {
    d->saleDate = jalaliDate.trimmed();
}
QString SaleSession::todayJalali() const {
    return jalaliText(d->clock.now().date());
}

SaleMode SaleSession::mode() const {
    return d->mode;
}
void SaleSession::setMode(SaleMode mode) {
    if (d->mode != mode) {
        d->mode = mode;
        emit modeChanged(mode);
    }
}
void SaleSession::toggleMode() {
    setMode(d->mode == SaleMode::Sale ? SaleMode::Return : SaleMode::Sale);
}
int SaleSession::transType() const {
    return d->mode == SaleMode::Sale ? 2 : 3;
}
QString SaleSession::caption() const {
    return captionOf(d->mode);
}
QString SaleSession::amountLabel() const {
    return amountLabelOf(d->mode);
}
QString SaleSession::captionOf(SaleMode mode) {
    return mode == SaleMode::Sale ? SaleTexts::saleCaption() : SaleTexts::returnCaption();
}
QString SaleSession::amountLabelOf(SaleMode mode) {
    return mode == SaleMode::Sale ? SaleTexts::saleAmountLabel() : SaleTexts::returnAmountLabel();
}

int SaleSession::salesType() const {
    return d->salesType;
}
bool SaleSession::setSalesType(int salesType) {
    if (salesType == d->salesType) {
        return true;
    }
    if (!isEmpty()) {
        d->messages.show(SaleTexts::salesTypeOnlyWhileEmpty(), MessageStyle::Information);
        return false;
    }
    d->salesType = salesType;
    emit salesTypeChanged(salesType);
    return true;
}

const SaleCustomer& SaleSession::customer() const {
    return d->customer;
}
int SaleSession::CompanyId() const {
    return d->customer.counter;
}
QString SaleSession::CompanyName() const {
    return d->customer.displayName();
}
void SaleSession::setCustomer(const SaleCustomer& customer) {
    d->customer = customer;
    emit customerChanged();
}
void SaleSession::clearCustomer() {
    setCustomer({});
}
bool SaleSession::selectCustomer(int counter) {
    const SaleCustomer found = CustomerSearch(d->database).byCounter(counter);
    if (!found.isValid()) {
        return false;
    }
    setCustomer(found);
    return true;
}

QString SaleSession::Barcode() const {
    return d->barcode;
}
int SaleSession::ChangedRowNo() const {
    return d->changedRow;
}
double SaleSession::ChangedRowQTY() const {
    return d->changedQty;
}

EntryOutcome SaleSession::enterText(const QString& text) {
    OptionsScope scope(d->depth, d->options, d->settings);
    return BarcodeResolver(*this, d->database, d->clock).resolve(text, d->options);
}

bool SaleSession::addGoods(const QString& barcode, double quantity, bool inGrams) {
    OptionsScope scope(d->depth, d->options, d->settings);
    if (d->salesType == kNoSalesType) {
        d->messages.show(SaleTexts::salesTypeFirst(), MessageStyle::Information);
        return false;
    }
    const double qty = inGrams ? quantity / 1000 : quantity;
    if (qty == 0) {
        return false;
    }
    Session session = d->database.session(kModule, QStringLiteral("AddGoods"));
    if (d->options.itemLock && d->mode == SaleMode::Sale) {
        double onLines = qty;
        for (const SaleLine& l : lines()) {
            if (l.barcode.compare(barcode, Qt::CaseInsensitive) == 0) {
                onLines += l.quantity;
            }
        }
        if (!SaleChecks(d->messages).allowsLocked(session, barcode, onLines, d->warehouse)) {
            return false;
        }
    }
    std::optional<SaleLine> line;
    if (d->pricer != nullptr) {
        line = d->pricer->priceLine(session, barcode, qty);
    } else {
        SalePricing pricing(d->messages, d->priceChooser, d->sellerChooser);
        const SalePricing::Context context{d->salesType, saleDate(), CompanyId(),
                                           Seller{d->userId, d->userName}};
        line = pricing.priceLine(session, d->options, context, barcode, qty);
    }
    session.release();
    return line && addLine(*line);
}

bool SaleSession::addLine(SaleLine line, bool inGrams) {
    OptionsScope scope(d->depth, d->options, d->settings);
    if (inGrams) {
        line.quantity /= 1000;
    }
    if (line.quantity == 0) {
        return false;
    }
    if (line.seller.isEmpty() && line.sellerId == 0) {
        line.seller = d->userName;
        line.sellerId = d->userId;
    }
    const int row = d->options.noMerge ? -1 : d->model.findBarcode(line.barcode);
    if (row >= 0) {
        SaleLine merged = d->model.line(row);
        merged.quantity += line.quantity;
        merged.unitPrice = line.unitPrice;
        merged.taxPercent = line.taxPercent;
        merged.recompute();
        d->model.replace(row, merged);
    } else {
        line.recompute();
        d->model.append(line);
    }
    d->barcode = line.barcode;
    showTotalOnDisplay();
    return true;
}

bool SaleSession::applyQuantity(double quantity) {
    const int row = d->barcode.isEmpty() ? -1 : d->model.findBarcode(d->barcode);
    if (row < 0) {
        d->messages.show(SaleTexts::quantityFirst(), MessageStyle::Information);
        return false;
    }
    if (quantity == 0) {
        return false;
    }
    const double current = d->model.line(row).quantity;
    // A scan followed by a number sets the count; a second number adds more.
    return changeQuantity(row, current == 1 ? quantity : current + quantity);
}

bool SaleSession::changeQuantity(int row, double quantity) {
    if (row < 0 || row >= d->model.lineCount() || quantity <= 0) {
        return false;
    }
    d->changedRow = row;
    d->changedQty = quantity;
    SaleLine line = d->model.line(row);
    line.quantity = quantity;
    line.recompute();
    d->model.replace(row, line);
    showTotalOnDisplay();
    return true;
}

bool SaleSession::removeLine(int row) {
    if (!d->model.remove(row)) {
        return false;
    }
    showTotalOnDisplay();
    return true;
}

void SaleSession::loadDocument(const LoadedDocument& document) {
    d->loaded = document;
    QList<SaleLine> loadedLines = document.lines;
    for (SaleLine& l : loadedLines) {
        if (l.seller.isEmpty() && l.sellerId == 0) {
            l.seller = d->userName;
            l.sellerId = d->userId;
        }
        l.recompute();
    }
    d->model.setLines(loadedLines);
    d->barcode = loadedLines.isEmpty() ? QString() : loadedLines.last().barcode;
    if (document.companyId != 0) {
        selectCustomer(document.companyId);
    }
    showTotalOnDisplay();
}

const LoadedDocument& SaleSession::loadedDocument() const {
    return d->loaded;
}

void SaleSession::newSale() {
    d->model.clear();
    d->barcode.clear();
    d->changedRow = -1;
    d->changedQty = 0;
    d->loaded = {};
    clearCustomer();
    setMode(SaleMode::Sale);
    if (d->salesType != kFirstSalesType) {
        d->salesType = kFirstSalesType;
        emit salesTypeChanged(d->salesType);
    }
    showTotalOnDisplay();
}

double SaleSession::lineProfit(int row) {
    if (row < 0 || row >= d->model.lineCount()) {
        return 0;
    }
    Session session = d->database.session(kModule, QStringLiteral("btnProfit_Click"));
    return PurchasePrices::lineProfit(session, d->model.line(row).barcode);
}

bool SaleSession::confirmLeave() {
    if (!hasUnsavedSale()) {
        return true;
    }
    return d->messages.show(SaleTexts::unsavedSale(), MessageStyle::QuestionYesNoDefaultNo);
}

bool SaleSession::hasUnsavedSale() const {
    return !isEmpty();
}

void SaleSession::showTotalOnDisplay() {
    const double sum = total();
    emit totalChanged(sum);
    const bool displayOn = d->depth > 0 ? d->options.display : d->settings.displayEnabled();
    if (displayOn && d->display != nullptr) {
        d->display->showTotal(totalText());
    }
}

}  // namespace sandogh
