// The first page of the saved sales list on generated shops of growing size: each choice
// ("500 فاکتور آخر", "500 فاکتور اول", "تمام فاکتورها") and each filter (number, date,
// customer, Base), read as the grid reads it (SaleListQuery::page, 100 rows). Each should
// cost about the same at ten thousand and at a million documents.
//
//   bench_sale_list                                  SQLite only, 10k and 1M documents
//   SANDOGH_BENCH_SIZES=10000,100000 bench_sale_list other sizes
//   SANDOGH_BENCH_PG_HOST=... SANDOGH_BENCH_PG_PORT=... SANDOGH_BENCH_PG_USER=...
//                                                    PostgreSQL as well (or SANDOGH_TEST_PG_*)
//
// The shops are generated once with bulk INSERT ... SELECT and kept (SQLite folders under
// /tmp/sandogh-bench-list, PostgreSQL databases sandogh_bench_list_<size>): one customer
// per twenty documents, half the documents with a customer, a Base of a thousand values,
// numbers restarting every 3,000 documents of a kind (daily numbering), dates over a year,
// a hundredth of the documents with a DocType.

#include <benchmark/benchmark.h>

#include <QCoreApplication>
#include <QDir>
#include <QElapsedTimer>
#include <cstdio>
#include <memory>

#include "BenchShop.h"
#include "data/Database.h"
#include "data/DatabaseProvisioner.h"
#include "data/Dialect.h"
#include "data/SqlQuery.h"
#include "data/Transaction.h"
#include "data/repositories/SaleListQuery.h"
#include "data/schema/Migrator.h"
#include "data/schema/ShopSchema.h"

