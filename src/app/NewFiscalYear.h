#pragma once

#include <QString>
#include <QStringList>

#include "data/ConnectionSettings.h"

namespace sandogh {

class Database;

// Opens the next fiscal year: a new database on the same backend (SQLite: a file beside the
// present one; PostgreSQL: a database on the same server) named by the owner, brought to
// the program's schema, holding the master data of the present year (YearTransfer's tables:
// the catalogue, parties with their accounts, users, desks, shifts, the parameter table),
// each customer's closing balance as the opening credit, and each article's closing stock
// as one opening stock document. The present year is only read (its stock recomputed) and
// stays as it was. When any step fails the new database is removed again.
class NewFiscalYear {
public:
    struct Result {
        bool ok = false;
        QString error;  // in English, for the person at the command line
        QString database;
        int articles = 0;  // lines of the opening stock document
        int customers = 0;
    };

    // DocNo and Note of the opening stock document.
    static constexpr const char* kOpeningDocNo = "0";
    static const QString& openingNote();

    // name: letters, digits and "_"; another name than the present year's.
    static Result open(Database& present, const QString& name, const QString& jalaliToday);

    // The fiscal-year databases of the shop's backend (the present one among them), by name.
    static QStringList years(const ConnectionSettings& settings);
};

}  // namespace sandogh
