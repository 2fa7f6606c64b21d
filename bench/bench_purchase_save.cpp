// Saving a purchase of 1,000 lines, committed durably, on the generated shops of bench_data
// (sizes from SANDOGH_BENCH_SIZES, default 10k and 1M documents): the voucher, the header,
// the lines and the stock of their articles in one transaction.
//
//   bench_data --benchmark_filter=NONE        makes the shops first (see bench_data.cpp)
//   bench_purchase_save                       SQLite
//   SANDOGH_BENCH_PG_HOST=127.0.0.1 SANDOGH_BENCH_PG_PORT=5432 SANDOGH_BENCH_PG_USER=postgres
//                                             PostgreSQL as well (or SANDOGH_TEST_PG_*)
//
// The purchases saved here, the supplier and the accounts are removed again at the end and
// the stock of the articles bought is recomputed, so the shops keep their counts.

#include <benchmark/benchmark.h>

#include <QCoreApplication>
#include <cstdio>
#include <memory>

#include "BenchShop.h"
#include "data/ConnectionSettings.h"
#include "data/Database.h"
#include "data/Transaction.h"
#include "data/procedures/StockProcedures.h"
#include "purchase/PurchaseSaver.h"
#include "purchase/PurchaseSession.h"
#include "settings/Clock.h"
#include "settings/MessageService.h"

namespace {

using namespace sandogh;

constexpr int kLines = 1000;
constexpr int kSupplier = 900000001;

QString providerOf(Backend backend, qint64 documents) {
    if (backend == Backend::SQLite) {
        return QStringLiteral(
                   "Provider=SQLite;Data Source=shop_%1;Initial Catalog=shop;User ID=;"
                   "Password=;")
            .arg(documents);
    }
    QString source = bench::env("SANDOGH_BENCH_PG_HOST", "SANDOGH_TEST_PG_HOST");
    const QString port = bench::env("SANDOGH_BENCH_PG_PORT", "SANDOGH_TEST_PG_PORT");
    if (!port.isEmpty()) {
        source += QLatin1Char(',') + port;
    }
    return QStringLiteral(
               "Provider=PostgreSQL;Data Source=%1;Initial Catalog=sandogh_bench_%2;"
               "User ID=%3;Password=%4;")
        .arg(source)
        .arg(documents)
        .arg(bench::env("SANDOGH_BENCH_PG_USER", "SANDOGH_TEST_PG_USER"),
             bench::env("SANDOGH_BENCH_PG_PASSWORD", "SANDOGH_TEST_PG_PASSWORD"));
}

class QuietMessages final : public MessageService {
public:
    bool show(const QString& text, MessageStyle, const QString&) override {
        std::fprintf(stderr, "bench_purchase_save: %s\n", qPrintable(text));
        return true;
    }
    bool prompt(const QString&, QString&, bool) override { return false; }
};

struct Shop {
    std::unique_ptr<Database> database;
    qint64 documents = 0;
    int account = 0;
    QuietMessages messages;
    SystemClock clock;

