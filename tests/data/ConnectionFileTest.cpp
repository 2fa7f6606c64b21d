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
    QStringList lines;  // written as they stand, each followed by lineEnd
    const char* lineEnd;
    QString year;  // "Year"/"Year" of the settings
    bool ok;
    QString expected;  // the connection string when ok
};

void PrintTo(const LoadCase& c, std::ostream* os) {
    *os << c.name;
}

const QStringList kStandard = {
    QStringLiteral("Provider=SQLOLEDB.1;"),
    QStringLiteral("Persist Security Info=False;"),
    QStringLiteral("User ID=sa;"),
    QStringLiteral("Password=secret;"),
    QStringLiteral("Initial Catalog=Shop1403;"),
    QStringLiteral("Data Source=SERVER1;"),
};
const QString kStandardJoined = kStandard.join(QString());

QString replaced(QString s, const QString& from, const QString& to) {
    return s.replace(from, to);
}

std::vector<LoadCase> loadCases() {
    return {
        {"NoFiscalYearKeepsTheFileCatalog", kStandard, "\r\n", {}, true, kStandardJoined},
        {"FiscalYearReplacesTheCatalog", kStandard, "\r\n", QStringLiteral("Shop1404"), true,
         replaced(kStandardJoined, QStringLiteral("Shop1403"), QStringLiteral("Shop1404"))},
        {"SameNameInAnotherCaseChangesNothing", kStandard, "\r\n", QStringLiteral("SHOP1403"), true,
         kStandardJoined},
        {"FiscalYearIsTrimmed", kStandard, "\n", QStringLiteral("  Shop1404 "), true,
         replaced(kStandardJoined, QStringLiteral("Shop1403"), QStringLiteral("Shop1404"))},
        {"CatalogInsideTheServerNameIsReplacedToo",
         {QStringLiteral("Provider=SQLOLEDB.1;"), QStringLiteral("Data Source=shop1403-srv\\SQL;"),
          QStringLiteral("Persist Security Info=False;"), QStringLiteral("User ID=sa;"),
          QStringLiteral("Password=x;"), QStringLiteral("Initial Catalog=Shop1403;")},
         "\r\n",
         QStringLiteral("Y1404"),
         true,
         QStringLiteral("Provider=SQLOLEDB.1;Data Source=Y1404-srv\\SQL;Persist Security "
                        "Info=False;User ID=sa;Password=x;Initial Catalog=Y1404;")},
        {"LinesWithoutSemicolonsAreJoinedAsTheyAre",
         {QStringLiteral("Provider=SQLite"), QStringLiteral("Data Source=Data"),
          QStringLiteral("Initial Catalog=Shop"), QStringLiteral("User ID=sa"),
          QStringLiteral("Password=pw"), QStringLiteral("Persist Security Info=False")},
         "\n",
         {},
         true,
         QStringLiteral("Provider=SQLiteData Source=DataInitial Catalog=ShopUser ID=sa"
                        "Password=pwPersist Security Info=False")},
        {"KindsAreFoundWithoutRegardToCase",
         {QStringLiteral("PROVIDER=SQLOLEDB.1;"), QStringLiteral("dATA sOURCE=srv;"),
          QStringLiteral("iNITIAL cATALOG=Shop1403;"), QStringLiteral("uSER id=sa;"),
          QStringLiteral("pASSWORD=p;"), QStringLiteral("Persist Security Info=False;")},
         "\r\n",
         QStringLiteral("Shop1404"),
         true,
         QStringLiteral("PROVIDER=SQLOLEDB.1;dATA sOURCE=srv;iNITIAL cATALOG=Shop1404;uSER id=sa;"
                        "pASSWORD=p;Persist Security Info=False;")},
        {"OnlySixLinesAreRead",
         kStandard + QStringList{QStringLiteral("Extra=1;")},
         "\r\n",
         {},
         true,
         kStandardJoined},
        {"EmptyCatalogIsNeverReplaced",
         {QStringLiteral("Provider=SQLite;"), QStringLiteral("Data Source=Data;"),
          QStringLiteral("Initial Catalog=;"), QStringLiteral("User ID=;"),
          QStringLiteral("Password=;"), QStringLiteral("Persist Security Info=False;")},
         "\n",
         QStringLiteral("Shop1404"),
         true,
         QStringLiteral("Provider=SQLite;Data Source=Data;Initial Catalog=;User ID=;Password=;"
                        "Persist Security Info=False;")},
        {"FiveLinesFail", kStandard.mid(0, 5), "\r\n", {}, false, {}},
        {"EmptyFileFails", {}, "\r\n", {}, false, {}},
        {"CatalogLineShorterThanItsKeyFails",
         {QStringLiteral("Provider=SQLite;"), QStringLiteral("Data Source=Data;"),
          QStringLiteral("Init=Shop;"), QStringLiteral("User ID=;"), QStringLiteral("Password=;"),
          QStringLiteral("Persist Security Info=False;")},
         "\n",
         {},
         false,
         {}},
        {"CatalogKeyWithoutAnyValueCharacterFails",
         {QStringLiteral("Provider=SQLite;"), QStringLiteral("Data Source=Data;"),
          QStringLiteral("Initial Catalog="), QStringLiteral("User ID=;"),
          QStringLiteral("Password=;"), QStringLiteral("Persist Security Info=False;")},
         "\n",
         {},
         false,
         {}},
        {"PasswordLineShorterThanItsKeyFails",
         {QStringLiteral("Provider=SQLite;"), QStringLiteral("Data Source=Data;"),
          QStringLiteral("Initial Catalog=Shop;"), QStringLiteral("User ID=;"),
          QStringLiteral("Pass;"), QStringLiteral("Persist Security Info=False;")},
         "\n",
         {},
         false,
         {}},
        {"UserLineShorterThanItsKeyFails",
         {QStringLiteral("Provider=SQLite;"), QStringLiteral("Data Source=Data;"),
          QStringLiteral("Initial Catalog=Shop;"), QStringLiteral("User=x;"),
          QStringLiteral("Password=;"), QStringLiteral("Persist Security Info=False;")},
         "\n",
         {},
         false,
         {}},
    };
}

class LoadPrimaryTest : public ::testing::TestWithParam<LoadCase> {};

TEST_P(LoadPrimaryTest, AssemblesTheConnectionString) {
    const LoadCase& c = GetParam();
    QTemporaryDir dir;
    ASSERT_TRUE(dir.isValid());
    QFile file(QDir(dir.path()).filePath(QStringLiteral("Provider.txt")));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    for (const QString& line : c.lines) {
        file.write(line.toUtf8() + c.lineEnd);
    }
    file.close();

    test::RecordingMessageService messages;
    test::FixedClock clock;
    ErrorLog log(dir.path(), &messages, clock, QStringLiteral("1404/01/01"), QStringLiteral("1.0"));
    ConnectionFile connection(dir.path(), &log);

    EXPECT_EQ(connection.LoadPrimary(c.year), c.ok);
    EXPECT_EQ(connection.connectionString(), c.ok ? c.expected : QString());
    EXPECT_EQ(messages.count(), c.ok ? 0 : 1);
    EXPECT_EQ(QFile::exists(log.filePath()), !c.ok);
}

INSTANTIATE_TEST_SUITE_P(Cases, LoadPrimaryTest, ::testing::ValuesIn(loadCases()),
                         [](const auto& p) { return std::string(p.param.name); });

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
    file.write(kStandard.join(QStringLiteral("\r\n")).toUtf8() + "\r\n");
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
