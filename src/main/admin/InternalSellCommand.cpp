// sandogh-admin internal sell: an internal sale or return rung up from the command line.

#include "InternalCommand.h"

#include "AdminArgs.h"
#include "AdminShop.h"
#include "sales/InternalSaleSaver.h"
#include "sales/InternalSaleSession.h"
#include "sales/SaleSession.h"

namespace sandogh {

namespace {

const char* const kUsage =
    "usage: sandogh-admin internal sell --branch ID [--return --of N] ENTRY...\n"
    "An internal sale to the branch ID of tblCenterBranches (or, with --return, the return of\n"
    "internal invoice N), priced as the internal sale screen prices it. Each ENTRY is typed into\n"
    "the barcode box and ended with Enter. Prints \"Code=<n> DocNo=<n> DocSum=<amount>\" and, "
    "when\n"
    "an earlier return of invoice N was replaced, \"Replaced=<its number>\". A refused check\n"
    "prints its message and exits 1.\n";

int usage(AdminCall& call, const QString& problem) {
    call.err << "sandogh-admin internal: " << problem << '\n' << kUsage;
    return ExitUsage;
}

// A number as plain digits: "3", "10000", "7.5".
QString plain(double value) {
    QString text = QString::number(value, 'f', 6);
    while (text.endsWith(u'0')) {
        text.chop(1);
    }
    if (text.endsWith(u'.')) {
        text.chop(1);
    }
    return text;
}

}  // namespace

int runInternalSell(AdminCall& call) {
    const AdminArgs args(call.args, {QStringLiteral("branch"), QStringLiteral("of")},
                         {QStringLiteral("return")});
    if (!args.ok()) {
        return usage(call, args.error());
    }
    bool ok = false;
    const int branch = args.value(QStringLiteral("branch")).toInt(&ok);
    if (!ok || branch <= 0) {
        return usage(call, QStringLiteral("--branch needs the branch's ID"));
    }
    const bool isReturn = args.flag(QStringLiteral("return"));
    const QString of = args.value(QStringLiteral("of")).trimmed();
    if (isReturn != args.has(QStringLiteral("of"))) {
        return usage(call, QStringLiteral("--return and --of N go together"));
    }
    if (isReturn && (of.isEmpty() || of.toLongLong(&ok) <= 0 || !ok)) {
        return usage(call, QStringLiteral("--of needs an invoice number"));
    }
    if (args.positional().isEmpty()) {
        return usage(call, QStringLiteral("no ENTRY given"));
    }

    AdminShop shop(call.programDir, call.err);
    if (!shop.open(QStringLiteral("internal"))) {
        return ExitFailed;
    }
    if (!shop.database().session(QStringLiteral("sandogh-admin"), QStringLiteral("internal"))) {
        return ExitFailed;  // the connection message has been shown
    }
    SystemClock clock;
    InternalSaleSession sale(shop.database(), shop.settings(), shop.messages(), clock);
    if (!sale.selectBranch(branch)) {
        call.err << "sandogh-admin internal: no branch " << branch << '\n';
        return ExitFailed;
    }
    if (isReturn) {
        sale.entry().setMode(SaleMode::Return);
        sale.setReturnedInvoice(of);
    }
    for (const QString& entry : args.positional()) {
        const EntryOutcome outcome = sale.entry().enterText(entry);
        if (outcome.refused || outcome.notFound) {
            call.err << "sandogh-admin internal: nothing rung up for \"" << outcome.boxText
                     << "\"\n";
            return ExitFailed;
        }
    }
    const InternalSaleResult r =
        InternalSaleSaver(shop.database(), shop.messages(), clock).save(sale);
    if (!r.saved) {
        return ExitFailed;
    }
    call.out << "Code=" << r.code << " DocNo=" << r.docNo << " DocSum=" << plain(r.docSum) << '\n';
    if (!r.replacedDocNo.isEmpty()) {
        call.out << "Replaced=" << r.replacedDocNo << '\n';
    }
    return ExitOk;
}

}  // namespace sandogh
