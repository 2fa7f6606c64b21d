#pragma once

#include <QList>
#include <optional>

#include "data/repositories/CenterBranch.h"

namespace sandogh {

class Session;

// The statements on tblCenterBranches: the centre and the shop's branches that internal
// documents name as their party. Every call runs on the caller's session.
class CenterBranchesRepository {
public:
    static constexpr int kCentre = 1;
    static constexpr int kBranch = 2;

    // The rows of one kind in key order; nothing when the statement failed.
    static std::optional<QList<CenterBranch>> ofKind(Session& session, int typeNo);
    // The branch with this key, of any kind; nothing when there is none or the statement
    // failed.
    static std::optional<CenterBranch> find(Session& session, int id);
    // The key of the centre row, inserting it on first need; 0 when a statement failed.
    // Run it inside the caller's transaction so that two desks do not both insert it.
    static int centre(Session& session);
    // Adds a branch of the kind and returns its key; 0 when the statement failed.
    static int add(Session& session, const QString& name, int typeNo);
};

}  // namespace sandogh
