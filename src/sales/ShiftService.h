#pragma once

#include <QList>
#include <optional>

#include "data/repositories/Shift.h"

namespace sandogh {

class Database;
class Session;

// The shifts of the shop and the one that is active (LastActiveShift = 1): sales are
// stamped with the active shift, and a desk switches the shop to another.
//
// The static forms run on a session that the caller holds, so a save can read the
// active shift inside its own transaction; the member forms take their own session.
class ShiftService {
public:
    explicit ShiftService(Database& database);

    // The active shift; none when no row is active or the look-up failed (the failure
    // has been reported). With several active rows, the first one read.
    std::optional<Shift> active();
    // Every shift, for the chooser; empty on failure.
    QList<Shift> all();
    // Makes code the one active shift. False (nothing changed) when the shift does not
    // exist or a statement failed.
    bool switchTo(int code);

    static std::optional<Shift> active(Session& session);
    static QList<Shift> all(Session& session);
    // Inside the session's transaction when it has one, else in a transaction of its own.
    static bool switchTo(Session& session, int code);

private:
    Database& m_database;
};

}  // namespace sandogh
