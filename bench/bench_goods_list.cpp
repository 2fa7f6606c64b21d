// The goods list on a catalogue of a million articles: opening the list (its first page)
// and reading a page of each search must not depend on the size of the catalogue.
//
// The shop is generated once into $SANDOGH_BENCH_DIR (default: a folder under the
// temporary folder) and kept there for later runs. With SANDOGH_BENCH_BACKEND=postgresql
// it is the database sandogh_bench_goods on the server of SANDOGH_BENCH_PG_HOST, _PORT,
// _USER, _PASSWORD (or SANDOGH_TEST_PG_*).
//
// The till's goods search (Ctrl+L) is measured per keystroke, reporting the 99th
// percentile of its calls as p99_ms: a rare word in the middle of the names (one article
// in ten thousand holds it), and a common one.
#include <benchmark/benchmark.h>

#include <QCoreApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QRandomGenerator>
#include <QStringList>
#include <algorithm>
#include <chrono>
#include <cstdio>
#include <memory>
#include <vector>

#include "data/ConnectionSettings.h"
#include "data/Database.h"
#include "data/DatabaseProvisioner.h"
#include "data/Session.h"
#include "data/Transaction.h"
#include "data/repositories/GoodsListQuery.h"
#include "data/repositories/GoodsSearchQuery.h"
#include "data/schema/Migrator.h"
#include "data/schema/ShopSchema.h"
#include "ui/catalog/GoodsListModel.h"

using sandogh::Database;
using sandogh::GoodsListModel;
using sandogh::GoodsListQuery;
using sandogh::GoodsSearchQuery;
using Column = GoodsListQuery::SearchColumn;

