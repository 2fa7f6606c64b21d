#pragma once

#include "AdminCommand.h"

namespace sandogh {

// sandogh-admin internal WORD ...: the internal sales to the shop's branches. Each word is
// a function of its own, dispatched by runInternal.
int runInternalSell(AdminCall& call);

}  // namespace sandogh
