#pragma once

#include "AdminCommand.h"

namespace sandogh {

// sandogh-admin internal WORD ...: the internal documents exchanged with branches. Each
// word lives in its own file; the call they get has the word removed.
int runInternal(AdminCall& call);
int runInternalSend(AdminCall& call);
int runInternalReceive(AdminCall& call);

}  // namespace sandogh