namespace {

constexpr int kArticles = 1'000'000;
// Rows written by one INSERT while generating.
constexpr int kBatchRows = 200;
// One article in this many holds the rare word in the middle of its name.
constexpr int kRareEvery = 10'000;
const QString kRareWord = QStringLiteral("زعفرانی");
constexpr int kPageRows = GoodsListModel::kPageRows;

std::unique_ptr<Database> g_database;

QString benchFolder() {
    const QString configured = qEnvironmentVariable("SANDOGH_BENCH_DIR");
    return configured.isEmpty() ? QDir::temp().filePath(QStringLiteral("sandogh-bench-goods"))
                                : configured;
}

// Product words and brands of a grocery; names are "<product> <brand> <size>".
const QStringList kProducts{
    QStringLiteral("شیر"),      QStringLiteral("ماست"),        QStringLiteral("پنیر"),
    QStringLiteral("کره"),      QStringLiteral("برنج"),        QStringLiteral("روغن"),
    QStringLiteral("چای"),      QStringLiteral("قند"),         QStringLiteral("شکر"),
    QStringLiteral("ماکارونی"), QStringLiteral("رب گوجه"),     QStringLiteral("کنسرو تن"),
    QStringLiteral("بیسکویت"),  QStringLiteral("شکلات"),       QStringLiteral("آبمیوه"),
    QStringLiteral("دوغ"),      QStringLiteral("نوشابه"),      QStringLiteral("صابون"),
    QStringLiteral("شامپو"),    QStringLiteral("مایع ظرفشویی")};
const QStringList kBrands{
    QStringLiteral("پگاه"),       QStringLiteral("میهن"),    QStringLiteral("دامداران"),
    QStringLiteral("کاله"),       QStringLiteral("لادن"),    QStringLiteral("فامیلا"),
    QStringLiteral("گلستان"),     QStringLiteral("مهرام"),   QStringLiteral("زر"),
    QStringLiteral("تک ماکارون"), QStringLiteral("چین چین"), QStringLiteral("شهرزاد")};

bool fill(Database& database) {
    sandogh::Session s = database.session();
    sandogh::Transaction tx(s);
    if (!tx.isActive()) {
        return false;
    }
    QRandomGenerator random(1404);
    const QString head = QStringLiteral(
        "INSERT INTO Goods (EAN_Code, Spec_Code, Name, NameKey, EnName, Cost, Unit, ISActive) "
        "VALUES ");
    for (int start = 0; start < kArticles; start += kBatchRows) {
        QStringList rows;
        sandogh::SqlBinds binds;
        for (int i = start; i < std::min(start + kBatchRows, kArticles); ++i) {
            // Unique barcodes in no order: 626 and ten digits of a scrambled counter.
            const quint64 scrambled = (quint64(i) * 2654435761ULL) % 10'000'000'000ULL;
            const QString barcode =
                QStringLiteral("626%1").arg(scrambled, 10, 10, QLatin1Char('0'));
            QString name = kProducts.at(int(random.bounded(kProducts.size()))) + QLatin1Char(' ');
            if (i % kRareEvery == 7) {
                name += kRareWord + QLatin1Char(' ');
            }
            name += kBrands.at(int(random.bounded(kBrands.size()))) + QLatin1Char(' ') +
                    QString::number(random.bounded(1, 5000));
            const QString n = QString::number(i - start);
            rows << QStringLiteral("(:b%1, :s%1, :n%1, :k%1, :l%1, :c%1, 0, 1)").arg(n);
            binds.append({QStringLiteral(":b") + n, barcode});
            binds.append({QStringLiteral(":s") + n, QString::number(random.bounded(1, 100000))});
            binds.append({QStringLiteral(":n") + n, name});
            binds.append({QStringLiteral(":k") + n, GoodsSearchQuery::searchKey(name)});
            binds.append({QStringLiteral(":l") + n, QStringLiteral("Article %1").arg(i)});
            binds.append({QStringLiteral(":c") + n, double(random.bounded(1000, 5'000'000))});
        }
        if (!s.exec(head + rows.join(QStringLiteral(", ")), binds)) {
            std::fprintf(stderr, "bench_goods_list: %s\n", qPrintable(s.lastError().text()));
            return false;
        }
    }
    // The word index of SQLite follows the inserts through its triggers; the statistics
    // let the planners choose it.
    s.exec(QStringLiteral("ANALYZE"));
    return tx.commit();
}

QString connectionText() {
    auto env = [](const char* bench, const char* test) {
        const QString value = qEnvironmentVariable(bench).trimmed();
        return value.isEmpty() ? qEnvironmentVariable(test).trimmed() : value;
    };
    if (qEnvironmentVariable("SANDOGH_BENCH_BACKEND")
            .compare(QStringLiteral("postgresql"), Qt::CaseInsensitive) != 0) {
        return QStringLiteral(
            "Provider=SQLite;Data Source=Data;Initial Catalog=GoodsBench;User ID=;"
            "Password=;Persist Security Info=False;");
    }
    QString source = env("SANDOGH_BENCH_PG_HOST", "SANDOGH_TEST_PG_HOST");
    const QString port = env("SANDOGH_BENCH_PG_PORT", "SANDOGH_TEST_PG_PORT");
    if (!port.isEmpty()) {
        source += QLatin1Char(',') + port;
    }
    return QStringLiteral(
               "Provider=PostgreSQL;Data Source=%1;Initial Catalog=sandogh_bench_goods;"
               "User ID=%2;Password=%3;")
        .arg(source, env("SANDOGH_BENCH_PG_USER", "SANDOGH_TEST_PG_USER"),
             env("SANDOGH_BENCH_PG_PASSWORD", "SANDOGH_TEST_PG_PASSWORD"));
}

bool openShop() {
    const QString folder = benchFolder();
    QDir().mkpath(folder);
    sandogh::ConnectionSettings settings;
    QString reason;
    if (!sandogh::ConnectionSettings::parse(connectionText(), folder, settings, &reason)) {
        std::fprintf(stderr, "bench_goods_list: %s\n", qPrintable(reason));
        return false;
    }
    if (sandogh::DatabaseProvisioner::ensureExists(settings, &reason) ==
        sandogh::DatabaseProvisioner::Outcome::Failed) {
        std::fprintf(stderr, "bench_goods_list: %s\n", qPrintable(reason));
        return false;
    }
    g_database = std::make_unique<Database>(settings, nullptr);
    const auto applied = sandogh::Migrator(*g_database).apply(sandogh::shopMigrations());
    if (!applied.ok) {
        std::fprintf(stderr, "bench_goods_list: %s\n", qPrintable(applied.message));
        return false;
    }
    sandogh::Session s = g_database->session();
    const qint64 present = s.scalarInt64(QStringLiteral("SELECT COUNT(*) FROM Goods"));
    s.release();
    if (present == kArticles) {
        return true;
    }
    if (present != 0) {
        std::fprintf(stderr, "bench_goods_list: %s holds %lld articles; remove it\n",
                     qPrintable(folder), present);
        return false;
    }
    QElapsedTimer timer;
    timer.start();
    std::fprintf(stderr, "bench_goods_list: generating %d articles in %s ...\n", kArticles,
                 qPrintable(folder));
    if (!fill(*g_database)) {
        return false;
    }
    std::fprintf(stderr, "bench_goods_list: generated in %.1f s\n", timer.elapsed() / 1000.0);
    return true;
}

// Opening the list: the model reads its first page.
void BM_OpenGoodsList(benchmark::State& state) {
    for (auto _ : state) {
        GoodsListModel model(*g_database);
        benchmark::DoNotOptimize(model.rowCount());
    }
}
BENCHMARK(BM_OpenGoodsList)->Unit(benchmark::kMillisecond);

// Scrolling: the page after one in the middle of the catalogue.
void BM_NextPageInTheMiddle(benchmark::State& state) {
    GoodsListQuery query(*g_database);
    GoodsListQuery::Position middle;
    middle.atStart = false;
    middle.key = QStringLiteral("6265000000000");
    for (auto _ : state) {
        const auto page = query.fetch(middle, kPageRows);
        benchmark::DoNotOptimize(page.rows.size());
    }
}
BENCHMARK(BM_NextPageInTheMiddle)->Unit(benchmark::kMillisecond);

// The first page of a search, as typing into the search box reads it.
void searchPage(benchmark::State& state, Column column, const QString& text) {
    qsizetype rows = 0;
    for (auto _ : state) {
        GoodsListQuery query(*g_database, column, text);
        const auto page = query.fetch({}, kPageRows);
        rows = page.rows.size();
        benchmark::DoNotOptimize(rows);
    }
    state.counters["rows"] = double(rows);
}

void BM_SearchBarcodePrefix(benchmark::State& state) {
    searchPage(state, Column::Barcode, QStringLiteral("62612"));
}
BENCHMARK(BM_SearchBarcodePrefix)->Unit(benchmark::kMillisecond);

void BM_SearchSpecCodePrefix(benchmark::State& state) {
    searchPage(state, Column::SpecCode, QStringLiteral("4711"));
}
BENCHMARK(BM_SearchSpecCodePrefix)->Unit(benchmark::kMillisecond);

void BM_SearchNameCommonWord(benchmark::State& state) {
    searchPage(state, Column::Name, QStringLiteral("پگاه"));
}
BENCHMARK(BM_SearchNameCommonWord)->Unit(benchmark::kMillisecond);

// A name part few articles hold: the name index is walked much further for a page.
void BM_SearchNameRareWord(benchmark::State& state) {
    searchPage(state, Column::Name, QStringLiteral("شامپو کاله 4999"));
}
BENCHMARK(BM_SearchNameRareWord)->Unit(benchmark::kMillisecond);

// The till's search as each keystroke runs it; p99_ms is the 99th percentile of the calls.
void tillSearch(benchmark::State& state, const QString& typed) {
    std::vector<double> millis;
    qsizetype rows = 0;
    for (auto _ : state) {
        const auto start = std::chrono::steady_clock::now();
        const auto found = GoodsSearchQuery(*g_database).find(typed);
        millis.push_back(
            std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - start)
                .count());
        rows = found.rows.size();
        benchmark::DoNotOptimize(rows);
    }
    std::sort(millis.begin(), millis.end());
    state.counters["rows"] = double(rows);
    state.counters["p99_ms"] = millis.empty() ? 0 : millis.at(millis.size() * 99 / 100);
}

