// Indexes on expressions and partial indexes: how each backend's DDL names them, and that
// the shop's numbering indexes exist after the migrations on every backend.

#include <gtest/gtest.h>

#include "data/Dialect.h"
#include "data/schema/ShopSchema.h"
#include "support/QtPrinters.h"

namespace sandogh {
namespace {

IndexDef numberIndex() {
    IndexDef i;
    i.name = QStringLiteral("IX_Whs_QTYDocH_TransType_DocNoNumber");
    i.table = QStringLiteral("Whs_QTYDocH");
    i.columns = {QStringLiteral("TransType")};
    i.expressions = {QStringLiteral("CAST(DocNo AS BIGINT)")};
    i.where = QStringLiteral("DocType IS NULL");
    return i;
}

struct RenderCase {
    Backend backend;
    const char* expected;
};

class ExpressionIndexRendering : public ::testing::TestWithParam<RenderCase> {};

TEST_P(ExpressionIndexRendering, KeysAfterColumnsAndTheCondition) {
    const auto dialect = Dialect::create(GetParam().backend);
    EXPECT_EQ(dialect->createIndex(numberIndex()), QString::fromUtf8(GetParam().expected));
}

INSTANTIATE_TEST_SUITE_P(
    Backends, ExpressionIndexRendering,
    ::testing::Values(
        RenderCase{Backend::SQLite,
                   "CREATE INDEX \"IX_Whs_QTYDocH_TransType_DocNoNumber\" ON \"Whs_QTYDocH\" "
                   "(\"TransType\", CAST(DocNo AS BIGINT)) WHERE DocType IS NULL"},
        RenderCase{Backend::PostgreSQL,
                   "CREATE INDEX \"ix_whs_qtydoch_transtype_docnonumber\" ON \"whs_qtydoch\" "
                   "(\"transtype\", CAST(DocNo AS BIGINT)) WHERE DocType IS NULL"},
        // T-SQL: a persisted computed column per expression, the index made in a nested
        // batch that compiles once the column exists; quotes doubled inside it.
        RenderCase{Backend::SqlServer,
                   "ALTER TABLE [Whs_QTYDocH] ADD [IX_Whs_QTYDocH_TransType_DocNoNumber_K1] AS "
                   "CAST(DocNo AS BIGINT) PERSISTED; EXEC(N'CREATE INDEX "
                   "[IX_Whs_QTYDocH_TransType_DocNoNumber] ON [Whs_QTYDocH] ([TransType], "
                   "[IX_Whs_QTYDocH_TransType_DocNoNumber_K1]) WHERE DocType IS NULL')"}),
    [](const ::testing::TestParamInfo<RenderCase>& param) {
        return backendName(param.param.backend).toStdString();
    });

TEST(ExpressionIndexRendering, PlainIndexesAreUnchanged) {
    IndexDef plain;
    plain.name = QStringLiteral("IX_T_A");
    plain.table = QStringLiteral("T");
    plain.columns = {QStringLiteral("A"), QStringLiteral("B")};
    for (const Backend backend : {Backend::SQLite, Backend::PostgreSQL, Backend::SqlServer}) {
        const QString sql = Dialect::create(backend)->createIndex(plain);
        EXPECT_FALSE(sql.contains(QStringLiteral("WHERE"))) << sql.toStdString();
        EXPECT_TRUE(sql.endsWith(QLatin1Char(')'))) << sql.toStdString();
    }
}

TEST(ExpressionIndexRendering, SqlServerQuotesInsideTheNestedBatchAreDoubled) {
    IndexDef i = numberIndex();
    i.where = QStringLiteral("DocNo <> ''");
    const QString sql = Dialect::create(Backend::SqlServer)->createIndex(i);
    EXPECT_TRUE(sql.endsWith(QStringLiteral("WHERE DocNo <> ''''')"))) << sql.toStdString();
}

// The numbering statements spell the number as the indexes do; a respelling would lose
// the index on SQLite without failing anything.
TEST(ExpressionIndexRendering, ShopNumberIndexesSpellTheNumberOneWay) {
    int found = 0;
    for (const MigrationStep& step : shopMigrations()) {
        for (const IndexDef& i : step.indexes) {
            if (!i.expressions.isEmpty()) {
                ++found;
                // The number first; the list's pages add the key after it.
                EXPECT_EQ(i.expressions.first(), QStringLiteral("CAST(DocNo AS BIGINT)"));
                EXPECT_EQ(i.columns.first(), QStringLiteral("TransType"));
            }
        }
    }
    EXPECT_EQ(found, 4);
}

}  // namespace
}  // namespace sandogh
