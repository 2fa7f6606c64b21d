#include <algorithm>

#include <QDir>
#include <QFileInfo>

#include "AdminArgs.h"
#include "AdminShop.h"
#include "InternalCommand.h"
#include "sales/InternalReceive.h"
#include "sales/InternalSend.h"
#include "settings/BranchTransferSettings.h"
#include "settings/SettingKeys.h"

namespace sandogh {

namespace {

const char* const kSendUsage =
    "usage: sandogh-admin internal send --branch ID [--all-unsent] [--out FILE] [NUMBER ...]\n"
    "Writes the internal sale invoices of the branch given by their numbers, or with\n"
    "--all-unsent every one not sent yet, to RptFactors.txt (in the transfer folder, or FILE)\n"
    "and marks them sent. Prints the file and the number of invoices written.\n";
const char* const kReceiveUsage =
    "usage: sandogh-admin internal receive FILE\n"
    "Brings the invoices of a RptFactors.txt from the centre into this shop as internal\n"
    "receipts; prints how many were received and how many this shop had already. A file\n"
    "refused, or one whose invoices were all received before, ends with exit code 1.\n";

int usage(AdminCall& call, const char* word, const char* text, const QString& problem) {
    call.err << "sandogh-admin internal " << word << ": " << problem << '\n' << text;
    return ExitUsage;
}

}  // namespace

int runInternalSend(AdminCall& call) {
    const AdminArgs args(call.args, {QStringLiteral("branch"), QStringLiteral("out")},
                         {QStringLiteral("all-unsent")});
    if (!args.ok()) {
        return usage(call, "send", kSendUsage, args.error());
    }
    bool ok = false;
    const int branch = args.value(QStringLiteral("branch")).toInt(&ok);
    if (!ok || branch <= 0) {
        return usage(call, "send", kSendUsage, QStringLiteral("--branch needs a branch ID"));
    }
    const bool allUnsent = args.flag(QStringLiteral("all-unsent"));
    if (allUnsent == !args.positional().isEmpty()) {
        return usage(call, "send", kSendUsage,
                     QStringLiteral("give invoice numbers or --all-unsent, not both"));
    }
    if (args.has(QStringLiteral("out")) && args.value(QStringLiteral("out")).isEmpty()) {
        return usage(call, "send", kSendUsage, QStringLiteral("--out needs a file name"));
    }

    AdminShop shop(call.programDir, call.err);
    if (!shop.open(QStringLiteral("internal send"))) {
        return ExitFailed;
    }
    InternalSend send(shop.database(), shop.messages());
    const QList<InternalTransferRepository::Invoice> invoices = send.invoices(branch);
    QList<qint64> ticked;
    if (allUnsent) {
        for (const InternalTransferRepository::Invoice& i : invoices) {
            if (!i.sent) {
                ticked << i.code;
            }
        }
    }
    for (const QString& number : args.positional()) {
        const auto found = std::find_if(invoices.cbegin(), invoices.cend(), [&](const auto& i) {
            return i.docNo.trimmed() == number.trimmed();
        });
        if (found == invoices.cend()) {
            call.err << "sandogh-admin internal send: no internal sale " << number << " of branch "
                     << branch << '\n';
            return ExitFailed;
        }
        ticked << found->code;
    }
    QString path = args.value(QStringLiteral("out"));
    if (path.isEmpty()) {
        QSettingsStore store(QString::fromLatin1(settingkeys::TransferApplication));
        const BranchTransferSettings settings(store);
        path = InternalSend::pathIn(InternalSend::folder(&settings));
    }
    if (send.send(branch, ticked, path, InternalSend::shopId(shop.database())) !=
        InternalSend::Outcome::Sent) {
        return ExitFailed;
    }
    call.out << QDir::toNativeSeparators(QFileInfo(path).absoluteFilePath()) << '\t'
             << ticked.size() << '\n';
    return ExitOk;
}

int runInternalReceive(AdminCall& call) {
    const AdminArgs args(call.args, {}, {});
    if (!args.ok()) {
        return usage(call, "receive", kReceiveUsage, args.error());
    }
    if (args.positional().size() != 1) {
        return usage(call, "receive", kReceiveUsage, QStringLiteral("expected one FILE"));
    }
    AdminShop shop(call.programDir, call.err);
    if (!shop.open(QStringLiteral("internal receive"))) {
        return ExitFailed;
    }
    SystemClock clock;
    InternalReceive receive(shop.database(), shop.messages(), clock,
                            {0, shop.settings().stationId()});
    const InternalReceive::Outcome outcome = receive.receive(args.positional().first());
    if (!receive.problem().isEmpty()) {
        call.err << "sandogh-admin internal receive: " << receive.problem() << '\n';
    }
    if (outcome == InternalReceive::Outcome::Received ||
        outcome == InternalReceive::Outcome::AlreadyReceived) {
        call.out << "received " << receive.receivedCount() << ", already here "
                 << receive.skippedCount() << '\n';
    }
    return outcome == InternalReceive::Outcome::Received ? ExitOk : ExitFailed;
}

}  // namespace sandogh
