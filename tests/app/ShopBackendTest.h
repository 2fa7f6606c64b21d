#pragma once

#include "data/Database.h"
#include "data/SqlQuery.h"
#include "support/AppTestContext.h"
#include "support/BackendTest.h"

namespace sandogh::test {

// A per-backend test on a fresh shop database with every migration step applied.
class ShopBackendTest : public BackendTest {
protected:
    void SetUp() override {
        BackendTest::SetUp();
        if (IsSkipped() || HasFatalFailure()) {
            return;
        }
        ASSERT_TRUE(migrateShop(db()));
        messages().clear();
    }

    qint64 count(const QString& sql, const SqlBinds& binds = {}) {
        Session s = db().session();
        return s.scalarInt64(sql, binds, -1);
    }

    QString text(const QString& sql, const SqlBinds& binds = {}) {
        Session s = db().session();
        return s.scalarText(sql, binds, QStringLiteral("<none>"));
    }

    bool exec(const QString& sql, const SqlBinds& binds = {}) {
        Session s = db().session();
        const bool ok = s.exec(sql, binds);
        EXPECT_TRUE(ok) << s.lastError().text().toStdString();
        return ok;
    }
};

}  // namespace sandogh::test
