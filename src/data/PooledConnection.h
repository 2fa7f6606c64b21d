#pragma once

#include <QElapsedTimer>
#include <QHash>
#include <QSqlQuery>
#include <QString>
#include <memory>
#include <thread>

namespace sandogh {

// One physical connection of the pool: a named QSqlDatabase connection that only its
// own thread uses, and the statements prepared on it.
struct PooledConnection {
    QString name;
    std::thread::id thread;
    bool inUse = false;
    bool broken = false;         // lost its server; closed when handed back
    bool inTransaction = false;  // a Transaction is open on it
    int attachedCount = 0;       // SQLite: other databases attached so far
    QElapsedTimer idle;          // since it was last handed back
    // Prepared statements by SQL text; a statement is in use while a query holds it.
    QHash<QString, std::shared_ptr<QSqlQuery>> statements;
};

}  // namespace sandogh
