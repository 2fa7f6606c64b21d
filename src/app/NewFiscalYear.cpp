#include "app/NewFiscalYear.h"

#include <QDir>
#include <QFile>
#include <QRegularExpression>
#include <QTemporaryDir>

#include "data/Database.h"
#include "data/DatabaseProvisioner.h"
#include "data/Transaction.h"
#include "data/backup/SqliteFileCopy.h"
#include "data/backup/YearTransfer.h"
#include "data/procedures/StockDocumentWriter.h"
#include "data/procedures/StockProcedures.h"
#include "data/schema/Migrator.h"
#include "data/schema/ShopSchema.h"

namespace sandogh {

namespace {

NewFiscalYear::Result failed(const QString& error) {
    NewFiscalYear::Result result;
    result.error = error;
    return result;
}

// Copies and opening documents into the new year, all in one transaction of its own.
QString carry(Database& present, Database& next, const QString& jalaliToday,
              NewFiscalYear::Result& result) {
    Session from = present.session(QStringLiteral("NewFiscalYear"), QStringLiteral("read"));
    Session to = next.session(QStringLiteral("NewFiscalYear"), QStringLiteral("write"));
    if (!from || !to) {
        return QStringLiteral("cannot reach the databases");
    }
    QString error;
    const QList<YearTransfer::ClosingStock> stock = YearTransfer::closingStock(from, &error);
    const QList<YearTransfer::PartyOpening> balances =
        error.isEmpty() ? YearTransfer::customerBalances(from, &error)
                        : QList<YearTransfer::PartyOpening>{};
    if (!error.isEmpty()) {
        return error;
    }
    Transaction tx(to);
    if (!tx.isActive()) {
        return tx.error().text();
    }
    auto rolledBack = [&tx](const QString& why) {
        tx.rollback();
        return why;
    };
    for (const QString& table : YearTransfer::carriedTables()) {
        if (!YearTransfer::copyTable(from, to, table, &error)) {
            return rolledBack(error);
        }
    }
    if (!YearTransfer::setOpeningCredit(to, balances, &error)) {
        return rolledBack(error);
    }
    procedures::StockDocumentHeader header;
    header.docNo = QString::fromLatin1(NewFiscalYear::kOpeningDocNo);
    header.transType = procedures::kPurchase;
    header.docDate = jalaliToday;
    header.note = NewFiscalYear::openingNote();
    double sum = 0;
    for (const YearTransfer::ClosingStock& article : stock) {
        sum += article.quantity * article.lastPurchaseFee;
    }
    header.docSum = sum;
    const qint64 code = procedures::StockDocumentWriter::insertHeader(to, header);
    if (code <= 0) {
        return rolledBack(QStringLiteral("cannot write the opening stock document"));
    }
    for (const YearTransfer::ClosingStock& article : stock) {
        if (article.quantity == 0) {
            continue;
        }
        procedures::StockDocumentLine line;
        line.eanCode = article.barcode;
        line.qty = article.quantity;
        line.mFee = article.lastPurchaseFee;
        line.fee = article.lastPurchaseFee;
        line.price = article.quantity * article.lastPurchaseFee;
        if (procedures::StockDocumentWriter::insertLine(to, code, line) <= 0) {
            return rolledBack(
                QStringLiteral("cannot write the opening stock of %1").arg(article.barcode));
        }
        ++result.articles;
    }
    if (!procedures::sp_StockRepair(to) || !tx.commit()) {
        return rolledBack(QStringLiteral("cannot finish the new year's stock"));
    }
    result.customers = static_cast<int>(balances.size());
    return {};
}

// Brings the new database to the program's schema. A SQLite year is made in a work folder
// and then moved beside the present one: the scale vendors' files of the data folder are
// shared by every year and already hold their tables, which the migration would make again.
QString migrate(const ConnectionSettings& nextSettings, const DatabaseOptions& options) {
    if (nextSettings.backend != Backend::SQLite) {
        Database next(nextSettings, nullptr, nullptr, options);
        const Migrator::Result migrated = Migrator(next).apply(shopMigrations());
        return migrated.ok ? QString() : migrated.message;
    }
    QTemporaryDir work(nextSettings.sqliteFolder + QStringLiteral("/.sandogh-year-XXXXXX"));
    if (!work.isValid()) {
        return QStringLiteral("cannot make a work folder in %1").arg(nextSettings.sqliteFolder);
    }
    ConnectionSettings staged = nextSettings;
    staged.sqliteFolder = work.path();
    QString error;
    if (DatabaseProvisioner::ensureExists(staged, &error) == DatabaseProvisioner::Outcome::Failed) {
        return error;
    }
    {
        Database next(staged, nullptr, nullptr, options);
        const Migrator::Result migrated = Migrator(next).apply(shopMigrations());
        if (!migrated.ok) {
            return migrated.message;
        }
    }
    if (!SqliteFileCopy::checkpoint(staged.sqliteFile(), &error)) {
        return error;
    }
    QFile::remove(nextSettings.sqliteFile());  // the empty file the provisioner may have made
    if (!QFile::rename(staged.sqliteFile(), nextSettings.sqliteFile())) {
        return QStringLiteral("cannot move the new year into %1").arg(nextSettings.sqliteFolder);
    }
    return {};
}

}  // namespace

const QString& NewFiscalYear::openingNote() {
    static const QString note = QStringLiteral("موجودی اول دوره");
    return note;
}

NewFiscalYear::Result NewFiscalYear::open(Database& present, const QString& name,
                                          const QString& jalaliToday) {
    static const QRegularExpression kName(QStringLiteral("^[A-Za-z][A-Za-z0-9_]{0,62}$"));
    const ConnectionSettings& settings = present.settings();
    if (!kName.match(name).hasMatch()) {
        return failed(QStringLiteral("a year's name is a letter followed by letters, digits "
                                     "and _ (at most 63): %1")
                          .arg(name));
    }
    const ConnectionSettings nextSettings = settings.withCatalog(name);
    bool exists = false;
    QString error;
    if (name.compare(settings.catalog, Qt::CaseInsensitive) == 0 ||
        !DatabaseProvisioner::exists(nextSettings, exists, &error) || exists) {
        return failed(error.isEmpty() ? QStringLiteral("the database %1 exists already").arg(name)
                                      : error);
    }
    if (DatabaseProvisioner::ensureExists(nextSettings, &error) ==
        DatabaseProvisioner::Outcome::Failed) {
        return failed(error);
    }
    // On a server the new year is marked as one of the shop's years, so that the login lists
    // it and no other database of the server.
    const QString family = DatabaseProvisioner::yearFamily(settings, &error);
    if (!error.isEmpty() || !DatabaseProvisioner::markYear(nextSettings, family, &error)) {
        QString ignored;
        DatabaseProvisioner::drop(nextSettings, &ignored);
        return failed(error);
    }
    Result result;
    result.database = name;
    {
        DatabaseOptions options;
        options.otherDatabases = Migrator::otherDatabasesOf(shopMigrations());
        error = migrate(nextSettings, options);
        if (error.isEmpty()) {
            Database next(nextSettings, nullptr, nullptr, options);
            error = carry(present, next, jalaliToday, result);
        }
    }
    if (!error.isEmpty()) {
        QString ignored;
        DatabaseProvisioner::drop(nextSettings, &ignored);
        return failed(error);
    }
    result.ok = true;
    return result;
}

QStringList NewFiscalYear::years(const ConnectionSettings& settings) {
    const QStringList vendors = Migrator::otherDatabasesOf(shopMigrations());
    QStringList years;
    const QString family = DatabaseProvisioner::yearFamily(settings, nullptr);
    for (const QString& name : DatabaseProvisioner::years(settings, family, nullptr)) {
        // The scale vendors' files, and the copies a restore leaves, are no years.
        if (vendors.contains(name, Qt::CaseInsensitive) ||
            name.contains(QLatin1String("_before_")) || name.contains(QLatin1String("_restore_"))) {
            continue;
        }
        years << name;
    }
    if (!years.contains(settings.catalog, Qt::CaseInsensitive)) {
        years.prepend(settings.catalog);
    }
    return years;
}

}  // namespace sandogh
