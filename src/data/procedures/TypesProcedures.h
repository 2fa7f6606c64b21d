#pragma once

#include <optional>

#include "data/Session.h"
#include "data/procedures/TypesRow.h"

namespace sandogh::procedures {

// sp_Types_GetNewCounter (@TypeNo in, @Counter out): a Counter used nowhere in Types, the
// largest of the whole table plus one (Counter is unique over the table, not per list;
// typeNo names the list the caller is about to add to). 0 when the statement failed.
// The caller's insert collides on the key should another seat take the same counter
// first; TypesRepository runs the two in a KeyConflictRetry.
int sp_Types_GetNewCounter(Session& session, int typeNo);

// sp_Types_SelectRow (@Counter): the whole row, or nothing when there is none or the
// statement failed.
std::optional<TypesRow> sp_Types_SelectRow(Session& session, int counter);

}  // namespace sandogh::procedures
