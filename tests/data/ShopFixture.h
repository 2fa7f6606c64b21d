#pragma once

// A per-backend test on a fresh shop database with every migration step applied, and
// small helpers that write goods and documents the way the screens do.

#include <gtest/gtest.h>

#include <QList>
#include <QString>
#include <optional>

#include "data/SqlQuery.h"
#include "data/Transaction.h"
#include "data/procedures/StockDocumentWriter.h"
#include "data/schema/Migrator.h"
#include "data/schema/ShopSchema.h"
#include "support/BackendTest.h"

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

    qint64 count(const QString& sql, const SqlBinds& binds = {}) {
        Session s = session();
        return s.scalarInt64(sql, binds, -1);
    }
};

}  // namespace sandogh::test
