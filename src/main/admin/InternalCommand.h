#pragma once

#include "AdminCommand.h"

namespace sandogh {

// sandogh-admin internal WORD ...: the internal sales to the shop's branches and the file
// that carries them. Each word lives in its own file; the call they get has the word removed.
int runInternal(AdminCall& call);
int runInternalSell(AdminCall& call);
int runInternalSend(AdminCall& call);
int runInternalReceive(AdminCall& call);

}  // namespace sandogh
