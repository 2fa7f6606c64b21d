#include "data/scales/SadrItems.h"

#include "data/Dialect.h"
#include "data/Session.h"
#include "data/SqlQuery.h"
#include "data/schema/ShopSchema.h"

namespace sandogh {

namespace {

// Each good gets the Sadr key numbered as its PLU, on page 0 of item class 0.
constexpr int kSadrItemClass = 0;
constexpr int kSadrPage = 0;

QString table(Session& session, const char* name) {
    return session.dialect().table(QString::fromLatin1(name), QString::fromLatin1(kSadrDatabase));
}

bool run(SqlQuery& q) {
    return q.setLogging(FailureLogging::Quiet).exec();
}

}  // namespace

qint64 SadrItems::countByItemCode(Session& session, qint64 barcodeValue) {
    SqlQuery q(session, QStringLiteral("SELECT COUNT(PluNo) FROM %1 WHERE ItemCode = :barcodeValue")
                            .arg(table(session, "SADR_Item")));
    q.setLogging(FailureLogging::Quiet).bind(QStringLiteral(":barcodeValue"), barcodeValue);
    if (!q.exec() || !q.next())
        return -1;
    return q.int64(0);
}

bool SadrItems::update(Session& session, const ScaleItemValues& item) {
    SqlQuery q(session, QStringLiteral("UPDATE %1 SET PluName = :name, ItemCode = :barcode, "
                                       "UnitPrice = :price WHERE PluNo = :plu")
                            .arg(table(session, "SADR_Item")));
    q.bind(QStringLiteral(":name"), item.name)
        .bind(QStringLiteral(":barcode"), item.barcodeValue)
        .bind(QStringLiteral(":price"), item.price)
        .bind(QStringLiteral(":plu"), item.plu);
    if (!run(q))
        return false;
    SqlQuery key(session, QStringLiteral("UPDATE %1 SET KeyNo = :plu WHERE PluNo = :plu")
                              .arg(table(session, "SADR_KeyAssignment")));
    key.bind(QStringLiteral(":plu"), item.plu);
    return run(key);
}

bool SadrItems::insert(Session& session, const ScaleItemValues& item) {
    SqlQuery q(session, QStringLiteral("INSERT INTO %1 (PluNo, UnitPrice, ItemCode, PluName, "
                                       "PluUnit) VALUES (:plu, :price, :barcode, :name, :unit)")
                            .arg(table(session, "SADR_Item")));
    q.bind(QStringLiteral(":plu"), item.plu)
        .bind(QStringLiteral(":price"), item.price)
        .bind(QStringLiteral(":barcode"), item.barcodeValue)
        .bind(QStringLiteral(":name"), item.name)
        .bind(QStringLiteral(":unit"), item.kind);
    if (!run(q))
        return false;
    SqlQuery key(session, QStringLiteral("INSERT INTO %1 (ItemClassCode, PageNo, KeyNo, PluNo) "
                                         "VALUES (:itemClass, :page, :plu, :plu)")
                              .arg(table(session, "SADR_KeyAssignment")));
    key.bind(QStringLiteral(":itemClass"), kSadrItemClass)
        .bind(QStringLiteral(":page"), kSadrPage)
        .bind(QStringLiteral(":plu"), item.plu);
    return run(key);
}

}  // namespace sandogh
