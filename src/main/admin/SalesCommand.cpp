#include <QDateTime>

#include "AdminArgs.h"
#include "AdminCommand.h"
#include "AdminShop.h"
#include "devices/ProgramLauncher.h"
#include "sales/ReceiptOptions.h"
#include "sales/ReceiptReader.h"
#include "sales/SaleDelete.h"
#include "sales/SaleList.h"
#include "sales/SaleListModel.h"
#include "sales/SaleReceipt.h"
#include "sales/SaleReprint.h"
#include "settings/Clock.h"

namespace sandogh {

namespace {

const char* const kUsage =
    "usage: sandogh-admin sales list [--kind N] [--last|--first|--all] [--number N] [--date D]\n"
    "                                [--customer TEXT] [--base TEXT]\n"
    "       sandogh-admin sales delete --kind N --number N --date D [--user ID]\n"
    "       sandogh-admin sales reprint --kind N --number N [--date D] [--pdf FILE]\n"
    "With --internal the internal documents handed to branches (kind 2 or 3; the branch in\n"
    "the customer's column, --customer matches its name; a delete needs no --date).\n"
    "Saved documents of a kind (1 purchase, 2 sale, 3 sale return, 4 purchase return; 2 when\n"
    "not given): the list as tab-separated rows (number, date, customer, total, Base, voucher\n"
    "number, document key, voucher key, customer), a delete, or a reprint (the companion\n"
    "program's command, or with --pdf the receipt as a PDF file).\n";

class NoLauncher final : public ProgramLauncher {
public:
    bool startDetached(const QString&, const QStringList&, const QString&, bool) override {
        return false;
    }
};

int usage(AdminCall& call, const QString& problem) {
    call.err << "sandogh-admin sales: " << problem << '\n' << kUsage;
    return ExitUsage;
}

int list(AdminCall& call, const AdminArgs& args, int kind, DocumentFamily family, AdminShop& shop) {
    int choices = 0;
    SaleList::Choice choice = SaleList::Choice::Last500;
    if (args.flag(QStringLiteral("first"))) {
        choice = SaleList::Choice::First500;
        ++choices;
    }
    if (args.flag(QStringLiteral("all"))) {
        choice = SaleList::Choice::All;
        ++choices;
    }
    if (args.flag(QStringLiteral("last"))) {
        ++choices;
    }
    if (choices > 1) {
        return usage(call, QStringLiteral("choose one of --last, --first and --all"));
    }
    SaleListQuery::Filter filter;
    filter.transType = kind;
    filter.docNo = args.value(QStringLiteral("number"));
    filter.docDate = args.value(QStringLiteral("date"));
    filter.customer = args.value(QStringLiteral("customer"));
    filter.base = args.value(QStringLiteral("base"));
    SaleListModel model(shop.database(), family);
    model.load(choice, filter);
    int written = 0;
    for (;;) {
        for (; written < model.rowCount(); ++written) {
            const SaleListQuery::Row& r = model.row(written);
            call.out << r.docNo << '\t' << r.docDate << '\t' << r.customerName << '\t'
                     << QString::number(r.docSum, 'f', 0) << '\t' << r.base << '\t' << r.voucherCode
                     << '\t' << r.code << '\t' << r.documentHId << '\t' << r.customerId << '\n';
        }
        if (!model.canFetchMore()) {
            break;
        }
        model.fetchMore();
    }
    return ExitOk;
}

}  // namespace

// sandogh-admin sales list|delete|reprint: the saved documents' services from the command
// line.
int runSales(AdminCall& call) {
    const AdminArgs args(call.args,
                         {QStringLiteral("kind"), QStringLiteral("number"), QStringLiteral("date"),
                          QStringLiteral("customer"), QStringLiteral("base"), QStringLiteral("pdf"),
                          QStringLiteral("user")},
                         {QStringLiteral("last"), QStringLiteral("first"), QStringLiteral("all"),
                          QStringLiteral("internal")});
    if (!args.ok()) {
        return usage(call, args.error());
    }
    if (args.positional().size() != 1) {
        return usage(call, QStringLiteral("expected one of list, delete and reprint"));
    }
    const QString action = args.positional().first();
    bool ok = false;
    const int kind = args.value(QStringLiteral("kind"), QStringLiteral("2")).toInt(&ok);
    if (!ok || kind < 1 || kind > 4) {
        return usage(call, QStringLiteral("--kind is 1, 2, 3 or 4"));
    }
    const DocumentFamily family =
        args.flag(QStringLiteral("internal")) ? DocumentFamily::Internal : DocumentFamily::Ordinary;
    if (family == DocumentFamily::Internal && kind != 2 && kind != 3) {
        return usage(call, QStringLiteral("internal documents are of --kind 2 or 3"));
    }
    const int user = args.value(QStringLiteral("user"), QStringLiteral("0")).toInt(&ok);
    if (!ok) {
        return usage(call, QStringLiteral("--user needs a user ID"));
    }
    const QString number = args.value(QStringLiteral("number")).trimmed();
    const QString date = args.value(QStringLiteral("date")).trimmed();
    if (action != QLatin1String("list") && action != QLatin1String("delete") &&
        action != QLatin1String("reprint")) {
        return usage(call, QStringLiteral("unknown action ") + action);
    }
    if (action != QLatin1String("list") && number.isEmpty()) {
        return usage(call, QStringLiteral("--number is needed"));
    }
    if (action == QLatin1String("delete") && date.isEmpty() && family == DocumentFamily::Ordinary) {
        return usage(call, QStringLiteral("--date is needed"));
    }
    if (args.has(QStringLiteral("pdf")) && args.value(QStringLiteral("pdf")).isEmpty()) {
        return usage(call, QStringLiteral("--pdf needs a file name"));
    }

    AdminShop shop(call.programDir, call.err);
    if (!shop.open(QStringLiteral("sales"))) {
        return ExitFailed;
    }
    if (action == QLatin1String("list")) {
        return list(call, args, kind, family, shop);
    }
    if (action == QLatin1String("delete")) {
        SystemClock clock;
        SaleDelete deleter(shop.database(), shop.messages(), clock,
                           {user, shop.settings().stationId()});
        const SaleDelete::Outcome outcome = family == DocumentFamily::Internal
                                                ? deleter.deleteInternal(kind, number)
                                                : deleter.deleteOne(kind, number, date);
        return outcome == SaleDelete::Outcome::Deleted ? ExitOk : ExitFailed;
    }
    SaleReprint reprint(shop.database(), shop.messages(), family);
    const SaleReprint::Lookup found = reprint.find(kind, number, date);
    if (found.status == SaleReprint::Lookup::Status::NeedsDate) {
        call.err << "sandogh-admin sales: number " << number
                 << " is on more than one date: give --date\n";
        return ExitFailed;
    }
    if (found.status != SaleReprint::Lookup::Status::Found) {
        return ExitFailed;
    }
    NoLauncher launcher;
    SaleReceipt receipt(shop.database(), shop.settings(), shop.messages(), launcher,
                        call.programDir, nullptr, nullptr);
    ReceiptOptions options;
    options.title = ReceiptReader::reprintTitle();
    options.family = family;
    if (args.has(QStringLiteral("pdf"))) {
        const QString path = args.value(QStringLiteral("pdf"));
        if (!receipt.writePdf(found.code, path, options)) {
            call.err << "sandogh-admin sales: no PDF written to " << path << '\n';
            return ExitFailed;
        }
        call.out << path << '\n';
        return ExitOk;
    }
    const QString command = receipt.command(found.code, options);
    if (command.isEmpty()) {
        return ExitFailed;
    }
    call.out << command << '\n';
    return ExitOk;
}

}  // namespace sandogh
