// Step 2: the generic parameter table with its links, the structured code levels,
// and the customer groups and tags that hang on party rows.

#include "data/schema/ShopSchemaBuild.h"

namespace sandogh::shopschema {

namespace {

TableDef types() {
    // One row per list value, single-valued setting or party (TypeNo 10 and 11).
    // Counter is allocated by the program (Max + 1) and unique over the whole table.
    QList<ColumnDef> columns{
        notNull(integer(QStringLiteral("Counter"))),
        integer(QStringLiteral("TypeNo")),
        codeText(QStringLiteral("Code")),
        nameText(QStringLiteral("Name")),
        nameText(QStringLiteral("NameEng")),
        longText(QStringLiteral("Note")),
        integer(QStringLiteral("Link")),
    };
    // Free slots; for parties Value1 family name, Value2 telephone, Value5 mobile,
    // Value6 e-mail, Value7 address, Value9 birthday.
    for (int slot = 1; slot <= 10; ++slot) {
        const int length = slot == 7 ? kAddressLength : 255;
        columns << text(QStringLiteral("Value%1").arg(slot), length);
    }
    columns << text(QStringLiteral("Value12"), 255) << text(QStringLiteral("Value13"), 255);
    for (int slot = 1; slot <= 6; ++slot) {
        columns << integer(QStringLiteral("ID%1").arg(slot));
    }
    // Party columns.
    columns << bigInt(QStringLiteral("Account")) << money(QStringLiteral("Credit"))
            << integer(QStringLiteral("CstGrpCode"))
            << withDefault(integer(QStringLiteral("DiscountTakenTotal")), QStringLiteral("0"))
            << dateText(QStringLiteral("LastDiscountTakenDate"))
            << integer(QStringLiteral("AccountingGroupID"))
            << withDefault(flag(QStringLiteral("Active")), QStringLiteral("1"))
            << codeText(QStringLiteral("EconomicCode")) << codeText(QStringLiteral("NationalId"))
            << codeText(QStringLiteral("RegistrationNumber"))
            << codeText(QStringLiteral("PostalCode"));
    return table(QStringLiteral("Types"), columns, {QStringLiteral("Counter")});
}

TableDef typesLink() {
    // Counter is allowed under Link; one row per allowed pair.
    return table(QStringLiteral("TypesLink"),
                 {
                     notNull(integer(QStringLiteral("Counter"))),
                     notNull(integer(QStringLiteral("Link"))),
                 },
                 {QStringLiteral("Counter"), QStringLiteral("Link")});
}

TableDef codeParameters() {
    // One row per code level: TypeNo 201..210 accounts, 501..509 goods. The level
    // insert names no Counter, so the database numbers the rows.
    return table(QStringLiteral("Code_Parameters"),
                 {
                     identity(QStringLiteral("Counter")),
                     notNull(integer(QStringLiteral("TypeNo"))),
                     nameText(QStringLiteral("Name")),
                     nameText(QStringLiteral("NameEnglish")),
                     integer(QStringLiteral("DigitQty")),
                     integer(QStringLiteral("ParameterLevel")),
                 },
                 {QStringLiteral("Counter")});
}

TableDef accCode() {
    // The chosen value (Types.Counter) of each of the ten account code levels.
    return table(QStringLiteral("Acc_Code"), levelColumns(10));
}

TableDef customerGroup() {
    return table(QStringLiteral("tblCustomerGroup"),
                 {
                     notNull(integer(QStringLiteral("Code"))),
                     nameText(QStringLiteral("Name")),
                     bigInt(QStringLiteral("Color")),
                     money(QStringLiteral("DiscountPercent")),
                     money(QStringLiteral("BuyFactor")),
                     money(QStringLiteral("AmountRebate")),
                 },
                 {QStringLiteral("Code")});
}

TableDef customerTag() {
    return table(QStringLiteral("CustomerTag"),
                 {
                     notNull(integer(QStringLiteral("Counter"))),
                     flag(QStringLiteral("IsSMSSend")),
                 },
                 {QStringLiteral("Counter")});
}

}  // namespace

MigrationStep parametersStep() {
    MigrationStep step;
    step.version = 2;
    step.description = QStringLiteral("Parameter table, code levels and customer groups");
    step.tables = {types(),   typesLink(),     codeParameters(),
                   accCode(), customerGroup(), customerTag()};
    step.indexes = {
        // Every list is read by TypeNo and searched or checked for repeats by Code.
        index(QStringLiteral("Types"), {QStringLiteral("TypeNo"), QStringLiteral("Code")}),
        // The picker lists the children of one parent.
        index(QStringLiteral("TypesLink"), {QStringLiteral("Link")}),
        // The next level number is Max + 1 of its family: a second one must collide.
        uniqueIndex(QStringLiteral("Code_Parameters"), {QStringLiteral("TypeNo")}),
    };
    return step;
}

}  // namespace sandogh::shopschema
