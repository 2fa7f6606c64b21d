#pragma once

#include <gtest/gtest.h>

#include <cstdio>
#include <memory>
#include <string>

#include "data/Backend.h"
#include "support/QtPrinters.h"
#include "support/TestDatabase.h"

namespace sandogh::test {

// Creates the test database of a backend for a test that is not a BackendTest. When it
// cannot, reports as BackendTest does: sets skip (the caller then GTEST_SKIP()s) or adds
// a failure.
inline std::unique_ptr<TestDatabase> createOrReport(Backend backend, bool* skip) {
    QString reason;
    std::unique_ptr<TestDatabase> db = TestDatabase::create(backend, &reason);
    *skip = !db && backend == Backend::PostgreSQL && !TestDatabase::postgresConfigured() &&
            !TestDatabase::postgresRequired();
    if (*skip) {
        std::fprintf(stderr, "\n*** SKIPPED on PostgreSQL: %s ***\n\n", qPrintable(reason));
    } else if (!db) {
        ADD_FAILURE() << backendName(backend).toStdString()
                      << " test database: " << reason.toStdString();
    }
    return db;
}

// A suite that runs once per backend on a fresh database each test:
//
//   class GoodsRepositoryTest : public BackendTest {};
//   TEST_P(GoodsRepositoryTest, FindsByBarcode) { Session s = db().session(); ... }
//   SANDOGH_INSTANTIATE_BACKENDS(GoodsRepositoryTest);
//
// Without a configured PostgreSQL the PostgreSQL instances are skipped with a loud
// message; with SANDOGH_REQUIRE_PG=1 (scripts/test) they fail instead.
class BackendTest : public ::testing::TestWithParam<Backend> {
protected:
    void SetUp() override {
        bool skip = false;
        m_testDatabase = createOrReport(GetParam(), &skip);
        if (skip) {
            GTEST_SKIP() << "PostgreSQL is not configured (SANDOGH_TEST_PG_HOST); this test did "
                            "NOT run";
        }
        ASSERT_NE(m_testDatabase, nullptr);
    }
    void TearDown() override { m_testDatabase.reset(); }

    Backend backend() const { return GetParam(); }
    TestDatabase& testDatabase() { return *m_testDatabase; }
    Database& db() { return m_testDatabase->database(); }
    RecordingMessageService& messages() { return m_testDatabase->messages(); }

private:
    std::unique_ptr<TestDatabase> m_testDatabase;
};

inline std::string backendParamName(const ::testing::TestParamInfo<Backend>& info) {
    return backendName(info.param).toStdString();
}

}  // namespace sandogh::test

#define SANDOGH_INSTANTIATE_BACKENDS(Suite)                                            \
    INSTANTIATE_TEST_SUITE_P(                                                          \
        Backends, Suite,                                                               \
        ::testing::Values(::sandogh::Backend::SQLite, ::sandogh::Backend::PostgreSQL), \
        ::sandogh::test::backendParamName)

#define SANDOGH_INSTANTIATE_POSTGRES_ONLY(Suite)                                                 \
    INSTANTIATE_TEST_SUITE_P(Backends, Suite, ::testing::Values(::sandogh::Backend::PostgreSQL), \
                             ::sandogh::test::backendParamName)
