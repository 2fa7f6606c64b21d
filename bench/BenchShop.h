#pragma once

#include <QList>
#include <QString>
#include <cstdio>

#include "data/Backend.h"
#include "data/ConnectionSettings.h"

// What the benchmark programs share: their settings from the environment, the connection of a
// generated shop, and the numbered row source their generators insert from.
namespace sandogh::bench {

// SANDOGH_BENCH_* when set, else the tests' SANDOGH_TEST_* of the same name.
inline QString env(const char* bench, const char* test) {
    const QString value = qEnvironmentVariable(bench).trimmed();
    return value.isEmpty() ? qEnvironmentVariable(test).trimmed() : value;
}

inline bool postgresConfigured() {
    return !env("SANDOGH_BENCH_PG_HOST", "SANDOGH_TEST_PG_HOST").isEmpty();
}

// The shop sizes of a run: SANDOGH_BENCH_SIZES ("10000,1000000") or the program's default.
inline QList<qint64> sizes(const QString& defaults) {
    const QString text = qEnvironmentVariable("SANDOGH_BENCH_SIZES");
    QList<qint64> result;
    for (const QString& part : (text.isEmpty() ? defaults : text).split(QLatin1Char(','))) {
        if (part.trimmed().toLongLong() > 0) {
            result << part.trimmed().toLongLong();
        }
    }
    return result;
}

// SQLite always, PostgreSQL when a server is configured; program names the benchmark in the
// line that says PostgreSQL is left out.
inline QList<Backend> backends(const char* program) {
    if (postgresConfigured()) {
        return {Backend::SQLite, Backend::PostgreSQL};
    }
    std::fprintf(stderr, "%s: PostgreSQL not configured, SQLite only\n", program);
    return {Backend::SQLite};
}

// A shop of the benchmarks: on SQLite the file shop.sqlite in sqliteFolder below
// programFolder (a folder per shop, as the scale vendors' files lie beside it); on
// PostgreSQL the database pgCatalog on the configured server. program names the
// benchmark in a parse error.
inline ConnectionSettings shopSettings(Backend backend, const QString& sqliteFolder,
                                       const QString& pgCatalog, const QString& programFolder,
                                       const char* program) {
    QString text;
    if (backend == Backend::SQLite) {
        text = QStringLiteral(
                   "Provider=SQLite;Data Source=%1;Initial Catalog=shop;"
                   "User ID=;Password=;")
                   .arg(sqliteFolder);
    } else {
        QString source = env("SANDOGH_BENCH_PG_HOST", "SANDOGH_TEST_PG_HOST");
        const QString port = env("SANDOGH_BENCH_PG_PORT", "SANDOGH_TEST_PG_PORT");
        if (!port.isEmpty()) {
            source += QLatin1Char(',') + port;
        }
        text = QStringLiteral(
                   "Provider=PostgreSQL;Data Source=%1;Initial Catalog=%2;"
                   "User ID=%3;Password=%4;")
                   .arg(source, pgCatalog, env("SANDOGH_BENCH_PG_USER", "SANDOGH_TEST_PG_USER"),
                        env("SANDOGH_BENCH_PG_PASSWORD", "SANDOGH_TEST_PG_PASSWORD"));
    }
    ConnectionSettings settings;
    QString error;
    if (!ConnectionSettings::parse(text, programFolder, settings, &error)) {
        std::fprintf(stderr, "%s: %s\n", program, qPrintable(error));
    }
    return settings;
}

// The shop of `documents` documents that bench_data generates: shop_N under the bench
// folder on SQLite, the database sandogh_bench_N on PostgreSQL.
inline ConnectionSettings generatedShop(Backend backend, qint64 documents, const char* program) {
    return shopSettings(backend, QStringLiteral("shop_%1").arg(documents),
                        QStringLiteral("sandogh_bench_%1").arg(documents),
                        QStringLiteral("/tmp/sandogh-bench"), program);
}

// The row source 1..:rows of each backend, and the clause that must precede the statement
// using it (SQLite's recursive common table expression; nothing on PostgreSQL).
inline QString numbers(Backend backend) {
    return backend == Backend::PostgreSQL
               ? QStringLiteral("generate_series(1, CAST(:rows AS BIGINT)) AS n(i)")
               : QStringLiteral("n");
}

inline QString withNumbers(Backend backend) {
    return backend == Backend::PostgreSQL
               ? QString()
               : QStringLiteral(
                     "WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n "
                     "WHERE i < :rows) ");
}

}  // namespace sandogh::bench
