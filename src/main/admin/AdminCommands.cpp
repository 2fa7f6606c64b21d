#include "AdminCommand.h"
#include "InternalCommand.h"

namespace sandogh {

// Each command lives in its own file as run<Name>(AdminCall&).
int runDate(AdminCall& call);
int runWords(AdminCall& call);
int runDevice(AdminCall& call);
int runInitDb(AdminCall& call);
int runDemo(AdminCall& call);
int runSell(AdminCall& call);
int runBuy(AdminCall& call);
int runReceipt(AdminCall& call);
int runReport(AdminCall& call);
int runStockRepair(AdminCall& call);
int runBackup(AdminCall& call);
int runRestore(AdminCall& call);
int runNewYear(AdminCall& call);
int runSales(AdminCall& call);
int runInternal(AdminCall& call);

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
        {"buy", "buy --supplier N --group ID [--return] LINE...  save a purchase", runBuy},
        {"receipt", "receipt CODE [--pdf FILE]  the receipt of a saved sale (command or PDF)",
         runReceipt},
        {"report", "report daily|sales|top|profit|stock|payments|desks ...  the shop's reports",
         runReport},
        {"stock-repair",
         "stock-repair [BARCODE ...]  recompute the stock of articles (all without)",
         runStockRepair},
        {"backup", "backup [--out FILE]         back the shop up into one archive", runBackup},
        {"restore", "restore FILE               restore a backup archive over the shop",
         runRestore},
        {"new-year", "new-year --name NAME        open the next fiscal year as database NAME",
         runNewYear},
        {"sales", "sales list|delete|reprint ...  saved documents: list, delete, reprint",
         runSales},
        {"internal", "internal sell|send|receive ...  internal sales to branches and their file",
         runInternal},
    };
    return commands;
}

}  // namespace sandogh
