#include "data/scales/MizanNetItems.h"

#include "data/Dialect.h"
#include "data/Session.h"
#include "data/SqlQuery.h"
#include "data/schema/ShopSchema.h"

namespace sandogh {

namespace {

// The Mizan existence test looks the PLU column up by the barcode's value while
// the update selects by PLU number; the scales have always been fed so (their
// goods carry the PLU as barcode), and the asymmetry is kept.
constexpr const char* kMizanExistsSql = "SELECT COUNT(PluNo) FROM %1 WHERE PluNo = :barcodeValue";
// The table's key is the PLU: a good whose barcode is not its PLU is not found by the test
// above once it has been written, so the PLU is looked up as well before inserting again.
constexpr const char* kMizanPluExistsSql = "SELECT COUNT(PluNo) FROM %1 WHERE PluNo = :plu";

QString items(Session& session) {
    return session.dialect().table(QStringLiteral("MizanNetItem"),
                                   QString::fromLatin1(kMizanNetDatabase));
}

qint64 count(Session& session, const char* sql, const QString& name, qint64 value) {
    SqlQuery q(session, QString::fromLatin1(sql).arg(items(session)));
    q.setLogging(FailureLogging::Quiet).bind(name, value);
    if (!q.exec() || !q.next())
        return -1;
    return q.int64(0);
}

bool write(SqlQuery& q, const ScaleItemValues& item) {
    q.setLogging(FailureLogging::Quiet)
        .bind(QStringLiteral(":plu"), item.plu)
        .bind(QStringLiteral(":unit"), item.kind)
        .bind(QStringLiteral(":price"), item.price)
        .bind(QStringLiteral(":barcode"), item.barcode)
        .bind(QStringLiteral(":name"), item.name);
    return q.exec();
}

}  // namespace

qint64 MizanNetItems::countByBarcodeValue(Session& session, qint64 barcodeValue) {
    return count(session, kMizanExistsSql, QStringLiteral(":barcodeValue"), barcodeValue);
}

qint64 MizanNetItems::countByPlu(Session& session, qint64 plu) {
    return count(session, kMizanPluExistsSql, QStringLiteral(":plu"), plu);
}

bool MizanNetItems::update(Session& session, const ScaleItemValues& item) {
    SqlQuery q(session, QStringLiteral("UPDATE %1 SET CommodityName = :name, ItemCode = :barcode, "
                                       "UPrice = :price, WeightUnit = :unit WHERE PluNo = :plu")
                            .arg(items(session)));
    return write(q, item);
}

bool MizanNetItems::insert(Session& session, const ScaleItemValues& item) {
    SqlQuery q(session, QStringLiteral("INSERT INTO %1 (PluNo, WeightUnit, UPrice, ItemCode, "
                                       "CommodityName) VALUES (:plu, :unit, :price, :barcode, "
                                       ":name)")
                            .arg(items(session)));
    return write(q, item);
}

}  // namespace sandogh
