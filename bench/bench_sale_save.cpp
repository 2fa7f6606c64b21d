// Saving a sale of twenty lines, committed durably (synchronous FULL on SQLite; on
// PostgreSQL as durable as the server's fsync and synchronous_commit), on the generated
// shops of bench_data (10k and 1M documents), beside a full sp_StockRepair of the same shop.
// A save should cost about the same at both sizes.
//
//   bench_data --benchmark_filter=NONE        makes the shops first (see bench_data.cpp)
//   bench_sale_save                           SQLite, 10k and 1M documents
//   SANDOGH_BENCH_PG_HOST=127.0.0.1 SANDOGH_BENCH_PG_PORT=5432 SANDOGH_BENCH_PG_USER=postgres
//                                             PostgreSQL as well (or SANDOGH_TEST_PG_*)
//
// The sales saved here are removed again at the end, so the shops keep their counts.

#include <benchmark/benchmark.h>

#include <QCoreApplication>
#include <QTemporaryDir>
#include <cstdio>
#include <memory>

#include "BenchShop.h"
#include "data/Database.h"
#include "data/Transaction.h"
#include "data/procedures/StockProcedures.h"
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

class QuietMessages final : public MessageService {
public:
    bool show(const QString& text, MessageStyle style, const QString&) override {
        if (style != MessageStyle::QuestionYesNo) {
            std::fprintf(stderr, "bench_sale_save: %s\n", qPrintable(text));
        }
        return true;
    }
    bool prompt(const QString&, QString&, bool) override { return false; }
};

struct Shop {
    std::unique_ptr<Database> database;
    qint64 documents = 0;
    QTemporaryDir settingsDir;
    std::unique_ptr<QSettingsStore> store;
    std::unique_ptr<MachineSettings> settings;
    QuietMessages messages;
    SystemClock clock;

    bool open(Backend backend, qint64 size) {
        documents = size;
        const ConnectionSettings connection =
            bench::generatedShop(backend, size, "bench_sale_save");
        database = std::make_unique<Database>(connection, nullptr);
        Session s = database->session();
        const qint64 have =
            s.scalarInt64(QStringLiteral("SELECT COUNT(*) FROM Whs_QTYDocH"), {}, -1);
        if (have != size) {
            std::fprintf(stderr,
                         "bench_sale_save: %s has %lld documents, not %lld: run bench_data "
                         "first\n",
                         qPrintable(connection.catalog), static_cast<long long>(have),
                         static_cast<long long>(size));
            return false;
        }
        // A save refuses a payment kind that does not exist; older generated shops lack it.
        if (s.scalarInt64(QStringLiteral("SELECT COUNT(*) FROM tblPaymentType WHERE Code = 1"), {},
                          -1) == 0 &&
            !s.exec(QStringLiteral("INSERT INTO tblPaymentType (Code, Name) VALUES (1, 'cash')"))) {
            std::fprintf(stderr, "bench_sale_save: cannot add the payment kind\n");
            return false;
        }
        store = std::make_unique<QSettingsStore>(
            QStringLiteral("Retail"), settingsDir.filePath(QStringLiteral("Retail.ini")));
        settings = std::make_unique<MachineSettings>(*store);
        return true;
    }
    // Removes the sales saved by the benchmark.
    void clean() {
        Session s = database->session();
        Transaction tx(s);
        const SqlBinds above{{QStringLiteral(":documents"), documents}};
        s.exec(QStringLiteral("DELETE FROM Whs_QTYDocD WHERE Code > :documents"), above);
        s.exec(QStringLiteral("DELETE FROM Whs_QTYDocH WHERE Code > :documents"), above);
        s.exec(QStringLiteral("DELETE FROM tblDocumentD"));
        s.exec(QStringLiteral("DELETE FROM tblDocumentH"));
        tx.commit();
    }
};

void saveSale(benchmark::State& state, Shop* shop) {
    SaleSession sale(*shop->database, *shop->settings, shop->messages, shop->clock);
    sale.setUser(1, QStringLiteral("bench"));
    sale.setStation(0);  // the generated shops have no stations
    const qint64 articles = std::max<qint64>(1, shop->documents / 50);
    for (int i = 0; i < kLines; ++i) {
        SaleLine line;
        line.barcode = QStringLiteral("626%1").arg(10000000 + (i * 7919) % articles);
        line.quantity = 1 + i % 3;
        line.unitPrice = 1000 + i * 10;
        line.recompute();
        sale.addLine(line);
    }
    SaleSaver saver(*shop->database, *shop->settings, shop->messages, shop->clock);
    SaleSettlement settlement;
    settlement.payType = 1;
    for (auto _ : state) {
        SaleSettlement each = settlement;
        if (!saver.save(sale, each).saved) {
            state.SkipWithError("the sale was not saved");
            break;
        }
    }
    shop->clean();
}

// sp_StockRepair over every article, undone after each run.
void fullStockRepair(benchmark::State& state, Shop* shop) {
    Session s = shop->database->session();
    for (auto _ : state) {
        Transaction tx(s);
        benchmark::DoNotOptimize(procedures::sp_StockRepair(s));
        tx.rollback();
    }
}

}  // namespace

int main(int argc, char** argv) {
    QCoreApplication app(argc, argv);
    benchmark::Initialize(&argc, argv);
    QList<Backend> backends{Backend::SQLite};
    if (!bench::env("SANDOGH_BENCH_PG_HOST", "SANDOGH_TEST_PG_HOST").isEmpty()) {
        backends << Backend::PostgreSQL;
    } else {
        std::fprintf(stderr, "bench_sale_save: PostgreSQL not configured, SQLite only\n");
    }
    std::vector<std::unique_ptr<Shop>> shops;
    for (const Backend backend : backends) {
        for (const qint64 documents : {qint64(10000), qint64(1000000)}) {
            auto shop = std::make_unique<Shop>();
            if (!shop->open(backend, documents)) {
                return 1;
            }
            const std::string prefix =
                backendName(backend).toStdString() + "/" + std::to_string(documents) + "/";
            benchmark::RegisterBenchmark((prefix + "SaveSale20Lines").c_str(), saveSale, shop.get())
                ->Unit(benchmark::kMillisecond);
            benchmark::RegisterBenchmark((prefix + "FullStockRepair").c_str(), fullStockRepair,
                                         shop.get())
                ->Unit(benchmark::kMillisecond);
            shops.push_back(std::move(shop));
        }
    }
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
