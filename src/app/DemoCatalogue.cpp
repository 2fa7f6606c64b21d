#include "app/DemoCatalogue.h"

#include "app/DemoGoods.h"
#include "app/DemoParties.h"
#include "data/DemoSeeder.h"
#include "data/repositories/GoodsSearchQuery.h"
#include "data/repositories/SearchKeys.h"
#include "data/repositories/TypesRepository.h"

namespace sandogh {

namespace {

const QString kTypes = QStringLiteral("Types");

// The units by name, adding the missing ones; the Counter of each demo unit in order.
QList<qint64> seedUnits(DemoSeeder& seeder, qint64& nextCounter) {
    QHash<QString, qint64> counters = seeder.numbersByKey(
        QStringLiteral("Types"), QStringLiteral("Name"), QStringLiteral("Counter"),
        {QStringLiteral("TypeNo"), {DemoCatalogue::kUnitTypeNo}});
    QList<qint64> units;
    int code = 0;
    for (const QString& name : DemoGoods::unitNames()) {
        ++code;
        const QString key = name.toLower();
        if (!counters.contains(key)) {
            const qint64 counter = nextCounter++;
            seeder.insert(kTypes, {{QStringLiteral("Counter"), counter},
                                   {QStringLiteral("TypeNo"), DemoCatalogue::kUnitTypeNo},
                                   {QStringLiteral("Code"), QString::number(code)},
                                   {QStringLiteral("Name"), name},
                                   {QStringLiteral("Active"), 1}});
            counters.insert(key, counter);
        }
        units << counters.value(key);
    }
    return units;
}

void seedGoods(DemoSeeder& seeder, const QList<qint64>& units) {
    const QList<DemoGoods::Article> articles = DemoGoods::articles();
    const QSet<QString> goods = seeder.keys(QStringLiteral("Goods"), QStringLiteral("EAN_Code"));
    const QSet<QString> stock = seeder.keys(QStringLiteral("Stock"), QStringLiteral("Barcode"));
    const QSet<QString> placed =
        seeder.keys(QStringLiteral("BarcodeWarehouse"), QStringLiteral("EanCode"),
                    {QStringLiteral("WarehouseCode"), {DemoCatalogue::kWarehouseCode}});
    for (const DemoGoods::Article& a : articles) {
        if (!goods.contains(a.barcode)) {
            const int kind = a.weighed ? 1 : 0;
            seeder.insert(QStringLiteral("Goods"),
                          {{QStringLiteral("EAN_Code"), a.barcode},
                           {QStringLiteral("Spec_Code"), a.specCode},
                           {QStringLiteral("Name"), a.name},
                           {QStringLiteral("NameKey"), GoodsSearchQuery::searchKey(a.name)},
                           {QStringLiteral("C_In_Paket"), 1},
                           {QStringLiteral("G_Min"), 0},
                           {QStringLiteral("G_Max"), 0},
                           {QStringLiteral("Note"), a.family},
                           {QStringLiteral("Spec_Group"), 0},
                           {QStringLiteral("Cost"), a.price},
                           {QStringLiteral("Cost2"), a.price},
                           {QStringLiteral("ComplexCode"), QString()},
                           {QStringLiteral("Unit"), units.value(static_cast<int>(a.unit))},
                           {QStringLiteral("Type"), kind},
                           {QStringLiteral("Pic"), QString()},
                           {QStringLiteral("AQIS"), 0},
                           {QStringLiteral("ArticlePrice"), a.price},
                           {QStringLiteral("TaxValue"), a.taxPercent},
                           {QStringLiteral("ISFavorite"), a.favourite ? 1 : 0},
                           {QStringLiteral("FavoriteTab"), a.favouriteTab},
                           {QStringLiteral("GType"), kind},
                           {QStringLiteral("EnName"), a.latinName},
                           {QStringLiteral("StockNo1"), a.shelf},
                           {QStringLiteral("StockNo2"), QString()},
                           {QStringLiteral("SyncInsert"), 0},
                           {QStringLiteral("ISActive"), 1}});
        }
        if (!stock.contains(a.barcode)) {
            seeder.insert(QStringLiteral("Stock"), {{QStringLiteral("Barcode"), a.barcode},
                                                    {QStringLiteral("Import"), 0},
                                                    {QStringLiteral("Export"), 0},
                                                    {QStringLiteral("Stock"), 0},
                                                    {QStringLiteral("Branch"), 1}});
        }
        if (!placed.contains(a.barcode)) {
            seeder.insert(QStringLiteral("BarcodeWarehouse"),
                          {{QStringLiteral("EanCode"), a.barcode},
                           {QStringLiteral("WarehouseCode"), DemoCatalogue::kWarehouseCode},
                           {QStringLiteral("Note"), QString()}});
        }
    }
}

void seedParties(DemoSeeder& seeder, qint64& nextCounter) {
    const QSet<QString> groups =
        seeder.keys(QStringLiteral("tblCustomerGroup"), QStringLiteral("Code"));
    for (const DemoParties::Group& g : DemoParties::groups()) {
        if (!groups.contains(QString::number(g.code))) {
            seeder.insert(QStringLiteral("tblCustomerGroup"),
                          {{QStringLiteral("Code"), g.code},
                           {QStringLiteral("Name"), g.name},
                           {QStringLiteral("Color"), g.color},
                           {QStringLiteral("DiscountPercent"), g.discountPercent},
                           {QStringLiteral("BuyFactor"), 0},
                           {QStringLiteral("AmountRebate"), 0}});
        }
    }

    // Persons and companies share one run of party codes.
    const QSet<QString> parties = seeder.keys(
        QStringLiteral("Types"), QStringLiteral("Code"),
        {QStringLiteral("TypeNo"), {TypesRepository::kPersons, TypesRepository::kCompanies}});
    for (const DemoParties::Party& p : DemoParties::parties()) {
        if (parties.contains(p.code)) {
            continue;
        }
        seeder.insert(kTypes, {{QStringLiteral("Counter"), nextCounter++},
                               {QStringLiteral("TypeNo"), p.typeNo},
                               {QStringLiteral("Code"), p.code},
                               {QStringLiteral("Name"), p.name},
                               {QStringLiteral("Value1"), p.familyName},
                               {QStringLiteral("NameKey"), SearchKeys::party(p.name, p.familyName)},
                               {QStringLiteral("Value2"), p.telephone},
                               {QStringLiteral("Value5"), p.mobile},
                               {QStringLiteral("Value7"), p.address},
                               {QStringLiteral("Value9"), p.birthday},
                               {QStringLiteral("Account"), 0},
                               {QStringLiteral("Credit"), 0},
                               {QStringLiteral("CstGrpCode"), p.groupCode},
                               {QStringLiteral("DiscountTakenTotal"), 0},
                               {QStringLiteral("AccountingGroupID"), 0},
                               {QStringLiteral("Active"), 1}});
    }
}

}  // namespace

void DemoCatalogue::seed(DemoSeeder& seeder) {
    // Types.Counter is unique over the whole table: Max + 1, read inside the transaction.
    qint64 nextCounter = seeder.largest(QStringLiteral("Types"), QStringLiteral("Counter")) + 1;
    const QList<qint64> units = seedUnits(seeder, nextCounter);
    seedGoods(seeder, units);
    seedParties(seeder, nextCounter);
}

}  // namespace sandogh
