#include "data/scales/OnlineSalesItems.h"

#include "data/Dialect.h"
#include "data/Session.h"
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

QString items(Session& session) {
    return session.dialect().table(QStringLiteral("Items"),
                                   QString::fromLatin1(kOnlineSalesDatabase));
}

}  // namespace

qint64 OnlineSalesItems::countByCode(Session& session, qint64 plu) {
    SqlQuery q(session,
               QStringLiteral("SELECT COUNT(Code) FROM %1 WHERE Code = :plu").arg(items(session)));
    q.setLogging(FailureLogging::Quiet).bind(QStringLiteral(":plu"), plu);
    if (!q.exec() || !q.next())
        return -1;
    return q.int64(0);
}

bool OnlineSalesItems::update(Session& session, const ScaleItemValues& item) {
    SqlQuery q(session, QStringLiteral("UPDATE %1 SET Code = :plu, Name1 = :name, "
                                       "Barcode = :barcode, Price = :price, Type = :type "
                                       "WHERE Code = :plu")
                            .arg(items(session)));
    q.setLogging(FailureLogging::Quiet)
        .bind(QStringLiteral(":plu"), item.plu)
        .bind(QStringLiteral(":name"), item.name)
        .bind(QStringLiteral(":barcode"), item.barcode)
        .bind(QStringLiteral(":price"), item.price)
        .bind(QStringLiteral(":type"), item.kind);
    return q.exec();
}

bool OnlineSalesItems::insert(Session& session, const ScaleItemValues& item) {
    SqlQuery q(
        session,
        QStringLiteral("INSERT INTO %1 (ID, Code, Name1, Name2, BarCode, IranCode, Type, Price, "
                       "ItemCode, AlterPrice, Sect, Grp, Vat, Logo) VALUES (:id, :plu, :name, "
                       ":name2, :barcode, :iranCode, :type, :price, :itemCode, :alterPrice, "
                       ":sect, :grp, :vat, :logo)")
            .arg(items(session)));
    q.setLogging(FailureLogging::Quiet)
        .bind(QStringLiteral(":id"), kTakinItemId)
        .bind(QStringLiteral(":plu"), item.plu)
        .bind(QStringLiteral(":name"), item.name)
        .bind(QStringLiteral(":name2"), QString(""))
        .bind(QStringLiteral(":barcode"), item.barcode)
        .bind(QStringLiteral(":iranCode"), QString(""))
        .bind(QStringLiteral(":type"), item.kind)
        .bind(QStringLiteral(":price"), item.price)
        .bind(QStringLiteral(":itemCode"), item.plu)  // the PLU number doubles as item code
        .bind(QStringLiteral(":alterPrice"), kTakinAlterPrice)
        .bind(QStringLiteral(":sect"), kTakinNoSection)
        .bind(QStringLiteral(":grp"), kTakinNoGroup)
        .bind(QStringLiteral(":vat"), kTakinNoVat)
        .bind(QStringLiteral(":logo"), kTakinNoLogo);
    return q.exec();
}

bool OnlineSalesItems::remove(Session& session, qint64 plu) {
    SqlQuery q(session, QStringLiteral("DELETE FROM %1 WHERE Code = :plu").arg(items(session)));
    q.setLogging(FailureLogging::Quiet).bind(QStringLiteral(":plu"), plu);
    return q.exec();
}

}  // namespace sandogh
