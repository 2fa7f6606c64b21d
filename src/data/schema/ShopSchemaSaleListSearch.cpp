// Step 13: the saved documents found by a word anywhere in their customer's name and family
// or in their Base, as people type it: the search form of a party's name and family
// (Types.NameKey) and of a header's Base (Whs_QTYDocH.BaseKey), each with its word index.

#include "data/schema/ShopSchemaBuild.h"

namespace sandogh::shopschema {

MigrationStep saleListSearchStep() {
    MigrationStep step;
    step.version = 13;
    step.description = QStringLiteral("Documents found by a word of the customer and of Base");
    const QString types = QStringLiteral("Types");
    const QString headers = QStringLiteral("Whs_QTYDocH");
    // Name and family are 200 and 255 characters; their key holds both and the space.
    step.addColumns = {{types, text(QStringLiteral("NameKey"), 500), {}},
                       {headers, nameText(QStringLiteral("BaseKey")), {}}};
    TextSearchDef parties{QStringLiteral("PartyNameSearch"), types, QStringLiteral("NameKey"),
                          QStringLiteral("Name"), QStringLiteral("Counter")};
    parties.moreSources = {QStringLiteral("Value1")};
    step.textSearches = {parties,
                         {QStringLiteral("DocumentBaseSearch"), headers, QStringLiteral("BaseKey"),
                          QStringLiteral("Base"), QStringLiteral("Code")}};
    return step;
}

}  // namespace sandogh::shopschema
