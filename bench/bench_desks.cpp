// Cash desks saving sales at the same moment on one database, and a save whose articles
// carry a long history beside one whose articles have none.
//
//   bench_desks                       SQLite only
//   SANDOGH_BENCH_PG_HOST=127.0.0.1 SANDOGH_BENCH_PG_PORT=5432 SANDOGH_BENCH_PG_USER=postgres
//                                     PostgreSQL as well (or SANDOGH_TEST_PG_*); scripts/bench
//                                     starts a server with fsync on for it
//   SANDOGH_BENCH_HISTORY=100000      earlier lines per article of the "history" sale
//
// Each run makes a fresh shop (SQLite under /tmp/sandogh-bench/desks, PostgreSQL database
// sandogh_bench_desks): 40 articles, of which the first 20 get HISTORY earlier sale lines
// each (HISTORY documents of 20 lines), generated in bulk and analysed.
//
// Desks/N: N threads, each a cash desk with its own connection, save sales of 20 lines
// (a sale of the fresh articles) for a fixed time; sales_per_s is the total rate, p99_ms
// and max_ms the latency of one save (checks, look-ups, transaction, commit).
// SaveSale20Lines/History and /Fresh: one desk saving the same sale of 20 articles with and
// without history; their ratio is what the history costs.

#include <benchmark/benchmark.h>

#include <QCoreApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QTemporaryDir>
#include <algorithm>
#include <atomic>
#include <cstdio>
#include <memory>
#include <thread>
#include <vector>

#include "BenchShop.h"
#include "data/Database.h"
#include "data/DatabaseProvisioner.h"
#include "data/DatabaseStatistics.h"
#include "data/RoundTrips.h"
#include "data/SqlQuery.h"
#include "data/Transaction.h"
#include "data/schema/Migrator.h"
#include "data/schema/ShopSchema.h"
#include "sales/SaleSaver.h"
#include "sales/SaleSession.h"
#include "sales/SaleSettlement.h"
#include "settings/Clock.h"
#include "settings/MachineSettings.h"
#include "settings/MessageService.h"
#include "settings/QSettingsStore.h"

namespace {

using namespace sandogh;

constexpr int kLines = 20;
constexpr int kArticles = 40;
const QString kBenchFolder = QStringLiteral("/tmp/sandogh-bench/desks");

qint64 history() {
    const qint64 n = qEnvironmentVariable("SANDOGH_BENCH_HISTORY").toLongLong();
    return n > 0 ? n : 100000;
}

ConnectionSettings settingsFor(Backend backend) {
    return bench::shopSettings(backend, QStringLiteral("shop"),
                               QStringLiteral("sandogh_bench_desks"), kBenchFolder, "bench_desks");
}

QString barcode(int k) {
    return QStringLiteral("626%1").arg(20000000 + k);
}

class QuietMessages final : public MessageService {
public:
    bool show(const QString& text, MessageStyle style, const QString&) override {
        if (style != MessageStyle::QuestionYesNo) {
            std::fprintf(stderr, "bench_desks: %s\n", qPrintable(text));
        }
        return true;
    }
    bool prompt(const QString&, QString&, bool) override { return false; }
};

// The bulk history: HISTORY sales of one line per article of the first twenty.
bool generate(Database& database, qint64 documents) {
    Session s = database.session(QStringLiteral("bench"), QStringLiteral("generate"));
    const bool pg = database.backend() == Backend::PostgreSQL;
    const QString with = pg ? QString()
                            : QStringLiteral(
                                  "WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT "
                                  "i + 1 FROM n WHERE i < :rows) ");
    const QString source = pg ? QStringLiteral("generate_series(1, CAST(:rows AS BIGINT)) AS n(i)")
                              : QStringLiteral("n");
    Transaction tx(s);
    bool ok = tx.isActive();
    for (int k = 0; k < kArticles && ok; ++k) {
        ok =
            s.exec(QStringLiteral("INSERT INTO Goods (EAN_Code, Name, Cost) VALUES (:b, :b, 1000)"),
                   {{QStringLiteral(":b"), barcode(k)}}) &&
            s.exec(QStringLiteral("INSERT INTO Stock (Barcode, Import, Export, Stock, Branch) "
                                  "VALUES (:b, 0, 0, 0, 1)"),
                   {{QStringLiteral(":b"), barcode(k)}});
    }
    ok = ok &&
         s.exec(QStringLiteral("INSERT INTO Users (ID, Name, UserName, Active) VALUES "
                               "(1, 'bench', 'bench', 1)")) &&
         s.exec(QStringLiteral("INSERT INTO tblPaymentType (Code, Name) VALUES (1, 'cash')"));
    for (int desk = 1; desk <= 8 && ok; ++desk) {
        ok = s.exec(QStringLiteral("INSERT INTO Stations (ID, Station_Name) VALUES (:id, :name)"),
                    {{QStringLiteral(":id"), desk},
                     {QStringLiteral(":name"), QStringLiteral("Desk %1").arg(desk)}});
    }
    ok = ok &&
         s.exec(with +
                    QStringLiteral("INSERT INTO Whs_QTYDocH (Code, DocNo, TransType, DocDate, "
                                   "DocSum) SELECT i, CAST(i AS VARCHAR(20)), 2, '1403/06/01', "
                                   "20000 FROM ") +
                    source,
                {{QStringLiteral(":rows"), documents}}) &&
         s.exec(with +
                    QStringLiteral("INSERT INTO Whs_QTYDocD (Code, EAN_Code, Qty, MFee, "
                                   "Discount, Fee, Price, TaxValue) SELECT (i - 1) / 20 + 1, "
                                   "'626' || CAST(20000000 + (i - 1) % 20 AS VARCHAR(20)), 1, 0, "
                                   "0, 1000, 1000, 0 FROM ") +
                    source,
                {{QStringLiteral(":rows"), documents * kLines}}) &&
         tx.commit();
    return ok && DatabaseStatistics::refresh(s);
}

std::unique_ptr<Database> freshShop(Backend backend) {
    const ConnectionSettings settings = settingsFor(backend);
    QString error;
    DatabaseProvisioner::drop(settings, &error);
    QDir().mkpath(kBenchFolder);
    if (DatabaseProvisioner::ensureExists(settings, &error) ==
        DatabaseProvisioner::Outcome::Failed) {
        std::fprintf(stderr, "bench_desks: %s\n", qPrintable(error));
        return nullptr;
    }
    auto database = std::make_unique<Database>(settings, nullptr);
    const Migrator::Result migrated = Migrator(*database).apply(shopMigrations());
    if (!migrated.ok) {
        std::fprintf(stderr, "bench_desks: %s\n", qPrintable(migrated.message));
        return nullptr;
    }
    QElapsedTimer timer;
    timer.start();
    if (!generate(*database, history())) {
        std::fprintf(stderr, "bench_desks: generating the history failed\n");
        return nullptr;
    }
    std::fprintf(stderr, "bench_desks: %s shop with %lld lines per article in %.1f s\n",
                 qPrintable(backendName(backend)), static_cast<long long>(history()),
                 timer.elapsed() / 1000.0);
    return database;
}

// One cash desk: its own settings, messages, sale and saver on the shared database.
struct Desk {
    QTemporaryDir settingsDir;
    QSettingsStore store{QStringLiteral("Retail"), settingsDir.filePath(QStringLiteral("R.ini"))};
    MachineSettings settings{store};
    QuietMessages messages;
    SystemClock clock;
    SaleSession sale;
    SaleSaver saver;

