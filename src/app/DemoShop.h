#pragma once

#include <QList>
#include <QMap>
#include <QString>
#include <QStringList>

#include "app/PermissionLevel.h"

namespace sandogh {

class Database;

// A demo shop to try the program on: the company, an administrator and a cashier, two
// cash desks, a warehouse, the shifts, payment and discount kinds, overhead kinds, return
// causes, units, a few hundred goods with their stock rows, customers in groups and a few
// suppliers, the display greeting and the receipt sentences.
//
// Seeding adds only what is missing, all in one transaction, so running it again changes
// nothing. Keys the program allocates (Types.Counter) are Max + 1 read inside that
// transaction.
class DemoShop {
public:
    struct DemoUser {
        QString userName;
        QString name;
        QString password;
        PermissionLevel level = PermissionLevel::Cashier;
    };

    struct Report {
        bool ok = false;
        QString error;
        QList<DemoUser> createdUsers;  // with their passwords, to be told once
        QMap<QString, int> added;      // rows added, by table
        int totalAdded() const;
    };

    // Whether Provider.txt had to be written.
    enum class ProviderFile { Existed, Written, Failed };

    static const QList<DemoUser>& users();
    static const QString& shopName();
    // The idle text of the customer display; pole displays show Latin letters only.
    static constexpr const char* kGreeting = "Welcome to Sandogh";

    // The six lines of a connection file for a SQLite shop "Data/Shop.sqlite" beside it.
    static QStringList sqliteProviderLines();
    // Writes those lines to <programDir>/Provider.txt unless the file is there already.
    static ProviderFile ensureProviderFile(const QString& programDir, QString* error);

    explicit DemoShop(Database& database) : m_database(database) {}

    // The database must have the shop's tables (init-db or the Migrator).
    Report seed();

private:
    Database& m_database;
};

}  // namespace sandogh
