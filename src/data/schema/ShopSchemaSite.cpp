// Step 1: the shop, its cash desks, users and shifts, and the small master tables
// that carry no documents.

#include "data/schema/ShopSchemaBuild.h"

namespace sandogh::shopschema {

namespace {

TableDef stations() {
    // Looked up by the machine's name; ID is what documents carry as StationID.
    return table(QStringLiteral("Stations"),
                 {
                     identity(QStringLiteral("ID")),
                     notNull(text(QStringLiteral("Station_Name"), 100)),
                 },
                 {QStringLiteral("ID")});
}

TableDef users() {
    return table(QStringLiteral("Users"),
                 {
                     identity(QStringLiteral("ID")),
                     nameText(QStringLiteral("Name")),
                     text(QStringLiteral("UserName"), 100),
                     text(QStringLiteral("Password"), 255),
                     integer(QStringLiteral("PermissionLevel")),
                     nameText(QStringLiteral("Location")),
                     withDefault(flag(QStringLiteral("Active")), QStringLiteral("1")),
                     integer(QStringLiteral("UserGroupId")),
                 },
                 {QStringLiteral("ID")});
}

TableDef company() {
    // One row: the heading of receipts and the shop name of the login screen.
    return table(QStringLiteral("Company"),
                 {
                     nameText(QStringLiteral("Company_Name")),
                     text(QStringLiteral("Company_Tel"), 100),
                     text(QStringLiteral("Company_Address"), kAddressLength),
                     longText(QStringLiteral("Company_Logo")),
                     text(QStringLiteral("Company_Reg"), 100),
                     longText(QStringLiteral("Background")),
                 });
}

TableDef display() {
    // One row: the idle greeting of the customer display.
    return table(QStringLiteral("Display"), {text(QStringLiteral("Display"), 255)});
}

TableDef supplierStd() {
    return table(QStringLiteral("Supplier_Std"), {notNull(nameText(QStringLiteral("Supp_Std")))});
}

TableDef shift() {
    return table(QStringLiteral("tblShift"),
                 {
                     notNull(integer(QStringLiteral("Code"))),
                     nameText(QStringLiteral("Name")),
                     withDefault(flag(QStringLiteral("LastActiveShift")), QStringLiteral("0")),
                 },
                 {QStringLiteral("Code")});
}

TableDef centerBranches() {
    // TypeNo 1 is the centre, 2 a branch; rows are inserted without an ID.
    return table(QStringLiteral("tblCenterBranches"),
                 {
                     identity(QStringLiteral("ID")),
                     nameText(QStringLiteral("Name")),
                     integer(QStringLiteral("TypeNo")),
                 },
                 {QStringLiteral("ID")});
}

TableDef sentences() {
    // The sentence of the day printed at the foot of a receipt.
    return table(QStringLiteral("Sentences"), {
                                                  longText(QStringLiteral("Description")),
                                                  nameText(QStringLiteral("Author")),
                                              });
}

// Tables that are carried into a new fiscal year but whose columns no screen of the
// program names; they get a row key so that the year transfer can copy them.
TableDef keyOnly(const QString& tableName) {
    return table(tableName, {identity(QStringLiteral("ID"))}, {QStringLiteral("ID")});
}

}  // namespace

MigrationStep siteStep() {
    MigrationStep step;
    step.version = 1;
    step.description = QStringLiteral("Shop, cash desks, users, shifts and branches");
    step.tables = {
        stations(),
        users(),
        company(),
        display(),
        supplierStd(),
        shift(),
        centerBranches(),
        sentences(),
        keyOnly(QStringLiteral("tblUser")),
        keyOnly(QStringLiteral("CostDocs")),
        keyOnly(QStringLiteral("TransferTemp")),
    };
    step.indexes = {
        uniqueIndex(QStringLiteral("Stations"), {QStringLiteral("Station_Name")}),
        uniqueIndex(QStringLiteral("Supplier_Std"), {QStringLiteral("Supp_Std")}),
    };
    return step;
}

}  // namespace sandogh::shopschema
