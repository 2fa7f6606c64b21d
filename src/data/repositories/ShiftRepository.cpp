#include "data/repositories/ShiftRepository.h"

#include "data/Session.h"
#include "data/SqlQuery.h"

namespace sandogh {

namespace {

const QString kActive = QStringLiteral("SELECT Code, Name FROM tblShift WHERE LastActiveShift = 1");
const QString kAll = QStringLiteral("SELECT Code, Name FROM tblShift");
const QString kClear =
    QStringLiteral("UPDATE tblShift SET LastActiveShift = 0 WHERE Code = :current");
const QString kSet = QStringLiteral("UPDATE tblShift SET LastActiveShift = 1 WHERE Code = :chosen");

std::optional<QList<Shift>> readShifts(Session& session, const QString& sql) {
    SqlQuery q(session, sql);
    if (!q.exec()) {
        return std::nullopt;
    }
    QList<Shift> shifts;
    while (q.next()) {
        shifts.append(Shift{q.integer(0), q.text(1)});
    }
    return shifts;
}

}  // namespace

std::optional<QList<Shift>> ShiftRepository::active(Session& session) {
    return readShifts(session, kActive);
}

std::optional<QList<Shift>> ShiftRepository::all(Session& session) {
    return readShifts(session, kAll);
}

// Every shift now active is cleared (normally one; a table left with several is repaired on
// the way), then the chosen one is set. Clearing the chosen shift first when it is already
// active is harmless, the second update sets it back.
bool ShiftRepository::makeActive(Session& session, int code) {
    const std::optional<QList<Shift>> current = active(session);
    if (!current) {
        return false;
    }
    for (const Shift& shift : *current) {
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
    // Another desk may have committed its own switch while this one waited on the rows it
    // cleared; then two rows are active and this switch gives way.
    const std::optional<QList<Shift>> after = active(session);
    return after && after->size() == 1;
}

}  // namespace sandogh
