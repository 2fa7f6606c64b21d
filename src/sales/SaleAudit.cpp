#include "sales/SaleAudit.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <chrono>

#include "common/JalaliCalendar.h"
#include "data/Database.h"
#include "data/procedures/StockDocumentProcedures.h"
#include "data/repositories/SaleEditRepository.h"
#include "settings/Clock.h"

namespace sandogh {

namespace {

const QString kModule = QStringLiteral("SaleAudit");

QJsonValue optional(const std::optional<int>& value) {
    return value ? QJsonValue(*value) : QJsonValue();
}

}  // namespace

QString SaleAudit::today(const Clock& clock) {
    using namespace std::chrono;
    const QDate day = clock.now().date();
    const DaySerial serial = PlatformDate::fromDate(
        year_month_day{year{day.year()}, month{static_cast<unsigned>(day.month())},
                       std::chrono::day{static_cast<unsigned>(day.day())}});
    return QString::fromStdString(JalaliCalendar::toJalaliText(serial));
}

QString SaleAudit::actionName(int action) {
    return action == SaleAuditRepository::Edit ? QStringLiteral("ويرايش") : QStringLiteral("حذف");
}

QString SaleAudit::documentJson(Session& session, qint64 code) {
    const std::optional<procedures::StockDocumentHeader> h =
        procedures::sp_tblWhs_QTYDocH_SelectRow(session, code);
    if (!h) {
        return {};
    }
    bool failed = false;
    const QList<SaleEditRepository::Line> lines = SaleEditRepository::lines(session, code, &failed);
    if (failed) {
        return {};
    }
    QJsonObject header{
        {QStringLiteral("Code"), QString::number(h->code)},
        {QStringLiteral("DocNo"), h->docNo},
        {QStringLiteral("TransType"), h->transType},
        {QStringLiteral("CompanyID"), optional(h->companyId)},
        {QStringLiteral("DocDate"), h->docDate},
        {QStringLiteral("DocTime"), h->docTime},
        {QStringLiteral("UserID"), h->userId},
        {QStringLiteral("DocSum"), h->docSum},
        {QStringLiteral("Discount"), h->discount},
        {QStringLiteral("Sarbar"), h->sarbar},
        {QStringLiteral("ReceivedPrice"), h->receivedPrice},
        {QStringLiteral("StationID"), optional(h->stationId)},
        {QStringLiteral("PayType"), optional(h->payType)},
        {QStringLiteral("DocumentHID"),
         h->documentHId ? QJsonValue(QString::number(*h->documentHId)) : QJsonValue()},
        {QStringLiteral("DiscountTypeId"), optional(h->discountTypeId)},
        {QStringLiteral("OverheadID"), optional(h->overheadId)},
        {QStringLiteral("Base"), h->base},
        {QStringLiteral("Note"), h->note},
    };
    QJsonArray rows;
    for (const SaleEditRepository::Line& l : lines) {
        rows.append(QJsonObject{
            {QStringLiteral("ID"), QString::number(l.line.id)},
            {QStringLiteral("EAN_Code"), l.line.eanCode},
            {QStringLiteral("Name"), l.name},
            {QStringLiteral("Qty"), l.line.qty},
            {QStringLiteral("MFee"), l.line.mFee},
            {QStringLiteral("Discount"), l.line.discount},
            {QStringLiteral("Fee"), l.line.fee},
            {QStringLiteral("Price"), l.line.price},
            {QStringLiteral("TaxValue"), l.line.taxValue},
            {QStringLiteral("UserID"), optional(l.line.userId)},
        });
    }
    return QString::fromUtf8(QJsonDocument(QJsonObject{{QStringLiteral("header"), header},
                                                       {QStringLiteral("lines"), rows}})
                                 .toJson(QJsonDocument::Compact));
}

bool SaleAudit::record(Session& session, const Clock& clock, const Desk& desk, int action,
                       qint64 code) {
    const std::optional<procedures::StockDocumentHeader> h =
        procedures::sp_tblWhs_QTYDocH_SelectRow(session, code);
    const QString document = documentJson(session, code);
    if (!h || document.isEmpty()) {
        return false;
    }
    SaleAuditRepository::Record r;
    r.action = action;
    r.docCode = code;
    r.transType = h->transType;
    r.docNo = h->docNo;
    r.docDate = h->docDate;
    r.userId = desk.userId;
    r.stationId = desk.stationId;
    r.auditDate = today(clock);
    r.auditTime = clock.now().toString(QStringLiteral("HH:mm:ss"));
    r.document = document;
    return SaleAuditRepository::insert(session, r) > 0;
}

QList<SaleAuditRepository::Record> SaleAudit::list(Database& database, const QString& fromDate,
                                                   const QString& toDate, int userId) {
    Session s = database.session(kModule, QStringLiteral("List"));
    return SaleAuditRepository::list(s, fromDate, toDate, userId);
}

}  // namespace sandogh
