#pragma once

// A per-backend suite on a fresh shop database with every migration applied, and the
// few rows the catalogue tests build on.

#include <QString>

#include "data/Session.h"
#include "data/SqlQuery.h"
#include "data/schema/Migrator.h"
#include "data/schema/ShopSchema.h"
#include "support/BackendTest.h"
#include "support/FixedClock.h"

namespace sandogh::test {

class ShopBackendTest : public BackendTest {
protected:
    void SetUp() override {
        BackendTest::SetUp();
        if (IsSkipped() || HasFatalFailure()) {
            return;
        }
        const Migrator::Result applied = Migrator(db()).apply(shopMigrations());
        ASSERT_TRUE(applied.ok) << applied.message.toStdString();
    }

    // Field 0 of the first row as a number; -1 when the statement failed.
    qint64 number(const QString& sql, const SqlBinds& binds = {}) {
        Session s = db().session();
        const QVariant v = s.scalar(sql, binds);
        return v.isValid() ? v.toLongLong() : -1;
    }
    QString text(const QString& sql, const SqlBinds& binds = {}) {
        Session s = db().session();
        return s.scalarText(sql, binds);
    }
    bool exec(const QString& sql, const SqlBinds& binds = {}) {
        Session s = db().session();
        return s.exec(sql, binds);
    }
    qint64 rows(const QString& table) {
        return number(QStringLiteral("SELECT COUNT(*) FROM ") + table);
    }

    // A code level of Code_Parameters.
    void addLevel(int typeNo, const QString& name, int digits) {
        ASSERT_TRUE(exec(QStringLiteral("INSERT INTO Code_Parameters (TypeNo, Name, NameEnglish, "
                                        "DigitQty, ParameterLevel) VALUES (:t, :n, '', :d, :l)"),
                         {{QStringLiteral(":t"), typeNo},
                          {QStringLiteral(":n"), name},
                          {QStringLiteral(":d"), digits},
                          {QStringLiteral(":l"), typeNo % 100}}));
    }
    // A value of a list with its Counter, optionally linked under a parent value.
    void addValue(int counter, int typeNo, const QString& code, const QString& name,
                  int parent = 0) {
        ASSERT_TRUE(exec(QStringLiteral("INSERT INTO Types (Counter, TypeNo, Code, Name) "
                                        "VALUES (:c, :t, :code, :name)"),
                         {{QStringLiteral(":c"), counter},
                          {QStringLiteral(":t"), typeNo},
                          {QStringLiteral(":code"), code},
                          {QStringLiteral(":name"), name}}));
        if (parent > 0) {
            ASSERT_TRUE(
                exec(QStringLiteral("INSERT INTO TypesLink (Counter, Link) VALUES (:c, :p)"),
                     {{QStringLiteral(":c"), counter}, {QStringLiteral(":p"), parent}}));
        }
    }
    // A document header of a transaction type with one line naming a barcode.
    void addDocumentLine(int code, int transType, const QString& barcode) {
        ASSERT_TRUE(exec(QStringLiteral("INSERT INTO Whs_QTYDocH (Code, DocNo, TransType, "
                                        "CompanyID, DocDate) VALUES (:c, '1', :t, 0, "
                                        "'1404/01/01')"),
                         {{QStringLiteral(":c"), code}, {QStringLiteral(":t"), transType}}));
        ASSERT_TRUE(exec(QStringLiteral("INSERT INTO Whs_QTYDocD (Code, EAN_Code, Qty, Fee, "
                                        "Price) VALUES (:c, :b, 1, 10, 10)"),
                         {{QStringLiteral(":c"), code}, {QStringLiteral(":b"), barcode}}));
    }

    FixedClock clock;
};

}  // namespace sandogh::test
