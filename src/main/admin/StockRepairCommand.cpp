#include "AdminArgs.h"
#include "AdminCommand.h"
#include "AdminShop.h"
#include "data/Session.h"
#include "data/procedures/StockProcedures.h"

namespace sandogh {

namespace {

const char* const kUsage =
    "usage: sandogh-admin stock-repair [--dir D] [BARCODE ...]\n"
    "Recomputes the stock of the given articles from their document lines, or of every\n"
    "article without barcodes, and prints how many articles were recomputed. Barcodes that\n"
    "are no article are named on the error stream.\n";

int usage(AdminCall& call, const QString& problem) {
    call.err << "sandogh-admin stock-repair: " << problem << '\n' << kUsage;
    return ExitUsage;
}

}  // namespace

// sandogh-admin stock-repair: sp_StockRepair on the shop database of the program folder.
int runStockRepair(AdminCall& call) {
    const AdminArgs args(call.args, {}, {});
    if (!args.ok()) {
        return usage(call, args.error());
    }
    QStringList barcodes;
    for (const QString& word : args.positional()) {
        const QString barcode = word.trimmed();
        if (barcode.isEmpty()) {
            return usage(call, QStringLiteral("an empty barcode"));
        }
        if (!barcodes.contains(barcode)) {
            barcodes << barcode;
        }
    }

    AdminShop shop(call.programDir, call.err);
    if (!shop.open(QStringLiteral("stock-repair"))) {
        return ExitFailed;
    }
    Session session =
        shop.database().session(QStringLiteral("sandogh-admin"), QStringLiteral("stock-repair"));
    if (!procedures::sp_StockRepair(session, barcodes)) {
        return ExitFailed;
    }
    qint64 repaired = 0;
    if (barcodes.isEmpty()) {
        repaired = procedures::stockRowCount(session);
    } else {
        for (const QString& barcode : barcodes) {
            if (procedures::stockRowCount(session, barcode) > 0) {
                ++repaired;
            } else {
                call.err << "sandogh-admin stock-repair: no article \"" << barcode << "\"\n";
            }
        }
    }
    if (session.lastError().isError()) {
        return ExitFailed;
    }
    call.out << repaired << '\n';
    return ExitOk;
}

}  // namespace sandogh
