#pragma once

#include "data/schema/SchemaModel.h"

namespace sandogh {

// Names of the scale vendors' databases that live beside the shop database.
inline constexpr const char* kMizanNetDatabase = "MizanNet";
inline constexpr const char* kSadrDatabase = "Sadr";
inline constexpr const char* kOnlineSalesDatabase = "OnlineSales";

// The shop database (and the tables of the scale vendors' databases) as numbered,
// append-only migration steps, version 1 first. Never edit a published step: add a new one.
const QList<MigrationStep>& shopMigrations();

// The table named `name` in `database` (empty for the shop database) as created by the
// steps, or nullptr. Names compare without regard to case, as the statements use them.
const TableDef* findShopTable(const QString& database, const QString& name);

}  // namespace sandogh
