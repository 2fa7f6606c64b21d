#pragma once

#include <QList>
#include <QString>
#include <optional>

#include "data/repositories/CheckResult.h"
#include "data/repositories/CustomerGroup.h"

namespace sandogh {

class Database;

// The customer groups (tblCustomerGroup) that customers are given through
// Types.CstGrpCode.
class CustomerGroupRepository {
public:
    explicit CustomerGroupRepository(Database& database);

    // The groups by code, narrowed to those whose name holds the text.
    QList<CustomerGroup> list(const QString& nameText = {});
    std::optional<CustomerGroup> find(int code);
    // The next free code: the largest plus one (1 for the first group); 0 on failure.
    int nextCode();

    // The save checks: name given, discount a percent.
    CheckResult check(const CustomerGroup& group);
    // A group of code 0 is new: it takes the next code (set in group). Others are updated.
    CheckResult save(CustomerGroup& group);

    // Customers given the group; -1 when unknown.
    int memberCount(int code);
    // Before a delete: passed with the question when no customer has the group.
    CheckResult canDelete(int code);
    // Deletes the group, refused as canDelete() refuses.
    CheckResult remove(int code);

private:
    Database& m_database;
};

}  // namespace sandogh
