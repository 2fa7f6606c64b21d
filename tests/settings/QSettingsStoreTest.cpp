#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>
#include <QTemporaryDir>

#include "settings/QSettingsStore.h"

namespace sandogh {
namespace {

// The whole text of a file, or empty text when it cannot be read.
QString fileText(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

bool writeFile(const QString& path, const QByteArray& bytes) {
    QFile file(path);
    return file.open(QIODevice::WriteOnly | QIODevice::Truncate) &&
           file.write(bytes) == bytes.size();
}

class QSettingsStoreTest : public ::testing::Test {
protected:
    QString iniPath(const QString& name = QStringLiteral("Retail.ini")) const {
        return dir_.filePath(name);
    }

    QTemporaryDir dir_;
};

TEST_F(QSettingsStoreTest, SectionsAndKeysMatchWithoutRegardToCase) {
    QSettingsStore store(QStringLiteral("Retail"), iniPath());
    ASSERT_TRUE(store.write(QStringLiteral("ISActivePoolDisplay"), QStringLiteral("Enable"),
                            QStringLiteral("1")));
    // A second write in another spelling updates the one entry.
    ASSERT_TRUE(store.write(QStringLiteral("IsActivePoolDisplay"), QStringLiteral("ENABLE"),
                            QStringLiteral("0")));
    EXPECT_EQ(store.read(QStringLiteral("isactivepooldisplay"), QStringLiteral("enable")),
              QStringLiteral("0"));
    // A new key of the same section joins the section under its kept spelling.
    ASSERT_TRUE(store.write(QStringLiteral("isActivePoolDisplay"), QStringLiteral("Port"),
                            QStringLiteral("4")));

    const QString ini = fileText(iniPath());
    EXPECT_EQ(ini.count(QStringLiteral("enable="), Qt::CaseInsensitive), 1) << ini.toStdString();
    EXPECT_EQ(ini.count(QStringLiteral("[ISActivePoolDisplay]")), 1) << ini.toStdString();
    EXPECT_EQ(ini.count(QStringLiteral("activepooldisplay]"), Qt::CaseInsensitive), 1)
        << ini.toStdString();
}

TEST_F(QSettingsStoreTest, HandEditedFileWithTwoSpellingsIsMergedOnWrite) {
    ASSERT_TRUE(writeFile(iniPath(), "[PortNo]\nno=3\n\n[portno]\nNO=5\nNo2=6\n"));
    QSettingsStore store(QStringLiteral("Retail"), iniPath());
    // The exact spelling wins over the others while both are there.
    EXPECT_EQ(store.read(QStringLiteral("portno"), QStringLiteral("NO")), QStringLiteral("5"));
    EXPECT_EQ(store.read(QStringLiteral("PORTNO"), QStringLiteral("no2")), QStringLiteral("6"));

    ASSERT_TRUE(store.write(QStringLiteral("PortNo"), QStringLiteral("No"), QStringLiteral("7")));
    for (const char* section : {"PortNo", "portno", "PORTNO"}) {
        for (const char* key : {"No", "no", "NO"}) {
            EXPECT_EQ(store.read(QString::fromLatin1(section), QString::fromLatin1(key)),
                      QStringLiteral("7"))
                << section << '/' << key;
        }
    }
    const QString ini = fileText(iniPath());
    const QRegularExpression noLine(
        QStringLiteral("^no="),
        QRegularExpression::CaseInsensitiveOption | QRegularExpression::MultilineOption);
    EXPECT_EQ(ini.count(noLine), 1) << ini.toStdString();
}

TEST_F(QSettingsStoreTest, RemoveForgetsEverySpelling) {
    ASSERT_TRUE(
        writeFile(iniPath(), "[Scale]\nIsActiveTakin=1\nisactivetakin=2\nIsActiveSadr=1\n"));
    QSettingsStore store(QStringLiteral("Retail"), iniPath());
    ASSERT_TRUE(store.remove(QStringLiteral("SCALE"), QStringLiteral("IsActiveTAKIN")));
    EXPECT_EQ(store.read(QStringLiteral("Scale"), QStringLiteral("IsActiveTakin")), QString());
    EXPECT_EQ(store.read(QStringLiteral("Scale"), QStringLiteral("isactivetakin")), QString());
    EXPECT_EQ(store.read(QStringLiteral("Scale"), QStringLiteral("IsActiveSadr")),
              QStringLiteral("1"));
}

// Texts that an INI file could take apart: separators, quotes, comment marks, the platform
// store's own escapes, blanks at the ends, line breaks and Persian.
const char* const awkwardTexts[] = {
    "a,b,c",
    "x=y",
    "a;b",
    "\"quoted\"",
    "'single'",
    "  blanks at both ends  ",
    "@Variant(0)",
    "@at",
    "back\\slash",
    "[not a section]",
    "#not a comment",
    "tab\tinside",
    "line\r\nbreak",
    "%41%42",
    "مبلغ دريافت شده کمتر از قيمت کل بوده و فاکتور جاري بدهکار خواهد شد.",
    "تعدادي از کالاهاي موجود در فاکتور مورد نظر در سيستم موجود نيستند,لطفا ابتدا برنامه انتقال "
    "کالا را اجرا نماييد.",
    "مقدار اين فيلد نمي تواند خالي باشد\r\nلطفآ مقدار را مشخص نمائيد",
    "ش فاکتور: 1404/01/05"};

TEST_F(QSettingsStoreTest, AwkwardTextSurvivesTheFileAfterReopening) {
    const QString written = iniPath();
    {
        QSettingsStore store(QStringLiteral("Retail"), written);
        int n = 0;
        for (const char* text : awkwardTexts) {
            ASSERT_TRUE(store.write(QStringLiteral("Awkward"), QStringLiteral("K%1").arg(n++),
                                    QString::fromUtf8(text)));
        }
    }
    // A copy under another name is certainly read from disk, not from memory.
    const QString copy = iniPath(QStringLiteral("Copy.ini"));
    ASSERT_TRUE(QFile::copy(written, copy));
    QSettingsStore reopened(QStringLiteral("Retail"), copy);
    int n = 0;
    for (const char* text : awkwardTexts) {
        EXPECT_EQ(reopened.read(QStringLiteral("awkward"), QStringLiteral("k%1").arg(n++)),
                  QString::fromUtf8(text))
            << text;
    }
}

TEST_F(QSettingsStoreTest, WriteFailsWhenTheFileCannotBeMade) {
    // A folder in the path that is a plain file stops even a privileged user.
    ASSERT_TRUE(writeFile(iniPath(QStringLiteral("blocker")), "not a folder"));
    QSettingsStore store(QStringLiteral("Retail"), iniPath(QStringLiteral("blocker/Retail.ini")));
    EXPECT_FALSE(store.write(QStringLiteral("PortNo"), QStringLiteral("No"), QStringLiteral("1")));
}

TEST_F(QSettingsStoreTest, BatchReachesTheFileWhenTheOutermostBatchEnds) {
    QSettingsStore store(QStringLiteral("Retail"), iniPath());
    const QString copy = iniPath(QStringLiteral("Copy.ini"));
    store.beginBatch();
    store.beginBatch();
    for (int n = 0; n < 50; ++n) {
        ASSERT_TRUE(
            store.write(QStringLiteral("Batch"), QStringLiteral("K%1").arg(n), QString::number(n)));
    }
    EXPECT_FALSE(
        store.write(QStringLiteral("Bad/Section"), QStringLiteral("K"), QStringLiteral("1")));
    // Read back at once, though nothing is on disk yet.
    EXPECT_EQ(store.read(QStringLiteral("batch"), QStringLiteral("k49")), QStringLiteral("49"));
    EXPECT_FALSE(QFileInfo::exists(iniPath()));
    ASSERT_TRUE(store.endBatch());
    EXPECT_FALSE(QFileInfo::exists(iniPath())) << "an inner batch ended";
    ASSERT_TRUE(store.endBatch());
    ASSERT_TRUE(QFile::copy(iniPath(), copy));

    QSettingsStore reopened(QStringLiteral("Retail"), copy);
    for (int n = 0; n < 50; ++n) {
        EXPECT_EQ(reopened.read(QStringLiteral("Batch"), QStringLiteral("K%1").arg(n)),
                  QString::number(n));
    }
    // Unbalanced ends do no harm and later writes are kept at once again.
    EXPECT_TRUE(store.endBatch());
    ASSERT_TRUE(store.write(QStringLiteral("Batch"), QStringLiteral("After"), QStringLiteral("1")));
    EXPECT_TRUE(fileText(iniPath()).contains(QStringLiteral("After=1")));
}

}  // namespace
}  // namespace sandogh
