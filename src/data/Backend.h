#pragma once

#include <QString>

namespace sandogh {

// The database servers the program can keep the shop in, chosen by the Provider
// value of the connection file.
enum class Backend {
    SQLite,      // one embedded file per fiscal year, for a single cash desk and the demo
    PostgreSQL,  // a shared server for several cash desks
    SqlServer,   // an existing shop database on Microsoft SQL Server, through ODBC
};

inline QString backendName(Backend backend) {
    switch (backend) {
        case Backend::SQLite:
            return QStringLiteral("SQLite");
        case Backend::PostgreSQL:
            return QStringLiteral("PostgreSQL");
        case Backend::SqlServer:
            return QStringLiteral("SqlServer");
    }
    return {};
}

}  // namespace sandogh
