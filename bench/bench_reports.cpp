// The shop's reports over one month and over one year, on a generated shop:
//
//   bench_reports                                  SQLite, 1M documents
//   SANDOGH_BENCH_SIZES=100000 bench_reports       other sizes
//   SANDOGH_BENCH_DIR=/tmp/mine bench_reports      SQLite shops in another folder
//   SANDOGH_BENCH_PG_HOST=127.0.0.1 SANDOGH_BENCH_PG_PORT=5432 SANDOGH_BENCH_PG_USER=postgres
//                                                  PostgreSQL as well (or SANDOGH_TEST_PG_*)
//
// The shop (SQLite folders /tmp/sandogh-bench/reports_<size>, PostgreSQL databases
// sandogh_bench_reports_<size>) is generated once with bulk INSERT ... SELECT and kept: the
// documents of 1403 spread evenly over the year, 20% purchases, 5% sale returns, 5% purchase
// returns and the rest sales, on four desks and two shifts, with received amounts and one
// voucher row per document; two lines per document over one article per fifty documents;
// Stock repaired in full at the end.

#include <benchmark/benchmark.h>

#include <QCoreApplication>
#include <QDir>
#include <QElapsedTimer>
#include <algorithm>
#include <cstdio>
#include <memory>

#include "BenchShop.h"
#include "data/Database.h"
#include "data/DatabaseProvisioner.h"
#include "data/SqlQuery.h"
#include "data/Transaction.h"
#include "data/procedures/StockProcedures.h"
#include "data/schema/Migrator.h"
#include "data/schema/ShopSchema.h"
#include "reports/ReportBuilder.h"

