#include "AdminCommand.h"

namespace sandogh {

// Each command lives in its own file as run<Name>(AdminCall&).
int runDate(AdminCall& call);
int runWords(AdminCall& call);
int runDevice(AdminCall& call);
int runInitDb(AdminCall& call);
int runDemo(AdminCall& call);
int runSell(AdminCall& call);
int runReceipt(AdminCall& call);
int runReport(AdminCall& call);
int runStockRepair(AdminCall& call);

const QList<AdminCommand>& adminCommands() {
    static const QList<AdminCommand> commands = {
        {"date", "date [YYYY-MM-DD]          Jalali date and weekday of a Gregorian day", runDate},
        {"words", "words NUMBER               a whole number in Persian words", runWords},
        {"device", "device display|drawer|pec|ports  self-tests of the cash desk's devices",
         runDevice},
        {"init-db",
         "init-db                    create or upgrade the shop database of Provider.txt",
         runInitDb},
        {"demo", "demo                       a demo shop (Provider.txt, database, goods, users)",
         runDemo},
        {"sell", "sell [--customer N] [--return] --dry-run ENTRY...  ring up a sale", runSell},
        {"receipt", "receipt CODE [--pdf FILE]  the receipt of a saved sale (command or PDF)",
         runReceipt},
        {"report", "report daily|sales|top|profit|stock|payments|desks ...  the shop's reports",
         runReport},
        {"stock-repair",
         "stock-repair [BARCODE ...]  recompute the stock of articles (all without)",
         runStockRepair},
    };
    return commands;
}

}  // namespace sandogh
