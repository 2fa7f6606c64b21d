#include <optional>

#include "AdminArgs.h"
#include "AdminCommand.h"
#include "AdminShop.h"
#include "common/AmountText.h"
#include "common/JalaliCalendar.h"
#include "data/repositories/ActiveUsers.h"
#include "purchase/PurchaseSaver.h"
#include "purchase/PurchaseSession.h"
#include "settings/Clock.h"

namespace sandogh {

namespace {

const char* const kUsage =
    "usage: sandogh-admin buy [--dir D] [--user NAME] --supplier COUNTER --group ID [--return]\n"
    "                         [--number N] [--date YYYY/MM/DD] [--discount A] [--surcharge A]\n"
    "                         LINE...\n"
    "A LINE is BARCODE[:QTY[:MFEE[:DISCOUNT%[:TAX%]]]]: the quantity (1 when left out), the list\n"
    "price, the line discount and tax percents; a term left out (or empty) is the article's\n"
    "last purchase term. The purchase (or, with --return, the purchase return) of the supplier\n"
    "(Types.Counter) on the accounting group (tblAccountingGroup.ID) is saved as the purchase\n"
    "screen saves it and \"Code=<n> DocNo=<n> DocSum=<amount>\" is printed; the number is the\n"
    "next one unless --number gives the supplier's. A refused check prints its message and\n"
    "exits 1.\n";

int usage(AdminCall& call, const QString& problem) {
    call.err << "sandogh-admin buy: " << problem << '\n' << kUsage;
    return ExitUsage;
}

// A number of the command line; nothing when it is not one or is negative.
std::optional<double> amount(QString text) {
    if (text.endsWith(u'%')) {
        text.chop(1);
    }
    const std::optional<double> value = AmountText::parseStrict(text.trimmed().toStdString());
    return value && *value >= 0 ? value : std::nullopt;
}

// A number as plain digits: "3", "10000", "0.75".
QString plain(double value) {
    QString text = QString::number(value, 'f', 6);
    while (text.endsWith(u'0')) {
        text.chop(1);
    }
    if (text.endsWith(u'.')) {
        text.chop(1);
    }
    return text == QLatin1String("-0") ? QStringLiteral("0") : text;
}

struct Line {
    QString barcode;
    // Quantity, list price, discount and tax; empty: the last purchase term.
    std::optional<double> terms[4];
};

std::optional<Line> parseLine(const QString& word, QString& error) {
    const QStringList parts = word.split(u':');
    if (parts.size() > 5 || parts.first().trimmed().isEmpty()) {
        error = QStringLiteral("bad LINE \"%1\"").arg(word);
        return std::nullopt;
    }
    Line line;
    line.barcode = parts.first().trimmed();
    for (qsizetype i = 1; i < parts.size(); ++i) {
        if (parts.at(i).trimmed().isEmpty()) {
            continue;
        }
        line.terms[i - 1] = amount(parts.at(i));
        if (!line.terms[i - 1]) {
            error = QStringLiteral("bad term \"%1\" in LINE \"%2\"").arg(parts.at(i), word);
            return std::nullopt;
        }
    }
    return line;
}

}  // namespace

// sandogh-admin buy: a purchase or purchase return through the purchase screen's session
// and saver, on the shop database of the program folder.
int runBuy(AdminCall& call) {
    const AdminArgs args(call.args,
                         {QStringLiteral("user"), QStringLiteral("supplier"),
                          QStringLiteral("group"), QStringLiteral("number"), QStringLiteral("date"),
                          QStringLiteral("discount"), QStringLiteral("surcharge")},
                         {QStringLiteral("return")});
    if (!args.ok()) {
        return usage(call, args.error());
    }
    bool ok = false;
    const int supplier = args.value(QStringLiteral("supplier")).toInt(&ok);
    if (!ok || supplier <= 0) {
        return usage(call, QStringLiteral("--supplier needs the supplier's Counter"));
    }
    const int group = args.value(QStringLiteral("group")).toInt(&ok);
    if (!ok || group <= 0) {
        return usage(call, QStringLiteral("--group needs the ID of an accounting group"));
    }
    if (args.positional().isEmpty()) {
        return usage(call, QStringLiteral("no LINE given"));
    }
    QString error;
    QList<Line> lines;
    for (const QString& word : args.positional()) {
        const std::optional<Line> line = parseLine(word, error);
        if (!line) {
            return usage(call, error);
        }
        lines << *line;
    }
    double discount = 0;
    double surcharge = 0;
    for (const auto& [name, value] : {std::pair{QStringLiteral("discount"), &discount},
                                      std::pair{QStringLiteral("surcharge"), &surcharge}}) {
        if (args.has(name)) {
            const std::optional<double> a = amount(args.value(name));
            if (!a || args.value(name).endsWith(u'%')) {
                return usage(call, QStringLiteral("--%1 needs an amount").arg(name));
            }
            *value = *a;
        }
    }
    QString date;
    if (args.has(QStringLiteral("date"))) {
        const std::optional<std::string> normal =
            JalaliCalendar::normalizeDateText(args.value(QStringLiteral("date")).toStdString());
        if (!normal) {
            return usage(call, QStringLiteral("--date is a Jalali date YYYY/MM/DD"));
        }
        date = QString::fromStdString(*normal);
    }

    AdminShop shop(call.programDir, call.err);
    if (!shop.open(QStringLiteral("buy"))) {
        return ExitFailed;
    }
    SystemClock clock;
    PurchaseSession purchase(shop.database(), shop.messages(), clock);
    if (args.has(QStringLiteral("user"))) {
        const QString name = args.value(QStringLiteral("user"));
        const std::optional<int> id = ActiveUsers::idOf(shop.database(), name);
        if (!id) {
            call.err << "sandogh-admin buy: no active user \"" << name << "\"\n";
            return ExitFailed;
        }
        purchase.setUser(*id);
    }
    purchase.newDocument(args.flag(QStringLiteral("return")));
    PurchaseHeader& h = purchase.header();
    h.supplier = supplier;
    h.accountingGroupId = group;
    if (args.has(QStringLiteral("number"))) {
        h.docNo = args.value(QStringLiteral("number"));
    }
    if (!date.isEmpty()) {
        h.docDate = date;
    }
    h.discount = discount;
    h.sarbar = surcharge;

    PurchaseLinesModel& model = purchase.lines();
    const int columns[] = {PurchaseLinesModel::ColQty, PurchaseLinesModel::ColMFee,
                           PurchaseLinesModel::ColDiscount, PurchaseLinesModel::ColTaxValue};
    for (const Line& line : lines) {
        if (!purchase.addBarcode(line.barcode)) {
            return ExitFailed;
        }
        const int row = model.lineCount() - 1;
        for (int i = 0; i < 4; ++i) {
            if (line.terms[i]) {
                model.setData(model.index(row, columns[i]), *line.terms[i]);
            }
        }
    }
    const PurchaseSaveResult r =
        PurchaseSaver(shop.database(), shop.messages(), clock).save(purchase);
    if (!r.saved) {
        return ExitFailed;
    }
    call.out << "Code=" << r.code << " DocNo=" << r.docNo << " DocSum=" << plain(r.docSum) << '\n';
    return ExitOk;
}

}  // namespace sandogh
