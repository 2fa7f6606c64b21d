#include "sales/ShiftService.h"

#include "data/Database.h"
#include "data/Session.h"
#include "data/SqlQuery.h"
#include "data/Transaction.h"

namespace sandogh {

namespace {

const QString kModule = QStringLiteral("frmShift");

const QString kActive = QStringLiteral("SELECT Code, Name FROM tblShift WHERE LastActiveShift = 1");
const QString kAll = QStringLiteral("SELECT Code, Name FROM tblShift");
const QString kClear =
    QStringLiteral("UPDATE tblShift SET LastActiveShift = 0 WHERE Code = :current");
const QString kSet = QStringLiteral("UPDATE tblShift SET LastActiveShift = 1 WHERE Code = :chosen");

// Rows of a "Code, Name" statement; false when it failed.
bool readShifts(Session& session, const QString& sql, QList<Shift>& shifts) {
    SqlQuery q(session, sql);
    if (!q.exec()) {
        return false;
    }
    while (q.next()) {
        shifts.append(Shift{q.integer(0), q.text(1)});
    }
    return true;
}

// The two updates: every shift now active is cleared (normally one; a table left with
// several is repaired on the way), then the chosen one is set. Clearing the chosen shift
// first when it is already active is harmless, the second update sets it back.
bool runSwitch(Session& session, int code) {
    QList<Shift> current;
    if (!readShifts(session, kActive, current)) {
        return false;
    }
    for (const Shift& shift : current) {
        SqlQuery clear(session, kClear);
        clear.bind(QStringLiteral(":current"), shift.code);
        if (!clear.exec()) {
            return false;
        }
    }
    SqlQuery set(session, kSet);
    set.bind(QStringLiteral(":chosen"), code);
    if (!set.exec() || set.rowsAffected() != 1) {
        return false;  // no such shift: the caller rolls back and the old one stays
    }
    // Another desk may have committed its own switch while this one waited on the rows
    // it cleared; then two rows are active and this switch gives way.
    QList<Shift> after;
    return readShifts(session, kActive, after) && after.size() == 1;
}

}  // namespace

ShiftService::ShiftService(Database& database) : m_database(database) {}

std::optional<Shift> ShiftService::active() {
    Session session = m_database.session(kModule, QStringLiteral("ActiveShift"));
    return active(session);
}

QList<Shift> ShiftService::all() {
    Session session = m_database.session(kModule, QStringLiteral("FillShifts"));
    return all(session);
}

bool ShiftService::switchTo(int code) {
    Session session = m_database.session(kModule, QStringLiteral("ChangeShift"));
    return switchTo(session, code);
}

std::optional<Shift> ShiftService::active(Session& session) {
    QList<Shift> shifts;
    if (!readShifts(session, kActive, shifts) || shifts.isEmpty()) {
        return std::nullopt;
    }
    return shifts.first();
}

QList<Shift> ShiftService::all(Session& session) {
    QList<Shift> shifts;
    if (!readShifts(session, kAll, shifts)) {
        shifts.clear();
    }
    return shifts;
}

bool ShiftService::switchTo(Session& session, int code) {
    if (session.inTransaction()) {
        return runSwitch(session, code);
    }
    Transaction tx(session);
    if (!tx.isActive()) {
        return false;
    }
    if (!runSwitch(session, code)) {
        tx.rollback();
        return false;
    }
    return tx.commit();
}

}  // namespace sandogh
