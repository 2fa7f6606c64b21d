// Step 11: what each user may do beyond the role: the cash desks a user may sell at and the
// permission lists of roles and users.

#include "data/schema/ShopSchemaBuild.h"

namespace sandogh::shopschema {

namespace {

TableDef userStation() {
    // Which cash desk (Stations.ID) a user may work at; a user with no row may use any.
    return table(QStringLiteral("UserStation"),
                 {
                     identity(QStringLiteral("ID")),
                     notNull(integer(QStringLiteral("UserID"))),
                     notNull(integer(QStringLiteral("StationID"))),
                 },
                 {QStringLiteral("ID")});
}

TableDef userPermission() {
    // One permission of a role (UserID 0, PermissionLevel the role) or of one user
    // (UserID the user, PermissionLevel 0), allowed or taken away; a permission with no
    // row keeps what the role, or else the program, gives.
    return table(
        QStringLiteral("UserPermission"),
        {
            identity(QStringLiteral("ID")),
            withDefault(notNull(integer(QStringLiteral("PermissionLevel"))), QStringLiteral("0")),
            withDefault(notNull(integer(QStringLiteral("UserID"))), QStringLiteral("0")),
            notNull(text(QStringLiteral("Permission"), 50)),
            withDefault(notNull(flag(QStringLiteral("Allowed"))), QStringLiteral("1")),
        },
        {QStringLiteral("ID")});
}

}  // namespace

MigrationStep userRightsStep() {
    MigrationStep step;
    step.version = 11;
    step.description = QStringLiteral("Cash desks of users, permission lists of roles and users");
    step.tables = {userStation(), userPermission()};
    step.indexes = {
        uniqueIndex(QStringLiteral("UserStation"),
                    {QStringLiteral("UserID"), QStringLiteral("StationID")}),
        uniqueIndex(QStringLiteral("UserPermission"),
                    {QStringLiteral("PermissionLevel"), QStringLiteral("UserID"),
                     QStringLiteral("Permission")}),
    };
    return step;
}

}  // namespace sandogh::shopschema
