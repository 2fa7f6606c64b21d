#include "AdminCommand.h"

namespace sandogh {

// Each command lives in its own file as run<Name>(AdminCall&).
int runDate(AdminCall& call);
int runWords(AdminCall& call);
int runDevice(AdminCall& call);

const QList<AdminCommand>& adminCommands() {
    static const QList<AdminCommand> commands = {
        {"date", "date [YYYY-MM-DD]          Jalali date and weekday of a Gregorian day", runDate},
        {"words", "words NUMBER               a whole number in Persian words", runWords},
        {"device", "device display|drawer|pec|ports  self-tests of the cash desk's devices",
         runDevice},
    };
    return commands;
}

}  // namespace sandogh
