// Provider.txt: six lines concatenated as written, the four kinds of line, and the
// fiscal year of the machine replacing the file's catalog.

#include <gtest/gtest.h>

#include "support/QtPrinters.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include "data/ConnectionFile.h"
#include "data/ErrorLog.h"
#include "support/FixedClock.h"
#include "support/RecordingMessageService.h"

namespace sandogh {
namespace {

struct LoadCase {
    const char* name;
    const char* lines;  // the file's lines, split at '|', each followed by lineEnd
    const char* lineEnd;
    const char* year;      // "Year"/"Year" of the settings
    const char* expected;  // the connection string; null when the file is refused
};

#define STANDARD                                                                              \
    "Provider=SQLOLEDB.1;|Persist Security Info=False;|User ID=sa;|Password=secret;|Initial " \
    "Catalog=Shop1403;|Data Source=SERVER1;"
#define JOINED(catalog)                                                                   \
    "Provider=SQLOLEDB.1;Persist Security Info=False;User ID=sa;Password=secret;Initial " \
    "Catalog=" catalog ";Data Source=SERVER1;"
#define SQLITE_WITH(catalog, user, password)                            \
    "Provider=SQLite;|Data Source=Data;|" catalog "|" user "|" password \
    "|"                                                                 \
    "Persist Security Info=False;"

const LoadCase kLoadCases[] = {
    {"NoFiscalYearKeepsTheFileCatalog", STANDARD, "\r\n", "", JOINED("Shop1403")},
    {"FiscalYearReplacesTheCatalog", STANDARD, "\r\n", "Shop1404", JOINED("Shop1404")},
    {"SameNameInAnotherCaseChangesNothing", STANDARD, "\r\n", "SHOP1403", JOINED("Shop1403")},
    {"FiscalYearIsTrimmed", STANDARD, "\n", "  Shop1404 ", JOINED("Shop1404")},
    {"CatalogInsideTheServerNameIsReplacedToo",
     "Provider=SQLOLEDB.1;|Data Source=shop1403-srv\\SQL;|Persist Security Info=False;|User "
     "ID=sa;|Password=x;|Initial Catalog=Shop1403;",
     "\r\n", "Y1404",
     "Provider=SQLOLEDB.1;Data Source=Y1404-srv\\SQL;Persist Security Info=False;User "
     "ID=sa;Password=x;Initial Catalog=Y1404;"},
    {"LinesWithoutSemicolonsAreJoinedAsTheyAre",
     "Provider=SQLite|Data Source=Data|Initial Catalog=Shop|User ID=sa|Password=pw|Persist "
     "Security Info=False",
     "\n", "",
     "Provider=SQLiteData Source=DataInitial Catalog=ShopUser ID=saPassword=pwPersist Security "
     "Info=False"},
    {"KindsAreFoundWithoutRegardToCase",
     "PROVIDER=SQLOLEDB.1;|dATA sOURCE=srv;|iNITIAL cATALOG=Shop1403;|uSER id=sa;|pASSWORD=p;|"
     "Persist Security Info=False;",
     "\r\n", "Shop1404",
     "PROVIDER=SQLOLEDB.1;dATA sOURCE=srv;iNITIAL cATALOG=Shop1404;uSER id=sa;pASSWORD=p;Persist "
     "Security Info=False;"},
    {"OnlySixLinesAreRead", STANDARD "|Extra=1;", "\r\n", "", JOINED("Shop1403")},
    {"EmptyCatalogIsNeverReplaced", SQLITE_WITH("Initial Catalog=;", "User ID=;", "Password=;"),
     "\n", "Shop1404",
     "Provider=SQLite;Data Source=Data;Initial Catalog=;User ID=;Password=;Persist Security "
     "Info=False;"},
    {"FiveLinesFail",
     "Provider=SQLOLEDB.1;|Persist Security Info=False;|User ID=sa;|Password=secret;|Initial "
     "Catalog=Shop1403;",
     "\r\n", "", nullptr},
    {"EmptyFileFails", nullptr, "\r\n", "", nullptr},
    {"CatalogLineShorterThanItsKeyFails", SQLITE_WITH("Init=Shop;", "User ID=;", "Password=;"),
     "\n", "", nullptr},
    {"CatalogKeyWithoutAnyValueCharacterFails",
     SQLITE_WITH("Initial Catalog=", "User ID=;", "Password=;"), "\n", "", nullptr},
    {"PasswordLineShorterThanItsKeyFails",
     SQLITE_WITH("Initial Catalog=Shop;", "User ID=;", "Pass;"), "\n", "", nullptr},
    {"UserLineShorterThanItsKeyFails",
     SQLITE_WITH("Initial Catalog=Shop;", "User=x;", "Password=;"), "\n", "", nullptr},
};

TEST(LoadPrimary, AssemblesTheConnectionStringOrRefusesTheFile) {
    for (const LoadCase& c : kLoadCases) {
        SCOPED_TRACE(c.name);
        QTemporaryDir dir;
        ASSERT_TRUE(dir.isValid());
        QFile file(QDir(dir.path()).filePath(QStringLiteral("Provider.txt")));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        if (c.lines) {
            for (const QByteArray& line : QByteArray(c.lines).split('|')) {
                file.write(line + c.lineEnd);
            }
        }
        file.close();

        test::RecordingMessageService messages;
        test::FixedClock clock;
        ErrorLog log(dir.path(), &messages, clock, QStringLiteral("1404/01/01"),
                     QStringLiteral("1.0"));
        ConnectionFile connection(dir.path(), &log);
        const bool ok = c.expected != nullptr;
        EXPECT_EQ(connection.LoadPrimary(QString::fromUtf8(c.year)), ok);
        EXPECT_EQ(connection.connectionString(), QString::fromUtf8(c.expected));
        EXPECT_EQ(messages.count(), ok ? 0 : 1);
        EXPECT_EQ(QFile::exists(log.filePath()), !ok);
    }
}

TEST(LoadPrimaryFailure, MissingFileIsLoggedUnderMainModule) {
    QTemporaryDir dir;
    test::RecordingMessageService messages;
    test::FixedClock clock;
    ErrorLog log(dir.path(), &messages, clock, QStringLiteral("1404/01/01"), QStringLiteral("1.0"));
    ConnectionFile connection(dir.path(), &log);

    EXPECT_FALSE(connection.LoadPrimary({}));
    EXPECT_EQ(connection.lastError().number, QStringLiteral("53"));
    QFile written(log.filePath());
    ASSERT_TRUE(written.open(QIODevice::ReadOnly));
    const QString record = QString::fromUtf8(written.readAll());
    EXPECT_TRUE(record.contains(QStringLiteral("\r\nRoutineName : LoadPrimary\r\n")));
    EXPECT_TRUE(record.contains(QStringLiteral("\r\nModule : MainModule  \r\n")));
    ASSERT_EQ(messages.count(), 1);
    EXPECT_EQ(messages.messages().first().style, MessageStyle::Critical);
}

TEST(LoadPrimaryFailure, AFailureAfterASuccessClearsTheString) {
    QTemporaryDir dir;
    const QString path = QDir(dir.path()).filePath(QStringLiteral("Provider.txt"));
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(QByteArray(STANDARD).replace('|', "\r\n") + "\r\n");
    file.close();
    ConnectionFile connection(dir.path(), nullptr);
    ASSERT_TRUE(connection.LoadPrimary({}));
    EXPECT_EQ(connection.fileCatalog(), QStringLiteral("Shop1403"));

    ASSERT_TRUE(QFile::remove(path));
    EXPECT_FALSE(connection.LoadPrimary({}));
    EXPECT_TRUE(connection.connectionString().isEmpty());
}

}  // namespace
}  // namespace sandogh
