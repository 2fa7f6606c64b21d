#include "AdminArgs.h"
#include "AdminCommand.h"
#include "AdminShop.h"
#include "devices/ProgramLauncher.h"
#include "sales/ReceiptOptions.h"
#include "sales/ReceiptReader.h"
#include "sales/SaleReceipt.h"

namespace sandogh {

namespace {

const char* const kUsage =
    "usage: sandogh-admin receipt CODE [--dir D] [--pdf FILE | --png FILE [--dots N]] [--a4]\n"
    "                              [--reprint]\n"
    "Prints the companion program's receipt command of the saved sale with this document\n"
    "key (Whs_QTYDocH.Code); with --pdf writes its receipt as a PDF file instead, with --png\n"
    "the 1-bit image an ESC/POS receipt printer gets (N dots wide: 576 or 384).\n";

// Nothing is started from here: the command is printed.
class NoLauncher final : public ProgramLauncher {
public:
    bool startDetached(const QString&, const QStringList&, const QString&, bool) override {
        return false;
    }
};

int usage(AdminCall& call, const QString& problem) {
    call.err << "sandogh-admin receipt: " << problem << '\n' << kUsage;
    return ExitUsage;
}

}  // namespace

// sandogh-admin receipt CODE: the receipt of a saved sale, as the companion program would
// get it or as a PDF laid out here.
int runReceipt(AdminCall& call) {
    const AdminArgs args(call.args,
                         {QStringLiteral("pdf"), QStringLiteral("png"), QStringLiteral("dots")},
                         {QStringLiteral("a4"), QStringLiteral("reprint")});
    if (!args.ok()) {
        return usage(call, args.error());
    }
    if (args.positional().size() != 1) {
        return usage(call, QStringLiteral("expected exactly one document key"));
    }
    bool ok = false;
    const qint64 code = args.positional().first().toLongLong(&ok);
    if (!ok || code <= 0) {
        return usage(call, QStringLiteral("the document key is a positive whole number"));
    }
    for (const QString& option : {QStringLiteral("pdf"), QStringLiteral("png")}) {
        if (args.has(option) && args.value(option).isEmpty()) {
            return usage(call, QStringLiteral("--%1 needs a file name").arg(option));
        }
    }
    const int dots = args.value(QStringLiteral("dots"), QStringLiteral("0")).toInt(&ok);
    if (!ok || dots < 0) {
        return usage(call, QStringLiteral("--dots needs a number of dots"));
    }

    AdminShop shop(call.programDir, call.err);
    if (!shop.open(QStringLiteral("receipt"))) {
        return ExitFailed;
    }
    NoLauncher launcher;
    SaleReceipt receipt(shop.database(), shop.settings(), shop.messages(), launcher,
                        call.programDir, nullptr, nullptr);
    ReceiptOptions options;
    options.a4 = args.flag(QStringLiteral("a4"));
    if (args.flag(QStringLiteral("reprint"))) {
        options.title = ReceiptReader::reprintTitle();
    }
    if (args.has(QStringLiteral("pdf"))) {
        const QString path = args.value(QStringLiteral("pdf"));
        if (!receipt.writePdf(code, path, options)) {
            call.err << "sandogh-admin receipt: no PDF written to " << path << '\n';
            return ExitFailed;
        }
        call.out << path << '\n';
        return ExitOk;
    }
    if (args.has(QStringLiteral("png"))) {
        const QString path = args.value(QStringLiteral("png"));
        const QImage image = receipt.rasterImage(code, dots, options);
        if (image.isNull() || !image.save(path, "PNG")) {
            call.err << "sandogh-admin receipt: no image written to " << path << '\n';
            return ExitFailed;
        }
        call.out << path << '\n';
        return ExitOk;
    }
    const QString command = receipt.command(code, options);
    if (command.isEmpty()) {
        return ExitFailed;
    }
    call.out << command << '\n';
    return ExitOk;
}

}  // namespace sandogh
