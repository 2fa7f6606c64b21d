#pragma once

#include <QList>
#include <optional>

#include "data/repositories/Shift.h"

namespace sandogh {

class Session;

// The statements on tblShift: the shifts, the active one (LastActiveShift = 1) and the
// switch from one to another. Every call runs on the caller's session.
class ShiftRepository {
public:
    // The active shifts (normally one); nothing when the statement failed.
    static std::optional<QList<Shift>> active(Session& session);
    // Every shift; nothing when the statement failed.
    static std::optional<QList<Shift>> all(Session& session);
    // Clears every active shift, sets code, and checks that it is the one active shift
    // afterwards. False when a statement failed, the shift does not exist, or another desk
    // switched at the same moment; the caller's transaction is then to be rolled back.
    static bool makeActive(Session& session, int code);
};

}  // namespace sandogh
