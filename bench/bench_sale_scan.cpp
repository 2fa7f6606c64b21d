// A scan at the cash desk, from the barcode box's text to the line on the grid: the goods
// look-ups, the price choice (a price-change document for some goods), the merge and the
// model update, on a shop of one million goods. SQLite always; PostgreSQL when
// SANDOGH_TEST_PG_HOST (and _PORT, _USER, _PASSWORD) name a server. Reported per scan as
// p50_us and p99_us counters. The settling pause's own cost with nothing pending is
// measured beside it.
//
// The shop is built once and kept: the SQLite file under /tmp/sandogh-bench-sale, the
// PostgreSQL database sandogh_bench_sale.

#include <benchmark/benchmark.h>

#include <QCoreApplication>
#include <QDir>
#include <QRandomGenerator>
#include <QTemporaryDir>
#include <algorithm>
#include <chrono>
#include <cstdio>
#include <ctime>
#include <memory>
#include <string>
#include <vector>

#include "data/ConnectionSettings.h"
#include "data/Database.h"
#include "data/DatabaseProvisioner.h"
#include "data/Transaction.h"
#include "data/schema/Migrator.h"
#include "data/schema/ShopSchema.h"
#include "sales/SaleSession.h"
#include "sales/SettlingPause.h"
#include "settings/Clock.h"
#include "settings/MachineSettings.h"
#include "settings/MessageService.h"
#include "settings/QSettingsStore.h"

using namespace sandogh;

