#include <QDate>

#include "AdminArgs.h"
#include "AdminCommand.h"
#include "AdminShop.h"
#include "common/JalaliCalendar.h"
#include "data/JalaliDay.h"
#include "reports/ReportBuilder.h"
#include "reports/ReportCsv.h"
#include "reports/ReportPdf.h"
#include "sales/DailySummary.h"

namespace sandogh {

namespace {

const char* const kUsage =
    "usage: sandogh-admin report daily [YYYY/MM/DD] [--dir D]\n"
    "       sandogh-admin report sales|top|profit|stock|payments|desks [--from D] [--to D]\n"
    "              [--monthly] [--amount] [--worst] [--station N] [--shift N] [--user N]\n"
    "              [--group N] [--csv FILE | --pdf FILE] [--dir D]\n"
    "daily prints the day's summary of sales and returns as it is sent at the end of the day.\n"
    "The others print a report over the Jalali dates --from..--to (both today when not\n"
    "given) as tab-separated lines, or write it as CSV or as a PDF with its chart:\n"
    "  sales     sales and returns per day (--monthly: per month)\n"
    "  top       best sellers by quantity (--amount: by amount; --worst: the worst first)\n"
    "  profit    profit per article at the landed cost of its purchases\n"
    "  stock     stock quantity and value per article at the end of --to\n"
    "  payments  money received by kind of payment\n"
    "  desks     sales and cash of each cash desk and shift\n";

int usage(AdminCall& call, const QString& problem) {
    call.err << "sandogh-admin report: " << problem << '\n' << kUsage;
    return ExitUsage;
}

std::optional<QString> dateOf(const QString& typed) {
    const std::optional<std::string> normal =
        JalaliCalendar::normalizeDateText(typed.toStdString());
    if (!normal) {
        return std::nullopt;
    }
    return QString::fromStdString(*normal);
}

int daily(AdminCall& call, const QStringList& words) {
    if (words.size() > 2) {
        return usage(call, QStringLiteral("expected: daily [YYYY/MM/DD]"));
    }
    QString day = JalaliDay::dateText(QDate::currentDate());
    if (words.size() == 2) {
        const std::optional<QString> date = dateOf(words.at(1));
        if (!date) {
            return usage(call, QStringLiteral("the date is a Jalali date YYYY/MM/DD"));
        }
        day = *date;
    }
    AdminShop shop(call.programDir, call.err);
    if (!shop.open(QStringLiteral("report"))) {
        return ExitFailed;
    }
    const DailySummary::Figures figures = DailySummary(shop.database()).read(day);
    if (!figures.ok) {
        return ExitFailed;
    }
    call.out << day << '\n'
             << DailySummary::text(figures).replace(QStringLiteral("\r\n"), QStringLiteral("\n"))
             << '\n';
    return ExitOk;
}

std::optional<ReportKind> kindOf(const QString& word, const AdminArgs& args) {
    if (word == QLatin1String("sales")) {
        return args.flag(QStringLiteral("monthly")) ? ReportKind::SalesByMonth
                                                    : ReportKind::SalesByDay;
    }
    if (word == QLatin1String("top")) {
        const bool amount = args.flag(QStringLiteral("amount"));
        if (args.flag(QStringLiteral("worst"))) {
            return amount ? ReportKind::WorstByAmount : ReportKind::WorstByQuantity;
        }
        return amount ? ReportKind::BestByAmount : ReportKind::BestByQuantity;
    }
    if (word == QLatin1String("profit")) {
        return ReportKind::Profit;
    }
    if (word == QLatin1String("stock")) {
        return ReportKind::Stock;
    }
    if (word == QLatin1String("payments")) {
        return ReportKind::Payments;
    }
    if (word == QLatin1String("desks")) {
        return ReportKind::Desks;
    }
    return std::nullopt;
}

void print(QTextStream& out, const ReportTable& table) {
    out << table.title << '\n' << table.range << '\n';
    QStringList header;
    for (const ReportTable::Column& c : table.columns) {
        header << c.title;
    }
    out << header.join(QLatin1Char('\t')) << '\n';
    for (int r = 0; r < table.rows.size(); ++r) {
        QStringList cells;
        for (int c = 0; c < table.columns.size(); ++c) {
            cells << table.cellText(r, c);
        }
        out << cells.join(QLatin1Char('\t')) << '\n';
    }
}

}  // namespace

// sandogh-admin report: the day's summary, or one of the shop's reports over a range.
int runReport(AdminCall& call) {
    const QStringList numbers{QStringLiteral("station"), QStringLiteral("shift"),
                              QStringLiteral("user"), QStringLiteral("group")};
    const AdminArgs args(
        call.args,
        QStringList{QStringLiteral("from"), QStringLiteral("to"), QStringLiteral("csv"),
                    QStringLiteral("pdf")} +
            numbers,
        {QStringLiteral("monthly"), QStringLiteral("amount"), QStringLiteral("worst")});
    if (!args.ok()) {
        return usage(call, args.error());
    }
    const QStringList words = args.positional();
    if (words.isEmpty()) {
        return usage(call, QStringLiteral("expected a report"));
    }
    if (words.first() == QLatin1String("daily")) {
        return daily(call, words);
    }
    const std::optional<ReportKind> kind = kindOf(words.first(), args);
    if (!kind || words.size() > 1) {
        return usage(call, QStringLiteral("unknown report: ") + words.join(QLatin1Char(' ')));
    }
    if (args.has(QStringLiteral("csv")) && args.has(QStringLiteral("pdf"))) {
        return usage(call, QStringLiteral("--csv or --pdf, not both"));
    }
    const QString today = JalaliDay::dateText(QDate::currentDate());
    ReportFilter filter;
    for (const auto& [option, target] : {std::pair{QStringLiteral("from"), &filter.from},
                                         std::pair{QStringLiteral("to"), &filter.to}}) {
        const std::optional<QString> date = dateOf(args.value(option, today));
        if (!date) {
            return usage(call, QStringLiteral("--%1 is a Jalali date YYYY/MM/DD").arg(option));
        }
        *target = *date;
    }
    if (filter.to < filter.from) {
        return usage(call, QStringLiteral("--to is before --from"));
    }
    std::optional<int>* targets[] = {&filter.stationId, &filter.shiftCode, &filter.userId,
                                     &filter.goodsGroup};
    for (int i = 0; i < numbers.size(); ++i) {
        if (!args.has(numbers.at(i))) {
            continue;
        }
        bool ok = false;
        const int value = args.value(numbers.at(i)).toInt(&ok);
        if (!ok) {
            return usage(call, QStringLiteral("--%1 is a number").arg(numbers.at(i)));
        }
        *targets[i] = value;
    }

    AdminShop shop(call.programDir, call.err);
    if (!shop.open(QStringLiteral("report"))) {
        return ExitFailed;
    }
    Session session = shop.database().session(QStringLiteral("report"), words.first());
    const std::optional<ReportTable> table = ReportBuilder::build(session, *kind, filter, today);
    if (!table) {
        return ExitFailed;
    }
    if (args.has(QStringLiteral("csv")) || args.has(QStringLiteral("pdf"))) {
        const bool csv = args.has(QStringLiteral("csv"));
        const QString path = args.value(csv ? QStringLiteral("csv") : QStringLiteral("pdf"));
        if (!(csv ? ReportCsv::write(*table, path) : ReportPdf::write(*table, path))) {
            call.err << "sandogh-admin report: cannot write " << path << '\n';
            return ExitFailed;
        }
        call.out << path << '\n';
        return ExitOk;
    }
    print(call.out, *table);
    return ExitOk;
}

}  // namespace sandogh