namespace {

using namespace sandogh;

const QString kFolder = QStringLiteral("/tmp/sandogh-bench-list");
constexpr qint64 kDocumentsPerCustomer = 20;
constexpr int kPage = 100;

ConnectionSettings settingsFor(Backend backend, qint64 documents) {
    return bench::shopSettings(backend, QStringLiteral("list_%1").arg(documents),
                               QStringLiteral("sandogh_bench_list_%1").arg(documents), kFolder,
                               "bench_sale_list");
}

// A Jalali date of 1403 spread over the year by the row's place among :rows rows.
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

bool generate(Database& database, qint64 documents) {
    Session s = database.session(QStringLiteral("bench"), QStringLiteral("generate"));
    const Backend b = database.backend();
    const qint64 customers = std::max<qint64>(1, documents / kDocumentsPerCustomer);
    const QString transType = QStringLiteral(
        "CASE WHEN i % 20 < 4 THEN 1 WHEN i % 20 = 4 THEN 3 WHEN i % 20 = 5 THEN 4 ELSE 2 END");
    // Names, family names and Base with their search keys, as the program writes them.
    const QString name = QStringLiteral("'name ' || CAST(i AS VARCHAR(20))");
    const QString family = QStringLiteral("'family ' || CAST(i AS VARCHAR(20))");
    const QString base = QStringLiteral("'B-' || CAST(i % 1000 AS VARCHAR(10))");
    const Dialect& d = database.dialect();
    const QString statements[] = {
        bench::withNumbers(b) +
            QStringLiteral("INSERT INTO Types (Counter, TypeNo, Code, Name, Value1, NameKey, "
                           "Active) SELECT i, 10, CAST(i AS VARCHAR(20)), %1, %2, %3, 1 FROM ")
                .arg(name, family,
                     d.searchKeyExpression(QStringLiteral("%1 || ' ' || %2").arg(name, family))) +
            bench::numbers(b),
        bench::withNumbers(b) +
            QStringLiteral("INSERT INTO Whs_QTYDocH (Code, DocNo, TransType, CompanyID, DocDate, "
                           "DocSum, Base, BaseKey, DocType) SELECT i, CAST(1 + (i / 20) % 3000 AS "
                           "VARCHAR(20)), ") +
            transType + QStringLiteral(", CASE WHEN i % 2 = 0 THEN 1 + i % :customers END, ") +
            dateOf(QStringLiteral("i")) +
            QStringLiteral(", 1000 * (i % 13), %1, %2, CASE WHEN i % 100 = 0 THEN 2 END FROM ")
                .arg(base, d.searchKeyExpression(base)) +
            bench::numbers(b),
    };
    const qint64 counts[] = {customers, documents};
    for (int t = 0; t < 2; ++t) {
        QElapsedTimer timer;
        timer.start();
        Transaction tx(s);
        SqlBinds binds{{QStringLiteral(":rows"), counts[t]}};
        if (statements[t].contains(QStringLiteral(":customers"))) {
            binds.append({QStringLiteral(":customers"), customers});
        }
        if (statements[t].contains(QStringLiteral(":span"))) {
            binds.append({QStringLiteral(":span"), counts[t]});
        }
        if (!tx.isActive() || !s.exec(statements[t], binds) || !tx.commit()) {
            std::fprintf(stderr, "bench_sale_list: generating failed: %s\n",
                         qPrintable(s.lastError().text()));
            return false;
        }
        std::fprintf(stderr, "bench_sale_list: %s %lld rows of step %d in %.1f s\n",
                     qPrintable(backendName(b)), static_cast<long long>(counts[t]), t + 1,
                     timer.elapsed() / 1000.0);
    }
    return s.exec(QStringLiteral("ANALYZE"));
}

std::unique_ptr<Database> openShop(Backend backend, qint64 documents) {
    const ConnectionSettings settings = settingsFor(backend, documents);
    QDir().mkpath(settings.sqliteFolder.isEmpty() ? kFolder : settings.sqliteFolder);
    QString error;
    if (DatabaseProvisioner::ensureExists(settings, &error) ==
        DatabaseProvisioner::Outcome::Failed) {
        std::fprintf(stderr, "bench_sale_list: %s\n", qPrintable(error));
        return nullptr;
    }
    auto database = std::make_unique<Database>(settings, nullptr);
    const Migrator::Result migrated = Migrator(*database).apply(shopMigrations());
    if (!migrated.ok) {
        std::fprintf(stderr, "bench_sale_list: %s\n", qPrintable(migrated.message));
        return nullptr;
    }
    Session s = database->session();
    const qint64 have = s.scalarInt64(QStringLiteral("SELECT COUNT(*) FROM Whs_QTYDocH"));
    s.release();
    if (have == documents) {
        return database;
    }
    if (have != 0) {
        std::fprintf(stderr, "bench_sale_list: %s holds %lld documents; remove it\n",
                     qPrintable(settings.catalog), static_cast<long long>(have));
        return nullptr;
    }
    return generate(*database, documents) ? std::move(database) : nullptr;
}

struct Case {
    const char* name;
    bool descending;
    SaleListQuery::Filter filter;
};

QList<Case> cases(qint64 documents) {
    const auto with = [](auto set) {
        SaleListQuery::Filter f;
        set(f);
        return f;
    };
    // A customer about the middle of the list, written with a Persian digit as typed.
    const QString customer = QStringLiteral("family %1")
                                 .arg(documents / kDocumentsPerCustomer / 2 + 7)
                                 .replace(QLatin1Char('7'), QChar(0x06F7));
    return {
        {"Last500", true, {}},
        {"First500", false, {}},
        {"All", true, {}},
        {"Number", true, with([](SaleListQuery::Filter& f) { f.docNo = QStringLiteral("42"); })},
        {"Date", true,
         with([](SaleListQuery::Filter& f) { f.docDate = QStringLiteral("1403/06/15"); })},
        {"Customer", true, with([&](SaleListQuery::Filter& f) { f.customer = customer; })},
        {"Base", true, with([](SaleListQuery::Filter& f) { f.base = QStringLiteral("B-777"); })},
    };
}

void firstPage(benchmark::State& state, Database* database, Case c) {
    Session s = database->session();
    qint64 rows = 0;
    for (auto _ : state) {
        rows = SaleListQuery::page(s, c.filter, c.descending, {}, kPage).size();
        benchmark::DoNotOptimize(rows);
    }
    state.counters["rows"] = static_cast<double>(rows);
}

}  // namespace

int main(int argc, char** argv) {
    QCoreApplication app(argc, argv);
    benchmark::Initialize(&argc, argv);
    std::vector<std::unique_ptr<Database>> shops;
    const QList<Backend> backends = bench::backends("bench_sale_list");
    for (const Backend backend : backends) {
        for (const qint64 documents : bench::sizes(QStringLiteral("10000,1000000"))) {
            std::unique_ptr<Database> shop = openShop(backend, documents);
            if (!shop) {
                return 1;
            }
            const std::string prefix =
                backendName(backend).toStdString() + "/" + std::to_string(documents) + "/";
            for (const Case& c : cases(documents)) {
                benchmark::RegisterBenchmark((prefix + c.name).c_str(), firstPage, shop.get(), c)
                    ->Unit(benchmark::kMillisecond);
            }
            shops.push_back(std::move(shop));
        }
    }
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    shops.clear();
    return 0;
}