namespace {

constexpr qint64 kGoods = 1000000;
constexpr int kPriceChanges = 20000;  // goods with a price-change document in force
constexpr int kBasket = 60;           // scans per customer before the grid is cleared
constexpr int kPool = 5000;           // distinct barcodes the scans draw from

class SilentMessages final : public MessageService {
public:
    bool show(const QString& text, MessageStyle, const QString&) override {
        std::fprintf(stderr, "bench_sale_scan: %s\n", qPrintable(text));
        return true;
    }
    bool prompt(const QString&, QString&, bool) override { return false; }
};

QString env(const char* name) {
    return qEnvironmentVariable(name).trimmed();
}

QString barcodeOf(qint64 i) {
    return QStringLiteral("626%1").arg(i, 10, 10, QLatin1Char('0'));
}

bool fill(Database& database) {
    Session s = database.session();
    if (s.scalarInt64(QStringLiteral("SELECT COUNT(*) FROM Goods")) == kGoods) {
        return true;
    }
    std::fprintf(stderr, "bench_sale_scan: generating %lld goods on %s ...\n",
                 static_cast<long long>(kGoods), qPrintable(backendName(s.backend())));
    Transaction tx(s);
    if (!tx.isActive() || !s.exec(QStringLiteral("DELETE FROM Goods")) ||
        !s.exec(QStringLiteral("DELETE FROM DiscountD")) ||
        !s.exec(QStringLiteral("DELETE FROM DiscountH"))) {
        return false;
    }
    const SqlBinds n{{QStringLiteral(":n"), kGoods}};
    const SqlBinds p{{QStringLiteral(":n"), kPriceChanges}};
    if (s.backend() == Backend::SQLite) {
        if (!s.exec(QStringLiteral(
                        "WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n "
                        "WHERE i < :n) INSERT INTO Goods (EAN_Code, Spec_Code, Name, Cost, "
                        "Cost2, TaxValue, GType, ISActive, AQIS) SELECT printf('626%010d', i), "
                        "CAST(i AS TEXT), 'Goods ' || i, 1000 + (i % 500) * 100, "
                        "1100 + (i % 500) * 100, CASE WHEN i % 3 = 0 THEN 9 ELSE 0 END, 0, 1, 0 "
                        "FROM n"),
                    n) ||
            !s.exec(QStringLiteral("INSERT INTO DiscountH (Code, FDate, SDate) VALUES "
                                   "(1, '1300/01/01', '1499/12/29')")) ||
            !s.exec(QStringLiteral("WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n "
                                   "WHERE i < :n) INSERT INTO DiscountD (Code, Ean_Code, NewCost) "
                                   "SELECT 1, printf('626%010d', i * 50), 900 FROM n"),
                    p)) {
            return false;
        }
    } else {
        if (!s.exec(QStringLiteral(
                        "INSERT INTO Goods (EAN_Code, Spec_Code, Name, Cost, Cost2, TaxValue, "
                        "GType, ISActive, AQIS) SELECT '626' || lpad(i::text, 10, '0'), i::text, "
                        "'Goods ' || i, 1000 + (i % 500) * 100, 1100 + (i % 500) * 100, "
                        "CASE WHEN i % 3 = 0 THEN 9 ELSE 0 END, 0, 1, 0 "
                        "FROM generate_series(1, CAST(:n AS BIGINT)) AS i"),
                    n) ||
            !s.exec(QStringLiteral("INSERT INTO DiscountH (Code, FDate, SDate) VALUES "
                                   "(1, '1300/01/01', '1499/12/29')")) ||
            !s.exec(QStringLiteral("INSERT INTO DiscountD (Code, Ean_Code, NewCost) "
                                   "SELECT 1, '626' || lpad((i * 50)::text, 10, '0'), 900 "
                                   "FROM generate_series(1, CAST(:n AS BIGINT)) AS i"),
                    p)) {
            return false;
        }
    }
    if (!tx.commit()) {
        return false;
    }
    if (s.backend() == Backend::PostgreSQL) {
        s.exec(QStringLiteral("ANALYZE"));
    }
    return true;
}

// The shop of a backend, opened, migrated and filled; null when it cannot be had.
std::unique_ptr<Database> openShop(Backend backend, MessageService& messages, QString* why) {
    QString provider;
    const QString programDir = QStringLiteral("/tmp/sandogh-bench-sale");
    if (backend == Backend::SQLite) {
        QDir().mkpath(programDir);
        provider = QStringLiteral(
            "Provider=SQLite;Data Source=Data;Initial Catalog=Shop;User ID=;Password=;"
            "Persist Security Info=False;");
    } else {
        if (env("SANDOGH_TEST_PG_HOST").isEmpty()) {
            *why = QStringLiteral("SANDOGH_TEST_PG_HOST is not set");
            return nullptr;
        }
        QString source = env("SANDOGH_TEST_PG_HOST");
        if (!env("SANDOGH_TEST_PG_PORT").isEmpty()) {
            source += QLatin1Char(',') + env("SANDOGH_TEST_PG_PORT");
        }
        provider = QStringLiteral(
                       "Provider=PostgreSQL;Data Source=%1;Initial Catalog="
                       "sandogh_bench_sale;User ID=%2;Password=%3;"
                       "Persist Security Info=True;")
                       .arg(source, env("SANDOGH_TEST_PG_USER"), env("SANDOGH_TEST_PG_PASSWORD"));
    }
    ConnectionSettings settings;
    if (!ConnectionSettings::parse(provider, programDir, settings, why)) {
        return nullptr;
    }
    if (DatabaseProvisioner::ensureExists(settings, why) == DatabaseProvisioner::Outcome::Failed) {
        return nullptr;
    }
    DatabaseOptions options;
    options.otherDatabases = Migrator::otherDatabasesOf(shopMigrations());
    auto database = std::make_unique<Database>(settings, &messages, nullptr, options);
    const Migrator::Result migrated = Migrator(*database).apply(shopMigrations());
    if (!migrated.ok) {
        *why = migrated.message;
        return nullptr;
    }
    if (!fill(*database)) {
        *why = QStringLiteral("the goods could not be generated");
        return nullptr;
    }
    return database;
}

// Time this thread spent on the CPU: apart from waiting for the server, what a busy
// machine's other processes add to the wall clock.
double threadCpuMicros() {
    timespec t{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &t);
    return static_cast<double>(t.tv_sec) * 1e6 + static_cast<double>(t.tv_nsec) / 1e3;
}

void percentiles(benchmark::State& state, std::vector<double>& micros, const char* prefix = "") {
    if (micros.empty()) {
        return;
    }
    std::sort(micros.begin(), micros.end());
    const auto at = [&micros](double q) {
        return micros[std::min(micros.size() - 1, static_cast<std::size_t>(q * micros.size()))];
    };
    const std::string p(prefix);
    state.counters[p + "p50_us"] = at(0.50);
    state.counters[p + "p99_us"] = at(0.99);
    state.counters[p + "max_us"] = micros.back();
}

void BM_ScanToLine(benchmark::State& state, Backend backend) {
    SilentMessages messages;
    QString why;
    const std::unique_ptr<Database> database = openShop(backend, messages, &why);
    if (!database) {
        state.SkipWithError(qPrintable(why));
        return;
    }
    QTemporaryDir settingsDir;
    QSettingsStore store(QStringLiteral("Retail"),
                         settingsDir.filePath(QStringLiteral("Retail.ini")));
    MachineSettings settings(store);
    SystemClock clock;
    SaleSession sale(*database, settings, messages, clock);
    sale.setUser(1, QStringLiteral("bench"));

    QRandomGenerator random(20250321);
    QStringList pool;
    for (int i = 0; i < kPool; ++i) {
        // Every fiftieth article has a price-change document: draw those now and then.
        const qint64 n = i % 10 == 0 ? 50 * random.bounded(1, kPriceChanges + 1)
                                     : random.bounded(static_cast<qint64>(1), kGoods + 1);
        pool << barcodeOf(n);
    }
    std::vector<double> micros;
    micros.reserve(1 << 16);
    std::vector<double> cpu;
    cpu.reserve(1 << 16);
    int scans = 0;
    QString last;
    for (auto _ : state) {
        // One scan in four repeats the one before it: that line is merged.
        const bool again = !last.isEmpty() && random.bounded(4) == 0;
        const QString barcode = again ? last : pool.at(random.bounded(kPool));
        last = barcode;
        const double cpuStart = threadCpuMicros();
        const auto start = std::chrono::steady_clock::now();
        const EntryOutcome outcome = sale.enterText(barcode);
        const auto end = std::chrono::steady_clock::now();
        cpu.push_back(threadCpuMicros() - cpuStart);
        if (!outcome.linesChanged) {
            state.SkipWithError("a scan added nothing");
            break;
        }
        micros.push_back(std::chrono::duration<double, std::micro>(end - start).count());
        if (++scans % kBasket == 0) {
            state.PauseTiming();
            sale.newSale();
            last.clear();
            state.ResumeTiming();
        }
    }
    state.SetItemsProcessed(state.iterations());
    percentiles(state, micros);
    percentiles(state, cpu, "cpu_");
}
BENCHMARK_CAPTURE(BM_ScanToLine, SQLite, Backend::SQLite)->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(BM_ScanToLine, PostgreSQL, Backend::PostgreSQL)->Unit(benchmark::kMicrosecond);

// The settling pause before the box is read, with no key pending.
void BM_SettlingPauseIdle(benchmark::State& state) {
    QCoreApplication::processEvents();
    const QString box = QStringLiteral("6260000012345");
    std::vector<double> micros;
    micros.reserve(1 << 20);
    for (auto _ : state) {
        const auto start = std::chrono::steady_clock::now();
        const SettlingPause::Result r = SettlingPause::settle([&box] { return box; });
        const auto end = std::chrono::steady_clock::now();
        benchmark::DoNotOptimize(r);
        micros.push_back(std::chrono::duration<double, std::micro>(end - start).count());
    }
    percentiles(state, micros);
}
BENCHMARK(BM_SettlingPauseIdle)->Unit(benchmark::kMicrosecond);

}  // namespace

int main(int argc, char** argv) {
    QCoreApplication app(argc, argv);
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv)) {
        return 1;
    }
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
