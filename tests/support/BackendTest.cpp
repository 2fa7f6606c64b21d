#include "support/BackendTest.h"

#include <cstdio>

namespace sandogh::test {

std::string backendParamName(const ::testing::TestParamInfo<Backend>& info) {
    return backendName(info.param).toStdString();
}

std::unique_ptr<TestDatabase> createOrReport(Backend backend, bool* skip) {
    *skip = false;
    QString reason;
    std::unique_ptr<TestDatabase> db = TestDatabase::create(backend, &reason);
    if (db) {
        return db;
    }
    if (backend == Backend::PostgreSQL && !TestDatabase::postgresConfigured() &&
        !TestDatabase::postgresRequired()) {
        std::fprintf(stderr, "\n*** SKIPPED on PostgreSQL: %s ***\n\n", qPrintable(reason));
        *skip = true;
        return nullptr;
    }
    ADD_FAILURE() << backendName(backend).toStdString()
                  << " test database: " << reason.toStdString();
    return nullptr;
}

void BackendTest::SetUp() {
    bool skip = false;
    m_testDatabase = createOrReport(GetParam(), &skip);
    if (skip) {
        GTEST_SKIP() << "PostgreSQL is not configured (SANDOGH_TEST_PG_HOST); this test did "
                        "NOT run";
    }
    ASSERT_NE(m_testDatabase, nullptr);
}

void BackendTest::TearDown() {
    m_testDatabase.reset();
}

}  // namespace sandogh::test
