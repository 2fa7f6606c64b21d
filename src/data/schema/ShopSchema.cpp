#include "data/schema/ShopSchema.h"

#include "data/schema/ShopSchemaBuild.h"

namespace sandogh {

const QList<MigrationStep>& shopMigrations() {
    static const QList<MigrationStep> steps{
        shopschema::siteStep(),           shopschema::parametersStep(),
        shopschema::goodsStep(),          shopschema::documentsStep(),
        shopschema::accountsStep(),       shopschema::giftCardsStep(),
        shopschema::scaleVendorsStep(),   shopschema::lookupsStep(),
        shopschema::goodsSearchStep(),    shopschema::saleAuditStep(),
        shopschema::userRightsStep(),     shopschema::reportsStep(),
        shopschema::saleListSearchStep(), shopschema::stockMonthsStep(),
    };
    return steps;
}

const TableDef* findShopTable(const QString& database, const QString& name) {
    for (const MigrationStep& step : shopMigrations()) {
        for (const TableDef& t : step.tables) {
            if (t.database.compare(database, Qt::CaseInsensitive) == 0 &&
                t.name.compare(name, Qt::CaseInsensitive) == 0) {
                return &t;
            }
        }
    }
    return nullptr;
}

}  // namespace sandogh
