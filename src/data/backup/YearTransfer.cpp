#include "data/backup/YearTransfer.h"

#include "data/Dialect.h"
#include "data/SqlQuery.h"
#include "data/procedures/StockDocumentHeader.h"
#include "data/procedures/StockProcedures.h"
#include "data/repositories/PartyBalance.h"
#include "data/schema/ShopSchema.h"

namespace sandogh {

namespace {

bool fail(QString* error, const QString& text) {
    if (error != nullptr) {
        *error = text;
    }
    return false;
}

// The table's columns as the migration steps leave them: those it was made with and those
// later steps added.
QList<ColumnDef> columnsOf(const TableDef& table) {
    QList<ColumnDef> columns = table.columns;
    for (const MigrationStep& step : shopMigrations()) {
        for (const AddColumnDef& add : step.addColumns) {
            if (add.database.isEmpty() && add.table.compare(table.name, Qt::CaseInsensitive) == 0) {
                columns << add.column;
            }
        }
    }
    return columns;
}

}  // namespace

const QStringList& YearTransfer::carriedTables() {
    static const QStringList tables{
        // The shop, its desks, users and shifts.
        QStringLiteral("Company"),
        QStringLiteral("Display"),
        QStringLiteral("Sentences"),
        QStringLiteral("Stations"),
        QStringLiteral("Users"),
        QStringLiteral("tblUser"),
        QStringLiteral("UserStation"),
        QStringLiteral("UserPermission"),
        QStringLiteral("tblShift"),
        QStringLiteral("tblCenterBranches"),
        QStringLiteral("Supplier_Std"),
        QStringLiteral("CostDocs"),
        // The parameter table (units, parties and their accounts, ...) and the code levels.
        QStringLiteral("Types"),
        QStringLiteral("TypesLink"),
        QStringLiteral("Code_Parameters"),
        QStringLiteral("Acc_Code"),
        QStringLiteral("tblCustomerGroup"),
        QStringLiteral("tblPaymentType"),
        QStringLiteral("tblBanks"),
        QStringLiteral("tblPOS"),
        // The catalogue: goods, price lists, sets, warehouses.
        QStringLiteral("Goods"),
        QStringLiteral("Price_History"),
        QStringLiteral("tblRelatedCode"),
        QStringLiteral("Set"),
        QStringLiteral("SetItem"),
        QStringLiteral("tblWarehouse"),
        QStringLiteral("BarcodeWarehouse"),
        QStringLiteral("UserWarehouse"),
    };
    return tables;
}

bool YearTransfer::copyTable(Session& from, Session& to, const QString& table, QString* error) {
    const TableDef* def = findShopTable({}, table);
    if (def == nullptr) {
        return fail(error, QStringLiteral("no table %1 in the shop schema").arg(table));
    }
    const Dialect& dialect = to.dialect();
    QStringList columns;
    QStringList binds;
    QString identity;
    const QList<ColumnDef> defs = columnsOf(*def);
    for (const ColumnDef& column : defs) {
        columns << column.name;
        binds << QLatin1Char(':') + column.name;
        if (column.identity) {
            identity = column.name;
        }
    }
    const QString tableName = dialect.table(def->name);
    SqlQuery read(
        from,
        QStringLiteral("SELECT %1 FROM %2").arg(columns.join(QStringLiteral(", ")), tableName));
    if (!read.exec()) {
        return fail(error, from.lastError().text());
    }
    SqlQuery write(to, QStringLiteral("INSERT INTO %1 (%2) VALUES (%3)")
                           .arg(tableName, columns.join(QStringLiteral(", ")),
                                binds.join(QStringLiteral(", "))));
    while (read.next()) {
        for (int i = 0; i < columns.size(); ++i) {
            if (read.isNull(i)) {
                write.bindNull(binds.at(i), defs.at(i).type);
            } else {
                write.bindValue(binds.at(i), read.value(i));
            }
        }
        if (!write.exec()) {
            return fail(error, QStringLiteral("%1: %2").arg(table, to.lastError().text()));
        }
    }
    if (!identity.isEmpty() && to.backend() == Backend::PostgreSQL) {
        // Rows written with their keys leave the identity where it was.
        SqlQuery next(to, QStringLiteral("SELECT setval(pg_get_serial_sequence(:table, :column), "
                                         "(SELECT COALESCE(MAX(%1), 0) FROM %2) + 1, false)")
                              .arg(identity, tableName));
        next.bind(QStringLiteral(":table"), def->name.toLower())
            .bind(QStringLiteral(":column"), identity.toLower());
        if (!next.exec()) {
            return fail(error, to.lastError().text());
        }
    }
    return true;
}

QList<YearTransfer::ClosingStock> YearTransfer::closingStock(Session& from, QString* error) {
    QList<ClosingStock> stock;
    if (!procedures::sp_StockRepair(from)) {
        fail(error, QStringLiteral("the closing stock cannot be computed"));
        return stock;
    }
    // The newest purchase line's Fee, as the last purchase price reads it.
    SqlQuery q(from, QStringLiteral(
                         "SELECT G.EAN_Code, COALESCE(S.Stock, 0), COALESCE((SELECT %1 D.Fee FROM "
                         "Whs_QTYDocD D INNER JOIN Whs_QTYDocH H ON H.Code = D.Code WHERE "
                         "D.EAN_Code = G.EAN_Code AND H.TransType = :purchase AND H.DocType IS "
                         "NULL ORDER BY D.Code DESC, D.ID DESC %2), 0) FROM Goods G LEFT JOIN "
                         "Stock S ON S.Barcode = G.EAN_Code ORDER BY G.EAN_Code")
                         .arg(from.dialect().top(1), from.dialect().limit(1)));
    q.bind(QStringLiteral(":purchase"), static_cast<int>(procedures::kPurchase));
    if (!q.exec()) {
        fail(error, from.lastError().text());
        return {};
    }
    while (q.next()) {
        stock.append({q.text(0), q.number(1), q.number(2)});
    }
    return stock;
}

QList<YearTransfer::PartyOpening> YearTransfer::customerBalances(Session& from, QString* error) {
    QList<int> counters;
    SqlQuery q(from, QStringLiteral("SELECT Counter FROM Types WHERE TypeNo = :customers "
                                    "ORDER BY Counter"));
    q.bind(QStringLiteral(":customers"), 10);
    if (!q.exec()) {
        fail(error, from.lastError().text());
        return {};
    }
    while (q.next()) {
        counters << q.integer(0);
    }
    QList<PartyOpening> balances;
    for (int counter : counters) {
        const PartyBalance::Totals t = PartyBalance::totals(from, counter);
        balances.append({counter, t.salesTotal - t.receivedTotal - t.returnsTotal});
    }
    return balances;
}

bool YearTransfer::setOpeningCredit(Session& to, const QList<PartyOpening>& balances,
                                    QString* error) {
    for (const PartyOpening& party : balances) {
        if (!to.exec(QStringLiteral("UPDATE Types SET Credit = :credit WHERE Counter = :counter "
                                    "AND TypeNo = :customers"),
                     {{QStringLiteral(":credit"), party.balance},
                      {QStringLiteral(":counter"), party.counter},
                      {QStringLiteral(":customers"), 10}})) {
            return fail(error, to.lastError().text());
        }
    }
    return true;
}

}  // namespace sandogh
