#include "sales/ShiftService.h"

#include "data/Database.h"
#include "data/Session.h"
#include "data/Transaction.h"
#include "data/repositories/ShiftRepository.h"

namespace sandogh {

namespace {

const QString kModule = QStringLiteral("frmShift");

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
    const std::optional<QList<Shift>> shifts = ShiftRepository::active(session);
    if (!shifts || shifts->isEmpty()) {
        return std::nullopt;
    }
    return shifts->first();
}

QList<Shift> ShiftService::all(Session& session) {
    return ShiftRepository::all(session).value_or(QList<Shift>{});
}

bool ShiftService::switchTo(Session& session, int code) {
    if (session.inTransaction()) {
        return ShiftRepository::makeActive(session, code);
    }
    Transaction tx(session);
    if (!tx.isActive()) {
        return false;
    }
    if (!ShiftRepository::makeActive(session, code)) {
        tx.rollback();
        return false;
    }
    return tx.commit();
}

}  // namespace sandogh
