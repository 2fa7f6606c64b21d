// Look-ups that a cash desk runs on every save, on generated shops of growing size:
// the next document number (all-time and daily), the last purchase price and the
// average purchase price of an article. Each should cost about the same at ten thousand
// and at a million documents.
//
//   bench_data                                   SQLite only, 10k and 1M documents
//   SANDOGH_BENCH_SIZES=10000,100000 bench_data  other sizes
//   SANDOGH_BENCH_PG_HOST=127.0.0.1 SANDOGH_BENCH_PG_PORT=5432 SANDOGH_BENCH_PG_USER=postgres
//                                                PostgreSQL as well (or SANDOGH_TEST_PG_*)
//
// The shops are generated once with bulk INSERT ... SELECT (a recursive row source on
// SQLite, generate_series on PostgreSQL) in one transaction per table and kept: SQLite
// folders under /tmp/sandogh-bench, PostgreSQL databases sandogh_bench_<size>. Each shop
// has one article per fifty documents and two lines per document spread over the
// articles by a quadratic hash (no article follows the kinds of document), so an article has about
// a hundred lines whatever the size of the shop; a hundredth of the documents carry a DocType.

#include <benchmark/benchmark.h>

#include <QCoreApplication>
#include <QDir>
#include <QElapsedTimer>
#include <cstdio>
#include <memory>

#include "BenchShop.h"
#include "data/Database.h"
#include "data/DatabaseProvisioner.h"
#include "data/DatabaseStatistics.h"
#include "data/SqlQuery.h"
#include "data/Transaction.h"
#include "data/procedures/StockDocumentProcedures.h"
#include "data/procedures/StockProcedures.h"
#include "data/repositories/DocumentNumbering.h"
#include "data/repositories/PurchasePrices.h"
#include "data/schema/Migrator.h"
#include "data/schema/ShopSchema.h"

