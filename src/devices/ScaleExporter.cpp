#include "ScaleExporter.h"

#include <cmath>

#include "common/AmountText.h"
#include "data/Database.h"
#include "data/SqlQuery.h"
#include "data/schema/ShopSchema.h"

namespace sandogh {

namespace {

// Fixed values of every new OnlineSales item, written so since the Takin scales
// were first fed: ID 175, AlterPrice 1, Sect, Grp, Vat and Logo 0.
constexpr int kTakinItemId = 175;
constexpr int kTakinAlterPrice = 1;
constexpr int kTakinNoSection = 0;
constexpr int kTakinNoGroup = 0;
constexpr int kTakinNoVat = 0;
constexpr int kTakinNoLogo = 0;
// OnlineSales Type and MizanNet WeightUnit of weighed and counted goods.
constexpr int kTakinWeighed = 2;
constexpr int kTakinCounted = 1;
constexpr int kWeightUnitWeighed = 1;
constexpr int kWeightUnitCounted = 0;
// Each good gets the Sadr key numbered as its PLU, on page 0 of item class 0.
constexpr int kSadrItemClass = 0;
constexpr int kSadrPage = 0;
// The Mizan existence test looks the PLU column up by the barcode's value while
// the update selects by PLU number; the scales have always been fed so (their
// goods carry the PLU as barcode), and the asymmetry is kept.
constexpr const char* kMizanExistsSql = "SELECT COUNT(PluNo) FROM %1 WHERE PluNo = :barcodeValue";
// The table's key is the PLU: a good whose barcode is not its PLU is not found by the test
// above once it has been written, so the PLU is looked up as well before inserting again.
constexpr const char* kMizanPluExistsSql = "SELECT COUNT(PluNo) FROM %1 WHERE PluNo = :plu";

qint64 wholeValue(const QString& text) {
    return static_cast<qint64>(std::llround(AmountText::parse(text.trimmed().toStdString())));
}

double price(const ScaleGood& good) {
    return AmountText::parse(good.cost.toStdString());
}

QString vendorTable(Session& session, const char* table, const char* database) {
    return session.dialect().table(QString::fromLatin1(table), QString::fromLatin1(database));
}

// The count of the existence test, or -1 when it failed.
qint64 count(Session& session, const QString& sql, const QString& name, qint64 value) {
    SqlQuery q(session, sql);
    q.setLogging(FailureLogging::Quiet).bind(name, value);
    if (!q.exec() || !q.next())
        return -1;
    return q.int64(0);
}

bool run(SqlQuery& q) {
    return q.setLogging(FailureLogging::Quiet).exec();
}

}  // namespace

ScaleExporter::ScaleExporter(const ScaleExportConfig& config, MessageService& messages)
    : m_config(config), m_messages(messages) {}

bool ScaleExporter::failed() {
    m_messages.show(Database::connectionFailureMessage(), MessageStyle::CriticalPlain);
    return false;
}

bool ScaleExporter::goodSaved(Session& session, const ScaleGood& good) {
    if (m_config.takin && !exportTakin(session, good))
        return failed();
    if (m_config.mizan && !exportMizan(session, good))
        return failed();
    if (m_config.sadr && !exportSadr(session, good))
        return failed();
    return true;
}

bool ScaleExporter::goodDeleted(Session& session, const QString& plu) {
    SqlQuery q(session, QStringLiteral("DELETE FROM %1 WHERE Code = :plu")
                            .arg(vendorTable(session, "Items", kOnlineSalesDatabase)));
    q.bind(QStringLiteral(":plu"), wholeValue(plu));
    return run(q) || failed();
}

bool ScaleExporter::exportTakin(Session& session, const ScaleGood& good) {
    const QString items = vendorTable(session, "Items", kOnlineSalesDatabase);
    const qint64 plu = wholeValue(good.plu);
    const int type = good.weighed ? kTakinWeighed : kTakinCounted;
    const qint64 found =
        count(session, QStringLiteral("SELECT COUNT(Code) FROM %1 WHERE Code = :plu").arg(items),
              QStringLiteral(":plu"), plu);
    if (found < 0)
        return false;
    if (found > 0) {
        SqlQuery q(session,
                   QStringLiteral("UPDATE %1 SET Code = :plu, Name1 = :name, Barcode = :barcode, "
                                  "Price = :price, Type = :type WHERE Code = :plu")
                       .arg(items));
        q.bind(QStringLiteral(":plu"), plu)
            .bind(QStringLiteral(":name"), good.name)
            .bind(QStringLiteral(":barcode"), good.barcode)
            .bind(QStringLiteral(":price"), price(good))
            .bind(QStringLiteral(":type"), type);
        return run(q);
    }
    SqlQuery q(
        session,
        QStringLiteral("INSERT INTO %1 (ID, Code, Name1, Name2, BarCode, IranCode, Type, Price, "
                       "ItemCode, AlterPrice, Sect, Grp, Vat, Logo) VALUES (:id, :plu, :name, "
                       ":name2, :barcode, :iranCode, :type, :price, :itemCode, :alterPrice, "
                       ":sect, :grp, :vat, :logo)")
            .arg(items));
    q.bind(QStringLiteral(":id"), kTakinItemId)
        .bind(QStringLiteral(":plu"), plu)
        .bind(QStringLiteral(":name"), good.name)
        .bind(QStringLiteral(":name2"), QString(""))
        .bind(QStringLiteral(":barcode"), good.barcode)
        .bind(QStringLiteral(":iranCode"), QString(""))
        .bind(QStringLiteral(":type"), type)
        .bind(QStringLiteral(":price"), price(good))
        .bind(QStringLiteral(":itemCode"), plu)  // the PLU number doubles as item code
        .bind(QStringLiteral(":alterPrice"), kTakinAlterPrice)
        .bind(QStringLiteral(":sect"), kTakinNoSection)
        .bind(QStringLiteral(":grp"), kTakinNoGroup)
        .bind(QStringLiteral(":vat"), kTakinNoVat)
        .bind(QStringLiteral(":logo"), kTakinNoLogo);
    return run(q);
}

bool ScaleExporter::exportMizan(Session& session, const ScaleGood& good) {
    const QString items = vendorTable(session, "MizanNetItem", kMizanNetDatabase);
    const qint64 plu = wholeValue(good.plu);
    const int unit = good.weighed ? kWeightUnitWeighed : kWeightUnitCounted;
    qint64 found = count(session, QString::fromLatin1(kMizanExistsSql).arg(items),
                         QStringLiteral(":barcodeValue"), wholeValue(good.barcode));
    if (found == 0)
        found = count(session, QString::fromLatin1(kMizanPluExistsSql).arg(items),
                      QStringLiteral(":plu"), plu);
    if (found < 0)
        return false;
    SqlQuery q(session,
               found > 0
                   ? QStringLiteral("UPDATE %1 SET CommodityName = :name, ItemCode = :barcode, "
                                    "UPrice = :price, WeightUnit = :unit WHERE PluNo = :plu")
                         .arg(items)
                   : QStringLiteral("INSERT INTO %1 (PluNo, WeightUnit, UPrice, ItemCode, "
                                    "CommodityName) VALUES (:plu, :unit, :price, :barcode, :name)")
                         .arg(items));
    q.bind(QStringLiteral(":plu"), plu)
        .bind(QStringLiteral(":unit"), unit)
        .bind(QStringLiteral(":price"), price(good))
        .bind(QStringLiteral(":barcode"), good.barcode)
        .bind(QStringLiteral(":name"), good.name);
    return run(q);
}

bool ScaleExporter::exportSadr(Session& session, const ScaleGood& good) {
    const QString items = vendorTable(session, "SADR_Item", kSadrDatabase);
    const QString keys = vendorTable(session, "SADR_KeyAssignment", kSadrDatabase);
    const qint64 plu = wholeValue(good.plu);
    const qint64 barcodeValue = wholeValue(good.barcode);
    const int unit = good.weighed ? kWeightUnitWeighed : kWeightUnitCounted;
    const qint64 found = count(
        session,
        QStringLiteral("SELECT COUNT(PluNo) FROM %1 WHERE ItemCode = :barcodeValue").arg(items),
        QStringLiteral(":barcodeValue"), barcodeValue);
    if (found < 0)
        return false;
    if (found > 0) {
        SqlQuery item(session, QStringLiteral("UPDATE %1 SET PluName = :name, ItemCode = :barcode, "
                                              "UnitPrice = :price WHERE PluNo = :plu")
                                   .arg(items));
        item.bind(QStringLiteral(":name"), good.name)
            .bind(QStringLiteral(":barcode"), barcodeValue)
            .bind(QStringLiteral(":price"), price(good))
            .bind(QStringLiteral(":plu"), plu);
        if (!run(item))
            return false;
        SqlQuery key(session,
                     QStringLiteral("UPDATE %1 SET KeyNo = :plu WHERE PluNo = :plu").arg(keys));
        key.bind(QStringLiteral(":plu"), plu);
        return run(key);
    }
    SqlQuery item(session,
                  QStringLiteral("INSERT INTO %1 (PluNo, UnitPrice, ItemCode, PluName, PluUnit) "
                                 "VALUES (:plu, :price, :barcode, :name, :unit)")
                      .arg(items));
    item.bind(QStringLiteral(":plu"), plu)
        .bind(QStringLiteral(":price"), price(good))
        .bind(QStringLiteral(":barcode"), barcodeValue)
        .bind(QStringLiteral(":name"), good.name)
        .bind(QStringLiteral(":unit"), unit);
    if (!run(item))
        return false;
    SqlQuery key(session, QStringLiteral("INSERT INTO %1 (ItemClassCode, PageNo, KeyNo, PluNo) "
                                         "VALUES (:itemClass, :page, :plu, :plu)")
                              .arg(keys));
    key.bind(QStringLiteral(":itemClass"), kSadrItemClass)
        .bind(QStringLiteral(":page"), kSadrPage)
        .bind(QStringLiteral(":plu"), plu);
    return run(key);
}

}  // namespace sandogh