    bool open(Backend backend, qint64 size) {
        documents = size;
        ConnectionSettings connection;
        QString error;
        if (!ConnectionSettings::parse(providerOf(backend, size),
                                       QStringLiteral("/tmp/sandogh-bench"), connection, &error)) {
            std::fprintf(stderr, "bench_purchase_save: %s\n", qPrintable(error));
            return false;
        }
        database = std::make_unique<Database>(connection, nullptr);
        Session s = database->session();
        const qint64 have =
            s.scalarInt64(QStringLiteral("SELECT COUNT(*) FROM Whs_QTYDocH"), {}, -1);
        if (have != size) {
            std::fprintf(stderr,
                         "bench_purchase_save: %s has %lld documents, not %lld: run "
                         "bench_data first\n",
                         qPrintable(connection.catalog), static_cast<long long>(have),
                         static_cast<long long>(size));
            return false;
        }
        // A supplier with its account and a purchase account.
        Transaction tx(s);
        s.exec(
            QStringLiteral("INSERT INTO tblAccountingGroup (Code, ParentCode, Name) VALUES "
                           "(90001, 900, 'bench purchases')"));
        account = static_cast<int>(s.scalarInt64(
            QStringLiteral("SELECT MAX(ID) FROM tblAccountingGroup WHERE Code = 90001")));
        s.exec(QStringLiteral("INSERT INTO Types (Counter, TypeNo, Name, Active, "
                              "AccountingGroupID) VALUES (:counter, 11, 'bench', 1, :account)"),
               {{QStringLiteral(":counter"), kSupplier}, {QStringLiteral(":account"), account}});
        return tx.commit() && account > 0;
    }
    // Removes what the benchmark added and recomputes the stock of the articles bought.
    void clean(const QStringList& barcodes) {
        Session s = database->session();
        Transaction tx(s);
        const SqlBinds above{{QStringLiteral(":documents"), documents}};
        s.exec(QStringLiteral("DELETE FROM Whs_QTYDocD WHERE Code > :documents"), above);
        s.exec(QStringLiteral("DELETE FROM Whs_QTYDocH WHERE Code > :documents"), above);
        s.exec(QStringLiteral("DELETE FROM tblDocumentD"));
        s.exec(QStringLiteral("DELETE FROM tblDocumentH"));
        s.exec(QStringLiteral("DELETE FROM Types WHERE Counter = :counter"),
               {{QStringLiteral(":counter"), kSupplier}});
        s.exec(QStringLiteral("DELETE FROM tblAccountingGroup WHERE Code = 90001"));
        procedures::sp_StockRepair(s, barcodes);
        tx.commit();
    }
};

void savePurchase(benchmark::State& state, Shop* shop) {
    PurchaseSession purchase(*shop->database, shop->messages, shop->clock);
    purchase.setUser(1);
    purchase.newDocument(false);
    purchase.header().supplier = kSupplier;
    purchase.header().accountingGroupId = shop->account;
    const qint64 articles = std::max<qint64>(1, shop->documents / 50);
    QStringList barcodes;
    for (int i = 0; i < kLines; ++i) {
        PurchaseLine line;
        line.barcode = QStringLiteral("626%1").arg(10000000 + (i * 7919) % articles);
        line.qty = 1 + i % 12;
        line.mFee = 1000 + i * 10;
        line.discount = i % 3 == 0 ? 5 : 0;
        line.taxValue = 9;
        purchase.lines().append(line);
        barcodes << line.barcode;
    }
    PurchaseSaver saver(*shop->database, shop->messages, shop->clock);
    for (auto _ : state) {
        if (!saver.save(purchase).saved) {
            state.SkipWithError("the purchase was not saved");
            break;
        }
    }
    shop->clean(barcodes);
}

QList<qint64> sizes() {
    QList<qint64> result;
    const QString text = qEnvironmentVariable("SANDOGH_BENCH_SIZES");
    for (const QString& part :
         (text.isEmpty() ? QStringLiteral("10000,1000000") : text).split(QLatin1Char(','))) {
        if (part.trimmed().toLongLong() > 0) {
            result << part.trimmed().toLongLong();
        }
    }
    return result;
}

}  // namespace

int main(int argc, char** argv) {
    QCoreApplication app(argc, argv);
    benchmark::Initialize(&argc, argv);
    QList<Backend> backends{Backend::SQLite};
    if (!bench::env("SANDOGH_BENCH_PG_HOST", "SANDOGH_TEST_PG_HOST").isEmpty()) {
        backends << Backend::PostgreSQL;
    } else {
        std::fprintf(stderr, "bench_purchase_save: PostgreSQL not configured, SQLite only\n");
    }
    std::vector<std::unique_ptr<Shop>> shops;
    for (const Backend backend : backends) {
        for (const qint64 documents : sizes()) {
            auto shop = std::make_unique<Shop>();
            if (!shop->open(backend, documents)) {
                return 1;
            }
            const std::string name = backendName(backend).toStdString() + "/" +
                                     std::to_string(documents) + "/SavePurchase1000Lines";
            benchmark::RegisterBenchmark(name.c_str(), savePurchase, shop.get())
                ->Unit(benchmark::kMillisecond);
            shops.push_back(std::move(shop));
        }
    }
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
