#include <QDir>

#include "AdminArgs.h"
#include "AdminCommand.h"
#include "AdminShop.h"
#include "app/ShopBackup.h"

namespace sandogh {

namespace {

const char* const kUsage =
    "usage: sandogh-admin backup [--dir D] [--out FILE]\n"
    "Backs the shop up into one archive (a tar file with manifest.json): a consistent copy\n"
    "taken while the desks go on selling. Without --out the archive is written to the\n"
    "program folder as <database>-<date>_<time>.tar. Prints the archive's path.\n";

}  // namespace

// sandogh-admin backup: ShopBackup::backup on the shop of the program folder.
int runBackup(AdminCall& call) {
    const AdminArgs args(call.args, {QStringLiteral("out")}, {});
    if (!args.ok() || !args.positional().isEmpty()) {
        call.err << "sandogh-admin backup: "
                 << (args.ok() ? QStringLiteral("unexpected words") : args.error()) << '\n'
                 << kUsage;
        return ExitUsage;
    }
    AdminShop shop(call.programDir, call.err);
    if (!shop.open(QStringLiteral("backup"))) {
        return ExitFailed;
    }
    const QString archive =
        args.value(QStringLiteral("out"),
                   ShopBackup::defaultArchive(shop.database().settings(), call.programDir));
    const ShopBackup::Result result = ShopBackup::backup(shop.database(), archive);
    if (!result.ok) {
        call.err << "sandogh-admin backup: " << result.error << '\n';
        return ExitFailed;
    }
    call.out << QDir::toNativeSeparators(result.archive) << '\n';
    return ExitOk;
}

}  // namespace sandogh
