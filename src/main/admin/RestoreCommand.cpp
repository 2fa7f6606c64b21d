#include <QDir>

#include "AdminArgs.h"
#include "AdminCommand.h"
#include "AdminShop.h"
#include "app/ShopBackup.h"

namespace sandogh {

namespace {

const char* const kUsage =
    "usage: sandogh-admin restore [--dir D] FILE\n"
    "Restores a backup archive over the shop of the program folder. The archive is checked\n"
    "(checksums, schema version, the copy's integrity) before the live shop is touched; the\n"
    "live database is kept beside it as <database>_before_<date>_<time>. No desk may be\n"
    "working on the shop meanwhile.\n";

}  // namespace

// sandogh-admin restore: ShopBackup::restore over the shop of the program folder.
int runRestore(AdminCall& call) {
    const AdminArgs args(call.args, {}, {});
    if (!args.ok() || args.positional().size() != 1) {
        call.err << "sandogh-admin restore: "
                 << (args.ok() ? QStringLiteral("name one archive") : args.error()) << '\n'
                 << kUsage;
        return ExitUsage;
    }
    AdminShop shop(call.programDir, call.err);
    if (!shop.open(QStringLiteral("restore"))) {
        return ExitFailed;
    }
    const ShopBackup::Result result =
        ShopBackup::restore(shop.database().settings(), args.positional().first());
    if (!result.ok) {
        call.err << "sandogh-admin restore: " << result.error << '\n';
        return ExitFailed;
    }
    call.out << "restored schema version " << result.schemaVersion << "; the previous database "
             << "is kept as " << QDir::toNativeSeparators(result.previous) << '\n';
    return ExitOk;
}

}  // namespace sandogh