namespace {

using namespace sandogh;

const QString kBenchFolder = QStringLiteral("/tmp/sandogh-bench");
constexpr qint64 kDocumentsPerArticle = 50;

ConnectionSettings settingsFor(Backend backend, qint64 documents) {
    return bench::generatedShop(backend, documents, "bench_data");
}

// A Jalali date of 1403 spread over the year by the row's place among :span rows.
QString dateOf(const QString& i) {
    const QString day = QStringLiteral("((%1 - 1) * 360 / :span)").arg(i);
    const QString month = QStringLiteral("(%1 / 30 + 1)").arg(day);
    const QString dayOfMonth = QStringLiteral("(%1 % 30 + 1)").arg(day);
    const auto twoDigits = [](const QString& n) {
        return QStringLiteral("CASE WHEN %1 < 10 THEN '0' ELSE '' END || CAST(%1 AS VARCHAR(2))")
            .arg(n);
    };
    return QStringLiteral("'1403/' || %1 || '/' || %2")
        .arg(twoDigits(month), twoDigits(dayOfMonth));
}

QString barcodeOf(const QString& k) {
    return QStringLiteral("'626' || CAST(10000000 + %1 AS VARCHAR(20))").arg(k);
}

bool generate(Database& database, qint64 documents) {
    Session s = database.session(QStringLiteral("bench"), QStringLiteral("generate"));
    const Backend b = database.backend();
    const qint64 articles = std::max<qint64>(1, documents / kDocumentsPerArticle);
    // Purchases 20%, sale returns 5%, purchase returns 5%, sales the rest.
    const QString transType = QStringLiteral(
        "CASE WHEN i % 20 < 4 THEN 1 WHEN i % 20 = 4 THEN 3 WHEN i % 20 = 5 THEN 4 ELSE 2 END");
    const QString statements[] = {
        bench::withNumbers(b) + QStringLiteral("INSERT INTO Goods (EAN_Code, Name, Cost) SELECT ") +
            barcodeOf(QStringLiteral("i - 1")) +
            QStringLiteral(", 'article ' || CAST(i AS VARCHAR(20)), 1000 + i % 500 FROM ") +
            bench::numbers(b),
        bench::withNumbers(b) +
            QStringLiteral("INSERT INTO Whs_QTYDocH (Code, DocNo, TransType, DocDate, DocSum, "
                           "DocType) SELECT i, CAST(i AS VARCHAR(20)), ") +
            transType + QStringLiteral(", ") + dateOf(QStringLiteral("i")) +
            QStringLiteral(", 1000 * (i % 13), CASE WHEN i % 100 = 0 THEN 2 END FROM ") +
            bench::numbers(b),
        bench::withNumbers(b) +
            QStringLiteral("INSERT INTO Whs_QTYDocD (Code, EAN_Code, Qty, MFee, Discount, Fee, "
                           "Price, TaxValue) SELECT (i + 1) / 2, ") +
            barcodeOf(QStringLiteral("((i * i * 7919 + i * 31) % 1000003) % :articles")) +
            QStringLiteral(", 1 + i % 5, 1100 + i % 97 * 10, 0, 1000 + i % 97 * 10, "
                           "(1 + i % 5) * (1000 + i % 97 * 10), 9 FROM ") +
            bench::numbers(b),
    };
    const qint64 counts[] = {articles, documents, documents * 2};
    for (int t = 0; t < 3; ++t) {
        QElapsedTimer timer;
        timer.start();
        Transaction tx(s);
        // Each placeholder appears once in its statement.
        SqlBinds binds{{QStringLiteral(":rows"), counts[t]}};
        if (statements[t].contains(QStringLiteral(":articles"))) {
            binds.append({QStringLiteral(":articles"), articles});
        }
        if (statements[t].contains(QStringLiteral(":span"))) {
            binds.append({QStringLiteral(":span"), counts[t]});
        }
        if (!tx.isActive() || !s.exec(statements[t], binds) || !tx.commit()) {
            std::fprintf(stderr, "bench_data: generating failed: %s\n",
                         qPrintable(s.lastError().text()));
            return false;
        }
        std::fprintf(stderr, "bench_data: %s %lld rows of step %d in %.1f s\n",
                     qPrintable(backendName(b)), static_cast<long long>(counts[t]), t + 1,
                     timer.elapsed() / 1000.0);
    }
    return DatabaseStatistics::refresh(s);
}

// The generated shop of a backend and size, made on first use.
std::unique_ptr<Database> openShop(Backend backend, qint64 documents) {
    const ConnectionSettings settings = settingsFor(backend, documents);
    QDir().mkpath(settings.sqliteFolder.isEmpty() ? kBenchFolder : settings.sqliteFolder);
    QString error;
    if (DatabaseProvisioner::ensureExists(settings, &error) ==
        DatabaseProvisioner::Outcome::Failed) {
        std::fprintf(stderr, "bench_data: %s\n", qPrintable(error));
        return nullptr;
    }
    auto database = std::make_unique<Database>(settings, nullptr);
    Migrator migrator(*database);
    const Migrator::Result migrated = migrator.apply(shopMigrations());
    if (!migrated.ok) {
        std::fprintf(stderr, "bench_data: %s\n", qPrintable(migrated.message));
        return nullptr;
    }
    Session s = database->session();
    const qint64 have = s.scalarInt64(QStringLiteral("SELECT COUNT(*) FROM Whs_QTYDocH"));
    s.release();
    if (have == documents) {
        return database;
    }
    if (have != 0) {
        std::fprintf(stderr, "bench_data: %s holds %lld documents, not %lld; remove it\n",
                     qPrintable(settings.catalog), static_cast<long long>(have),
                     static_cast<long long>(documents));
        return nullptr;
    }
    return generate(*database, documents) ? std::move(database) : nullptr;
}

// The articles a look-up is run for: spread over the whole catalogue (each look-up reads
// pages no other has read lately), or a few dozen best sellers whose pages stay cached.
constexpr qint64 kBestSellers = 64;

struct Shop {
    std::unique_ptr<Database> database;
    qint64 documents = 0;
    qint64 articles = 0;

