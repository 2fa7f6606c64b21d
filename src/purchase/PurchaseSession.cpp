#include "purchase/PurchaseSession.h"

#include <QDate>
#include <chrono>

#include "common/JalaliCalendar.h"
#include "common/PlatformDate.h"
#include "data/procedures/StockDocumentHeader.h"
#include "data/repositories/DocumentNumbering.h"
#include "data/repositories/PurchaseDocuments.h"
#include "purchase/PurchaseTexts.h"
#include "settings/Clock.h"
#include "settings/MessageService.h"

namespace sandogh {

namespace {

QString jalaliText(const QDate& day) {
    using namespace std::chrono;
    const DaySerial serial = PlatformDate::fromDate(
        year_month_day{year{day.year()}, month{static_cast<unsigned>(day.month())},
                       std::chrono::day{static_cast<unsigned>(day.day())}});
    return QString::fromStdString(JalaliCalendar::toJalaliText(serial));
}

// Document numbers are digit text compared as 64-bit numbers: a typed number is taken with
// Persian and Arabic-Indic digits read as ASCII ones, and refused when anything else is
// left or it is too long for the comparison.
std::optional<QString> documentNumber(const QString& typed) {
    constexpr int kMaxDigits = 18;
    QString digits;
    for (const QChar c : typed.trimmed()) {
        const int value = c.digitValue();
        if (value < 0) {
            return std::nullopt;
        }
        digits += QChar(u'0' + value);
    }
    if (digits.isEmpty() || digits.size() > kMaxDigits) {
        return std::nullopt;
    }
    return digits;
}

}  // namespace

struct PurchaseSession::Private {
    Private(Database& db, MessageService& m, const Clock& c)
        : database(db), messages(m), clock(c) {}

    Database& database;
    MessageService& messages;
    const Clock& clock;
    int userId = 0;
    bool isReturn = false;
    PurchaseHeader header;
    PurchaseLinesModel lines;
    qint64 proposedCode = 0;
    QString proposedDocNo;

