#pragma once

// A per-backend test on a fresh shop database with every migration step applied, and
// small helpers that write goods, list values and documents the way the screens do. The
// one shop fixture of the data, application and report suites.

#include <gtest/gtest.h>

#include <QList>
#include <QString>
#include <optional>
#include <utility>

#include "data/SqlQuery.h"
#include "data/Transaction.h"
#include "data/procedures/StockDocumentWriter.h"
#include "data/schema/Migrator.h"
#include "data/schema/ShopSchema.h"
#include "support/BackendTest.h"
#include "support/FixedClock.h"

namespace sandogh::test {

class ShopFixture : public BackendTest {
protected:
    struct Line {
        QString barcode;
        double qty = 1;
        double fee = 0;
        double price = 0;
        double mFee = 0;
        double discount = 0;
        double taxValue = 0;
    };

    void SetUp() override {
        BackendTest::SetUp();
        if (IsSkipped() || HasFatalFailure()) {
            return;
        }
        Migrator migrator(db());
        const Migrator::Result result = migrator.apply(shopMigrations());
        ASSERT_TRUE(result.ok) << result.message.toStdString();
        messages().clear();
    }

    Session session() { return db().session(QStringLiteral("test"), QStringLiteral("test")); }

    void addGoods(const QString& barcode, double cost = 0, const QString& name = {}) {
        Session s = session();
        ASSERT_TRUE(s.exec(QStringLiteral("INSERT INTO Goods (EAN_Code, Name, Cost) "
                                          "VALUES (:barcode, :name, :cost)"),
                           {{QStringLiteral(":barcode"), barcode},
                            {QStringLiteral(":name"), name.isEmpty() ? barcode : name},
                            {QStringLiteral(":cost"), cost}}))
            << s.lastError().text().toStdString();
    }

    // An ordinary document of one kind with its lines, in one transaction; its Code.
    qint64 addDocument(int transType, const QString& docNo, const QList<Line>& lines,
                       const QString& date = QStringLiteral("1404/01/05"),
                       std::optional<int> docType = std::nullopt,
                       std::optional<int> warehouse = std::nullopt) {
        procedures::StockDocumentHeader h;
        h.docNo = docNo;
        h.transType = transType;
        h.docDate = date;
        h.docType = docType;
        h.warehouseCode = warehouse;
        return writeDocument(h, lines, false);
    }

    qint64 addInternalDocument(int transType, const QString& docNo, const QList<Line>& lines) {
        procedures::StockDocumentHeader h;
        h.docNo = docNo;
        h.transType = transType;
        h.docDate = QStringLiteral("1404/01/05");
        return writeDocument(h, lines, true);
    }

    qint64 writeDocument(const procedures::StockDocumentHeader& header, const QList<Line>& lines,
                         bool internal) {
        using procedures::StockDocumentWriter;
        Session s = session();
        Transaction tx(s);
        EXPECT_TRUE(tx.isActive());
        const qint64 code = internal ? StockDocumentWriter::insertInternalHeader(s, header)
                                     : StockDocumentWriter::insertHeader(s, header);
        EXPECT_GT(code, 0) << s.lastError().text().toStdString();
        for (const Line& l : lines) {
            procedures::StockDocumentLine line;
            line.eanCode = l.barcode;
            line.qty = l.qty;
            line.fee = l.fee;
            line.price = l.price;
            line.mFee = l.mFee;
            line.discount = l.discount;
            line.taxValue = l.taxValue;
            const qint64 id = internal ? StockDocumentWriter::insertInternalLine(s, code, line)
                                       : StockDocumentWriter::insertLine(s, code, line);
            EXPECT_GT(id, 0) << s.lastError().text().toStdString();
        }
        EXPECT_TRUE(tx.commit());
        return code;
    }

    // Field 0 of the first row as a number; -1 when the statement failed.
    qint64 count(const QString& sql, const SqlBinds& binds = {}) {
        Session s = session();
        return s.scalarInt64(sql, binds, -1);
    }
    qint64 number(const QString& sql, const SqlBinds& binds = {}) { return count(sql, binds); }
    QString text(const QString& sql, const SqlBinds& binds = {}) {
        Session s = session();
        return s.scalarText(sql, binds);
    }
    bool exec(const QString& sql, const SqlBinds& binds = {}) {
        Session s = session();
        const bool ok = s.exec(sql, binds);
        EXPECT_TRUE(ok) << s.lastError().text().toStdString();
        return ok;
    }
    qint64 rows(const QString& table) {
        return count(QStringLiteral("SELECT COUNT(*) FROM ") + table);
    }

    // Stock of an article as the Stock table holds it; -1 without a row.
    double stock(const QString& barcode) {
        Session s = session();
        return s.scalarNumber(QStringLiteral("SELECT Stock FROM Stock WHERE Barcode = :b"),
                              {{QStringLiteral(":b"), barcode}}, -1);
    }
    // tblAccountingGroup.ID by its Code.
    int account(int code) {
        return int(count(QStringLiteral("SELECT ID FROM tblAccountingGroup WHERE Code = :c"),
                         {{QStringLiteral(":c"), code}}));
    }
    // Debit and credit of an account (by its Code) in a voucher.
    std::pair<double, double> posted(qint64 voucher, int accountCode) {
        Session s = session();
        SqlQuery q(s, QStringLiteral("SELECT COALESCE(SUM(Debt), 0), COALESCE(SUM(Credit), 0) "
                                     "FROM tblDocumentD WHERE DocumentHID = :v AND "
                                     "AccountingGroupID = :a"));
        q.bind(QStringLiteral(":v"), voucher).bind(QStringLiteral(":a"), account(accountCode));
        EXPECT_TRUE(q.exec() && q.next());
        return {q.number(0), q.number(1)};
    }
    // Makes every statement of a kind ("INSERT", "DELETE") on `table` fail until allow().
    void refuse(const QString& table, const QString& kind) {
        if (backend() == Backend::SQLite) {
            exec(QStringLiteral("CREATE TRIGGER refuse_it BEFORE %1 ON %2 BEGIN "
                                "SELECT RAISE(ABORT, 'refused'); END")
                     .arg(kind, table));
            return;
        }
        exec(
            QStringLiteral("CREATE FUNCTION refuse_it() RETURNS trigger AS $$ BEGIN RAISE "
                           "EXCEPTION 'refused'; END $$ LANGUAGE plpgsql"));
        exec(QStringLiteral("CREATE TRIGGER refuse_it BEFORE %1 ON %2 FOR EACH ROW EXECUTE "
                            "FUNCTION refuse_it()")
                 .arg(kind, table.toLower()));
    }
    void allow(const QString& table) {
        if (backend() == Backend::SQLite) {
            exec(QStringLiteral("DROP TRIGGER refuse_it"));
            return;
        }
        exec(QStringLiteral("DROP TRIGGER refuse_it ON %1").arg(table.toLower()));
        exec(QStringLiteral("DROP FUNCTION refuse_it()"));
    }

    FixedClock clock;
};

// The name the catalogue and application suites know the fixture by.
using ShopBackendTest = ShopFixture;

}  // namespace sandogh::test