    QString barcode(qint64 k) const { return QStringLiteral("626%1").arg(10000000 + k % articles); }
    QString bestSeller(qint64 k) const {
        return QStringLiteral("626%1").arg(10000000 +
                                           (k % kBestSellers) * (articles / kBestSellers));
    }
};

void nextDocNo(benchmark::State& state, Shop* shop) {
    Session s = shop->database->session();
    qint64 next = 0;
    for (auto _ : state) {
        next = DocumentNumbering::nextDocNo(s, 2);
        benchmark::DoNotOptimize(next);
    }
    state.counters["next"] = double(next);
}

void nextDocNoOfDate(benchmark::State& state, Shop* shop) {
    Session s = shop->database->session();
    int day = 0;
    for (auto _ : state) {
        const QString date = QStringLiteral("1403/%1/%2")
                                 .arg(day % 12 + 1, 2, 10, QLatin1Char('0'))
                                 .arg(day % 30 + 1, 2, 10, QLatin1Char('0'));
        ++day;
        benchmark::DoNotOptimize(DocumentNumbering::nextDocNoOfDate(s, 2, date));
    }
}

void lastPurchasePrice(benchmark::State& state, Shop* shop) {
    Session s = shop->database->session();
    qint64 k = 0;
    for (auto _ : state) {
        benchmark::DoNotOptimize(
            procedures::sp_tblWhs_QTYDocD_GetLastBuyPrice(s, shop->barcode(k += 7)));
    }
}

void lastPurchasePriceBestSellers(benchmark::State& state, Shop* shop) {
    Session s = shop->database->session();
    qint64 k = 0;
    for (auto _ : state) {
        benchmark::DoNotOptimize(
            procedures::sp_tblWhs_QTYDocD_GetLastBuyPrice(s, shop->bestSeller(++k)));
    }
}

void averagePurchasePriceBestSellers(benchmark::State& state, Shop* shop) {
    Session s = shop->database->session();
    qint64 k = 0;
    for (auto _ : state) {
        benchmark::DoNotOptimize(PurchasePrices::averagePurchasePrice(s, shop->bestSeller(++k)));
    }
}

// The repair after a sale of three articles, undone after each run.
void scopedStockRepair(benchmark::State& state, Shop* shop) {
    Session s = shop->database->session();
    qint64 k = 0;
    for (auto _ : state) {
        Transaction tx(s);
        const QStringList barcodes{shop->barcode(k), shop->barcode(k + 1), shop->barcode(k + 2)};
        k += 3;
        benchmark::DoNotOptimize(procedures::sp_StockRepair(s, barcodes));
        tx.rollback();
    }
}

void averagePurchasePrice(benchmark::State& state, Shop* shop) {
    Session s = shop->database->session();
    qint64 k = 0;
    for (auto _ : state) {
        benchmark::DoNotOptimize(PurchasePrices::averagePurchasePrice(s, shop->barcode(k += 7)));
    }
}

}  // namespace

int main(int argc, char** argv) {
    QCoreApplication app(argc, argv);
    benchmark::Initialize(&argc, argv);
    std::vector<std::unique_ptr<Shop>> shops;
    const QList<Backend> backends = bench::backends("bench_data");
    for (const Backend backend : backends) {
        for (const qint64 documents : bench::sizes(QStringLiteral("10000,1000000"))) {
            auto shop = std::make_unique<Shop>();
            shop->database = openShop(backend, documents);
            if (!shop->database) {
                return 1;
            }
            shop->documents = documents;
            shop->articles = std::max<qint64>(1, documents / kDocumentsPerArticle);
            const std::string prefix =
                backendName(backend).toStdString() + "/" + std::to_string(documents) + "/";
            benchmark::RegisterBenchmark((prefix + "NextDocNo").c_str(), nextDocNo, shop.get());
            benchmark::RegisterBenchmark((prefix + "NextDocNoOfDate").c_str(), nextDocNoOfDate,
                                         shop.get());
            benchmark::RegisterBenchmark((prefix + "LastPurchasePrice").c_str(), lastPurchasePrice,
                                         shop.get());
            benchmark::RegisterBenchmark((prefix + "AveragePurchasePrice").c_str(),
                                         averagePurchasePrice, shop.get());
            benchmark::RegisterBenchmark((prefix + "LastPurchasePriceBestSellers").c_str(),
                                         lastPurchasePriceBestSellers, shop.get());
            benchmark::RegisterBenchmark((prefix + "AveragePurchasePriceBestSellers").c_str(),
                                         averagePurchasePriceBestSellers, shop.get());
            benchmark::RegisterBenchmark((prefix + "ScopedStockRepair").c_str(), scopedStockRepair,
                                         shop.get());
            shops.push_back(std::move(shop));
        }
    }
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    shops.clear();
    return 0;
}