    void fill(const PurchaseDocuments::Source& source) {
        lines.clear();
        for (const PurchaseDocuments::SourceLine& s : source.lines) {
            PurchaseLine line;
            line.barcode = s.barcode;
            line.name = s.name;
            line.qty = s.qty;
            line.mFee = s.mFee;
            line.discount = s.discount;
            line.taxValue = s.taxValue;
            lines.append(line);
        }
        if (source.companyId != 0) {
            header.supplier = source.companyId;
        }
        header.discount = source.discount;
        header.sarbar = source.sarbar;
        header.note = source.note;
        header.base = source.base;
    }
};

PurchaseSession::PurchaseSession(Database& database, MessageService& messages, const Clock& clock)
    : d(std::make_unique<Private>(database, messages, clock)) {
    newDocument(false);
}

PurchaseSession::~PurchaseSession() = default;

void PurchaseSession::setUser(int userId) {
    d->userId = userId;
}

int PurchaseSession::userId() const {
    return d->userId;
}

void PurchaseSession::newDocument(bool isReturn) {
    d->isReturn = isReturn;
    d->header = PurchaseHeader{};
    d->header.docDate = jalaliText(d->clock.now().date());
    d->lines.clear();
    d->proposedDocNo.clear();
    refreshNumbers();
}

bool PurchaseSession::isReturn() const {
    return d->isReturn;
}

int PurchaseSession::transType() const {
    return d->isReturn ? procedures::kPurchaseReturn : procedures::kPurchase;
}

PurchaseHeader& PurchaseSession::header() {
    return d->header;
}

const PurchaseHeader& PurchaseSession::header() const {
    return d->header;
}

PurchaseLinesModel& PurchaseSession::lines() {
    return d->lines;
}

const PurchaseLinesModel& PurchaseSession::lines() const {
    return d->lines;
}

PurchaseTotals PurchaseSession::totals() const {
    return PurchaseTotals::of(d->lines.lines());
}

void PurchaseSession::refreshNumbers() {
    DocumentNumbering numbering(d->database);
    const bool proposed = docNoIsProposed();
    d->proposedCode = numbering.nextCode();
    const qint64 next = numbering.nextDocNo(transType());
    d->proposedDocNo = next > 0 ? QString::number(next) : QString();
    if (proposed) {
        d->header.docNo = d->proposedDocNo;
    }
}

qint64 PurchaseSession::proposedCode() const {
    return d->proposedCode;
}

QString PurchaseSession::proposedDocNo() const {
    return d->proposedDocNo;
}

bool PurchaseSession::docNoIsProposed() const {
    const QString typed = d->header.docNo.trimmed();
    return typed.isEmpty() || typed == d->proposedDocNo;
}

bool PurchaseSession::addBarcode(const QString& typed) {
    // An apostrophe typed into the box is removed before the look-up.
    QString barcode = typed;
    barcode.remove(u'\'');
    barcode = barcode.trimmed();
    if (barcode.isEmpty()) {
        return false;
    }
    PurchaseDocuments documents(d->database);
    const std::optional<bool> exists = documents.goodsExists(barcode);
    if (!exists) {
        return false;
    }
    if (!*exists) {
        d->messages.show(PurchaseTexts::goodsNotFound(), MessageStyle::Critical);
        return false;
    }
    const std::optional<PurchaseDocuments::Article> a = documents.article(barcode);
    if (!a) {
        return false;
    }
    PurchaseLine line;
    line.barcode = a->barcode;
    line.name = a->name;
    line.unitName = a->unitName;
    line.qty = 1;
    line.mFee = a->mFee;
    line.discount = a->discount;
    line.taxValue = a->taxValue;
    line.cost = a->cost;
    line.stock = a->stock;
    d->lines.append(line);
    return true;
}

bool PurchaseSession::loadPreInvoice(qint64 code) {
    const std::optional<PurchaseDocuments::Source> source =
        PurchaseDocuments(d->database).preInvoice(code);
    if (!source) {
        return false;
    }
    d->fill(*source);
    return true;
}

bool PurchaseSession::loadDocument(int transType, const QString& docNo) {
    const std::optional<PurchaseDocuments::Source> source =
        PurchaseDocuments(d->database).document(transType, docNo.trimmed());
    if (!source) {
        return false;
    }
    d->fill(*source);
    return true;
}

PurchaseCheck PurchaseSession::check() {
    const auto refuse = [this](PurchaseCheck check, const QString& text) {
        d->messages.show(text, MessageStyle::Critical);
        return check;
    };
    PurchaseHeader& h = d->header;
    if (h.supplier == 0) {
        return refuse(PurchaseCheck::Supplier, PurchaseTexts::noSupplier());
    }
    if (h.accountingGroupId == 0) {
        return refuse(PurchaseCheck::AccountingGroup, PurchaseTexts::noAccountingGroup());
    }
    if (h.docNo.trimmed().isEmpty()) {
        return refuse(PurchaseCheck::DocNo, PurchaseTexts::noDocNo());
    }
    if (d->lines.lineCount() == 0) {
        return refuse(PurchaseCheck::Lines, PurchaseTexts::noLines());
    }
    const std::optional<QString> number = documentNumber(h.docNo);
    if (!number) {
        return refuse(PurchaseCheck::DocNo, PurchaseTexts::docNoNotANumber());
    }
    d->header.docNo = *number;
    if (docNoIsProposed()) {
        return PurchaseCheck::None;
    }
    const std::optional<PurchaseDocuments::Repeats> repeats =
        PurchaseDocuments(d->database).repeats(transType(), h.docNo, h.supplier);
    if (!repeats) {
        return PurchaseCheck::RepeatedDocNo;
    }
    if (repeats->sameSupplier > 0) {
        return refuse(PurchaseCheck::RepeatedDocNo, PurchaseTexts::docNoRepeatedForSupplier());
    }
    if (repeats->all > 0 && !d->messages.show(PurchaseTexts::docNoRepeatedAsk(),
                                              MessageStyle::QuestionYesNoDefaultNo)) {
        return PurchaseCheck::RepeatedDocNo;
    }
    return PurchaseCheck::None;
}

}  // namespace sandogh
