// Step 9: the goods found by a word anywhere in the name, as people type it, and by the
// structured code: the search form of the name (NameKey) with its word index, and an index
// on ComplexCode.

#include "data/schema/ShopSchemaBuild.h"

namespace sandogh::shopschema {

MigrationStep goodsSearchStep() {
    MigrationStep step;
    step.version = 9;
    step.description = QStringLiteral("Goods found by a word of the name and by structured code");
    const QString g = QStringLiteral("Goods");
    step.addColumns = {{g, nameText(QStringLiteral("NameKey")), {}}};
    step.indexes = {index(g, {QStringLiteral("ComplexCode")})};
    step.textSearches = {{QStringLiteral("GoodsNameSearch"), g, QStringLiteral("NameKey"),
                          QStringLiteral("Name"), QStringLiteral("ID")}};
    return step;
}

}  // namespace sandogh::shopschema