namespace {

using namespace sandogh;

// SANDOGH_BENCH_DIR when set.
QString benchFolder() {
    const QString folder = qEnvironmentVariable("SANDOGH_BENCH_DIR");
    return folder.isEmpty() ? QStringLiteral("/tmp/sandogh-bench") : folder;
}
constexpr qint64 kDocumentsPerArticle = 50;

ConnectionSettings settingsFor(Backend backend, qint64 documents) {
    return bench::shopSettings(backend, QStringLiteral("reports_%1").arg(documents),
                               QStringLiteral("sandogh_bench_reports_%1").arg(documents),
                               benchFolder(), "bench_reports");
}

// A Jalali date of 1403 spread over its 360 first days by the row's place among :span rows.
QString dateOf(const QString& i) {
    const QString day = QStringLiteral("((%1 - 1) * 360 / :span)").arg(i);
    const auto twoDigits = [](const QString& n) {
        return QStringLiteral("CASE WHEN %1 < 10 THEN '0' ELSE '' END || CAST(%1 AS VARCHAR(2))")
            .arg(n);
    };
    return QStringLiteral("'1403/' || %1 || '/' || %2")
        .arg(twoDigits(QStringLiteral("(%1 / 30 + 1)").arg(day)),
             twoDigits(QStringLiteral("(%1 % 30 + 1)").arg(day)));
}

QString barcodeOf(const QString& k) {
    return QStringLiteral("'626' || CAST(10000000 + %1 AS VARCHAR(20))").arg(k);
}

bool generate(Database& database, qint64 documents) {
    Session s = database.session(QStringLiteral("bench"), QStringLiteral("generate"));
    const Backend b = database.backend();
    const qint64 articles = std::max<qint64>(1, documents / kDocumentsPerArticle);
    const QString transType = QStringLiteral(
        "CASE WHEN i % 20 < 4 THEN 1 WHEN i % 20 = 4 THEN 3 WHEN i % 20 = 5 THEN 4 ELSE 2 END");
    const QString statements[] = {
        bench::withNumbers(b) +
            QStringLiteral("INSERT INTO Goods (EAN_Code, Name, Cost, Spec_Group) SELECT ") +
            barcodeOf(QStringLiteral("i - 1")) +
            QStringLiteral(", 'article ' || CAST(i AS VARCHAR(20)), 1000 + i % 500, i % 10 FROM ") +
            bench::numbers(b),
        bench::withNumbers(b) +
            QStringLiteral("INSERT INTO Whs_QTYDocH (Code, DocNo, TransType, DocDate, DocSum, "
                           "ReceivedPrice, StationID, ShiftCode, UserID, DocumentHID, DocType) "
                           "SELECT i, CAST(i AS VARCHAR(20)), ") +
            transType + QStringLiteral(", ") + dateOf(QStringLiteral("i")) +
            QStringLiteral(", 1000 * (i % 13), 1000 * (i % 13) - (i % 3) * 100, i % 4 + 1, "
                           "i % 2 + 1, i % 5 + 1, i, CASE WHEN i % 100 = 0 THEN 2 END FROM ") +
            bench::numbers(b),
        bench::withNumbers(b) +
            QStringLiteral("INSERT INTO Whs_QTYDocD (Code, EAN_Code, Qty, MFee, Discount, Fee, "
                           "Price, TaxValue) SELECT (i + 1) / 2, ") +
            barcodeOf(QStringLiteral("((i * i * 7919 + i * 31) % 1000003) % :articles")) +
            QStringLiteral(", 1 + i % 5, 1100 + i % 97 * 10, 0, 1000 + i % 97 * 10, "
                           "(1 + i % 5) * (1000 + i % 97 * 10), 9 FROM ") +
            bench::numbers(b),
        bench::withNumbers(b) +
            QStringLiteral("INSERT INTO tblDocumentD (DocumentHID, AccountingGroupID, Debt, "
                           "Credit) SELECT i, 10 + i % 3, 1000 * (i % 13), 0 FROM ") +
            bench::numbers(b),
    };
    // The desks (their foreign key) and shifts the documents name.
    for (int desk = 1; desk <= 4; ++desk) {
        if (!s.exec(QStringLiteral("INSERT INTO Stations (ID, Station_Name) VALUES (:id, :name)"),
                    {{QStringLiteral(":id"), desk},
                     {QStringLiteral(":name"), QStringLiteral("Desk %1").arg(desk)}}) ||
            (desk <= 2 &&
             !s.exec(QStringLiteral("INSERT INTO tblShift (Code, Name, LastActiveShift) VALUES "
                                    "(:code, :name, 0)"),
                     {{QStringLiteral(":code"), desk},
                      {QStringLiteral(":name"), QStringLiteral("Shift %1").arg(desk)}}))) {
            return false;
        }
    }
    const qint64 counts[] = {articles, documents, documents * 2, documents};
    for (int t = 0; t < 4; ++t) {
        QElapsedTimer timer;
        timer.start();
        Transaction tx(s);
        SqlBinds binds{{QStringLiteral(":rows"), counts[t]}};
        if (statements[t].contains(QStringLiteral(":articles"))) {
            binds.append({QStringLiteral(":articles"), articles});
        }
        if (statements[t].contains(QStringLiteral(":span"))) {
            binds.append({QStringLiteral(":span"), counts[t]});
        }
        if (!tx.isActive() || !s.exec(statements[t], binds) || !tx.commit()) {
            std::fprintf(stderr, "bench_reports: generating failed: %s\n",
                         qPrintable(s.lastError().text()));
            return false;
        }
        std::fprintf(stderr, "bench_reports: %s %lld rows of step %d in %.1f s\n",
                     qPrintable(backendName(b)), static_cast<long long>(counts[t]), t + 1,
                     timer.elapsed() / 1000.0);
    }
    QElapsedTimer timer;
    timer.start();
    if (!procedures::sp_StockRepair(s, {})) {
        return false;
    }
    std::fprintf(stderr, "bench_reports: stock repaired in %.1f s\n", timer.elapsed() / 1000.0);
    return s.exec(b == Backend::PostgreSQL ? QStringLiteral("VACUUM ANALYZE")
                                           : QStringLiteral("ANALYZE"));
}

std::unique_ptr<Database> openShop(Backend backend, qint64 documents) {
    const ConnectionSettings settings = settingsFor(backend, documents);
    QDir().mkpath(settings.sqliteFolder.isEmpty() ? benchFolder() : settings.sqliteFolder);
    QString error;
    if (DatabaseProvisioner::ensureExists(settings, &error) ==
        DatabaseProvisioner::Outcome::Failed) {
        std::fprintf(stderr, "bench_reports: %s\n", qPrintable(error));
        return nullptr;
    }
    auto database = std::make_unique<Database>(settings, nullptr);
    const Migrator::Result migrated = Migrator(*database).apply(shopMigrations());
    if (!migrated.ok) {
        std::fprintf(stderr, "bench_reports: %s\n", qPrintable(migrated.message));
        return nullptr;
    }
    Session s = database->session();
    const qint64 have = s.scalarInt64(QStringLiteral("SELECT COUNT(*) FROM Whs_QTYDocH"));
    // Indexes a later step added to a kept shop are weighed by the planner once counted;
    // PostgreSQL reads an index alone only for pages its vacuum has marked all visible.
    const QString statistics = backend == Backend::PostgreSQL ? QStringLiteral("VACUUM ANALYZE")
                                                              : QStringLiteral("ANALYZE");
    if (have == documents && !migrated.applied.isEmpty() && !s.exec(statistics)) {
        return nullptr;
    }
    s.release();
    if (have == documents) {
        return database;
    }
    if (have != 0) {
        std::fprintf(stderr, "bench_reports: %s holds %lld documents, not %lld; remove it\n",
                     qPrintable(settings.catalog), static_cast<long long>(have),
                     static_cast<long long>(documents));
        return nullptr;
    }
    return generate(*database, documents) ? std::move(database) : nullptr;
}

struct Run {
    Database* database = nullptr;
    ReportKind kind = ReportKind::SalesByDay;
    ReportFilter filter;
};

void report(benchmark::State& state, Run run) {
    Session s = run.database->session();
    qint64 rows = 0;
    for (auto _ : state) {
        const std::optional<ReportTable> t =
            ReportBuilder::build(s, run.kind, run.filter, QStringLiteral("1404/01/01"));
        if (!t) {
            state.SkipWithError("the report failed");
            return;
        }
        rows = t->rows.size();
    }
    state.counters["rows"] = double(rows);
}

}  // namespace

