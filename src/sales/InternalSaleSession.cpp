#include "sales/InternalSaleSession.h"

#include "data/Database.h"
#include "data/Transaction.h"
#include "data/repositories/CenterBranchesRepository.h"
#include "data/repositories/DocumentNumbering.h"
#include "data/repositories/InternalSaleRepository.h"
#include "sales/InternalPricing.h"
#include "sales/LoadedDocument.h"
#include "sales/SaleSession.h"
#include "settings/InternalSaleKeys.h"
#include "settings/MachineSettings.h"

namespace sandogh {

namespace {
const QString kModule = QStringLiteral("frmSaleInter");
}  // namespace

struct InternalSaleSession::Private {
    Private(Database& db, const MachineSettings& settings, MessageService& messages,
            const Clock& clock)
        : database(db), entry(db, settings, messages, clock) {}

    Database& database;
    SaleSession entry;
    InternalPricing pricing;
    int branchKind = CenterBranchesRepository::kBranch;
    CenterBranch branch;
    QString docNo;
    bool docNoTyped = false;
    QString returnedInvoice;
    qint64 editedCode = 0;
};

InternalSaleSession::InternalSaleSession(Database& database, const MachineSettings& settings,
                                         MessageService& messages, const Clock& clock)
    : d(std::make_unique<Private>(database, settings, messages, clock)) {
    d->entry.setLinePricer(&d->pricing);
    d->pricing.mode = InternalPrices::modeOf(settings.internalSalePriceMode());
    d->pricing.dateLimit = settings.text(settingkeys::InternalPriceDateLimit);
    d->branchKind = settings.internalSaleBranchKind();
}

InternalSaleSession::~InternalSaleSession() = default;

SaleSession& InternalSaleSession::entry() {
    return d->entry;
}
const SaleSession& InternalSaleSession::entry() const {
    return d->entry;
}

std::optional<QList<CenterBranch>> InternalSaleSession::branches() {
    Session s = d->database.session(kModule, QStringLiteral("LoadBranches"));
    if (d->branchKind == CenterBranchesRepository::kCentre) {
        // The centre row is made the first time it is needed.
        Transaction tx(s);
        if (!tx.isActive() || CenterBranchesRepository::centre(s) == 0 || !tx.commit()) {
            return std::nullopt;
        }
    }
    return CenterBranchesRepository::ofKind(s, d->branchKind);
}
int InternalSaleSession::branchKind() const {
    return d->branchKind;
}
int InternalSaleSession::branchId() const {
    return d->branch.id;
}
QString InternalSaleSession::branchName() const {
    return d->branch.name;
}
void InternalSaleSession::setBranch(const CenterBranch& branch) {
    d->branch = branch;
}
bool InternalSaleSession::selectBranch(int id) {
    Session s = d->database.session(kModule, QStringLiteral("SelectBranch"));
    const std::optional<CenterBranch> found = CenterBranchesRepository::find(s, id);
    if (!found) {
        return false;
    }
    d->branch = *found;
    return true;
}

InternalPrices::Mode InternalSaleSession::priceMode() const {
    return d->pricing.mode;
}
void InternalSaleSession::setPriceMode(InternalPrices::Mode mode) {
    d->pricing.mode = mode;
}
QString InternalSaleSession::priceDateLimit() const {
    return d->pricing.dateLimit;
}
void InternalSaleSession::setPriceDateLimit(const QString& jalaliDate) {
    d->pricing.dateLimit = jalaliDate.trimmed();
}
double InternalSaleSession::lastStock() const {
    return d->pricing.lastStock();
}

QString InternalSaleSession::docNo() const {
    return d->docNo;
}
bool InternalSaleSession::docNoTyped() const {
    return d->docNoTyped;
}
void InternalSaleSession::setDocNo(const QString& docNo, bool typed) {
    d->docNo = docNo.trimmed();
    d->docNoTyped = typed;
}
QString InternalSaleSession::proposeDocNo() {
    const qint64 next = DocumentNumbering(d->database).nextInternalDocNo(d->entry.transType());
    setDocNo(next > 0 ? QString::number(next) : QString(), false);
    return d->docNo;
}
QString InternalSaleSession::returnedInvoice() const {
    return d->returnedInvoice;
}
void InternalSaleSession::setReturnedInvoice(const QString& number) {
    d->returnedInvoice = number.trimmed();
}

bool InternalSaleSession::loadDocument(qint64 code) {
    Session s = d->database.session(kModule, QStringLiteral("LoadDocument"));
    const std::optional<InternalSaleRepository::Saved> saved =
        InternalSaleRepository::document(s, code);
    if (!saved) {
        return false;
    }
    const std::optional<CenterBranch> branch =
        CenterBranchesRepository::find(s, saved->header.branchId);
    s.release();
    newSale();
    d->branch = branch.value_or(CenterBranch{saved->header.branchId, QString()});
    d->entry.setMode(saved->header.transType == 3 ? SaleMode::Return : SaleMode::Sale);
    d->entry.setSaleDate(saved->header.docDate);
    LoadedDocument document;
    document.documentCode = code;
    document.note = saved->header.note;
    for (const InternalSaleRepository::Line& l : saved->lines) {
        SaleLine line;
        line.barcode = l.barcode;
        line.name = l.name;
        line.quantity = l.qty;
        line.unitPrice = l.fee;
        document.lines << line;
    }
    d->entry.loadDocument(document);
    setDocNo(saved->header.docNo, true);
    d->returnedInvoice = saved->header.atf;
    d->editedCode = code;
    return true;
}

qint64 InternalSaleSession::editedCode() const {
    return d->editedCode;
}

void InternalSaleSession::newSale() {
    d->entry.newSale();
    d->editedCode = 0;
    d->docNo.clear();
    d->docNoTyped = false;
    d->returnedInvoice.clear();
}

}  // namespace sandogh