    Desk(Database& database, int station, int firstArticle)
        : sale(database, settings, messages, clock), saver(database, settings, messages, clock) {
        sale.setUser(1, QStringLiteral("bench"));
        sale.setStation(station);
        for (int i = 0; i < kLines; ++i) {
            SaleLine line;
            line.barcode = barcode(firstArticle + i);
            line.quantity = 1 + i % 3;
            line.unitPrice = 1000 + i * 10;
            line.recompute();
            sale.addLine(line);
        }
    }
    bool save() {
        SaleSettlement settlement;
        settlement.payType = 1;
        return saver.save(sale, settlement).saved;
    }
};

void desks(benchmark::State& state, Database* database) {
    const int count = static_cast<int>(state.range(0));
    constexpr qint64 kRunMs = 5000;
    for (auto _ : state) {
        std::vector<std::vector<double>> latencies(count);
        std::atomic<bool> failed{false};
        QElapsedTimer wall;
        wall.start();
        std::vector<std::thread> threads;
        for (int d = 0; d < count; ++d) {
            threads.emplace_back([&, d] {
                Desk desk(*database, d + 1, kLines);
                QElapsedTimer one;
                while (wall.elapsed() < kRunMs && !failed) {
                    one.start();
                    if (!desk.save()) {
                        failed = true;
                    }
                    latencies[d].push_back(one.nsecsElapsed() / 1e6);
                }
            });
        }
        for (std::thread& t : threads) {
            t.join();
        }
        const double seconds = wall.nsecsElapsed() / 1e9;
        if (failed) {
            state.SkipWithError("a sale was not saved");
            break;
        }
        std::vector<double> all;
        for (const auto& l : latencies) {
            all.insert(all.end(), l.begin(), l.end());
        }
        std::sort(all.begin(), all.end());
        state.SetIterationTime(seconds);
        state.counters["sales"] = static_cast<double>(all.size());
        state.counters["sales_per_s"] = all.size() / seconds;
        state.counters["p50_ms"] = all[all.size() / 2];
        state.counters["p99_ms"] = all[std::min(all.size() - 1, all.size() * 99 / 100)];
        state.counters["max_ms"] = all.back();
    }
}

// One desk saving the same 20-line sale: of the articles with history (first 0) or of
// the fresh ones (first 20). round_trips is the statements one save sends.
void saveSale(benchmark::State& state, Database* database, int firstArticle) {
    Desk desk(*database, 1, firstArticle);
    quint64 trips = 0;
    qint64 saves = 0;
    for (auto _ : state) {
        const quint64 before = RoundTrips::count();
        if (!desk.save()) {
            state.SkipWithError("the sale was not saved");
            break;
        }
        trips += RoundTrips::count() - before;
        ++saves;
    }
    state.counters["round_trips"] = saves > 0 ? double(trips) / double(saves) : 0;
}

}  // namespace

int main(int argc, char** argv) {
    QCoreApplication app(argc, argv);
    benchmark::Initialize(&argc, argv);
    const QList<Backend> backends = bench::backends("bench_desks");
    std::vector<std::unique_ptr<Database>> shops;
    for (const Backend backend : backends) {
        auto database = freshShop(backend);
        if (!database) {
            return 1;
        }
        const std::string prefix = backendName(backend).toStdString() + "/";
        benchmark::RegisterBenchmark((prefix + "SaveSale20Lines/Fresh").c_str(), saveSale,
                                     database.get(), kLines)
            ->Unit(benchmark::kMillisecond);
        benchmark::RegisterBenchmark((prefix + "SaveSale20Lines/History").c_str(), saveSale,
                                     database.get(), 0)
            ->Unit(benchmark::kMillisecond);
        benchmark::RegisterBenchmark((prefix + "Desks").c_str(), desks, database.get())
            ->Arg(1)
            ->Arg(8)
            ->Iterations(1)
            ->UseManualTime()
            ->Unit(benchmark::kSecond);
        shops.push_back(std::move(database));
    }
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