int main(int argc, char** argv) {
    QCoreApplication app(argc, argv);
    benchmark::Initialize(&argc, argv);
    std::vector<std::unique_ptr<Database>> shops;
    const QList<Backend> backends = bench::backends("bench_reports");
    const struct {
        const char* name;
        ReportKind kind;
    } kinds[] = {{"SalesByDay", ReportKind::SalesByDay}, {"Top", ReportKind::BestByQuantity},
                 {"Profit", ReportKind::Profit},         {"Stock", ReportKind::Stock},
                 {"Payments", ReportKind::Payments},     {"Desks", ReportKind::Desks}};
    const struct {
        const char* name;
        const char* from;
        const char* to;
    } ranges[] = {{"Month", "1403/07/01", "1403/07/30"}, {"Year", "1403/01/01", "1403/12/30"}};
    for (const Backend backend : backends) {
        for (const qint64 documents : bench::sizes(QStringLiteral("1000000"))) {
            auto database = openShop(backend, documents);
            if (!database) {
                return 1;
            }
            for (const auto& range : ranges) {
                for (const auto& k : kinds) {
                    Run run{database.get(), k.kind, {}};
                    run.filter.from = QString::fromLatin1(range.from);
                    run.filter.to = QString::fromLatin1(range.to);
                    const std::string name = backendName(backend).toStdString() + "/" +
                                             std::to_string(documents) + "/" + range.name + "/" +
                                             k.name;
                    benchmark::RegisterBenchmark(name.c_str(), report, run)
                        ->Unit(benchmark::kMillisecond)
                        ->MinTime(0.5);
                }
            }
            shops.push_back(std::move(database));
        }
    }
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    shops.clear();
    return 0;
}