void BM_TillSearchRareMidWord(benchmark::State& state) {
    tillSearch(state, kRareWord);
}
BENCHMARK(BM_TillSearchRareMidWord)->Unit(benchmark::kMillisecond)->Iterations(300);

// The same word as typed on an Arabic layout (yeh) with a brand after it.
void BM_TillSearchRareWordAndBrand(benchmark::State& state) {
    tillSearch(state, QStringLiteral("زعفراني كاله"));
}
BENCHMARK(BM_TillSearchRareWordAndBrand)->Unit(benchmark::kMillisecond)->Iterations(300);

void BM_TillSearchCommonWord(benchmark::State& state) {
    tillSearch(state, QStringLiteral("پگاه"));
}
BENCHMARK(BM_TillSearchCommonWord)->Unit(benchmark::kMillisecond)->Iterations(100);

void BM_TillSearchBarcodePrefix(benchmark::State& state) {
    tillSearch(state, QStringLiteral("62612"));
}
BENCHMARK(BM_TillSearchBarcodePrefix)->Unit(benchmark::kMillisecond)->Iterations(300);

}  // namespace

int main(int argc, char** argv) {
    QCoreApplication app(argc, argv);
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv)) {
        return 1;
    }
    if (!openShop()) {
        return 1;
    }
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    g_database.reset();
    return 0;
}
