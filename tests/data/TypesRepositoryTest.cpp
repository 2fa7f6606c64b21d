// The parameter table: lists and their search, the checks and saves of a value with its
// links, deleting with the use count, the picker, party codes and single-valued settings.

#include "ShopFixture.h"
#include "data/Database.h"
#include "data/procedures/TypesProcedures.h"
#include "data/repositories/ListMessages.h"
#include "data/repositories/TypesRepository.h"
#include "support/QtPrinters.h"

namespace sandogh {
namespace {

using Column = TypesRepository::SearchColumn;
using Value = TypesRepository::Value;

class TypesRepositoryTest : public test::ShopFixture {
protected:
    TypesRepository repo() { return TypesRepository(db(), &messages()); }

    // Saves a value that must pass; its counter.
    int add(int typeNo, const QString& code, const QString& name, const QList<int>& parents = {},
            const QString& nameEng = {}, const QString& note = {}) {
        Value v{0, typeNo, code, name, nameEng, note};
        const CheckResult r = repo().save(v, parents);
        EXPECT_TRUE(r.ok) << r.message.toStdString();
        return v.counter;
    }

    void addLevel(int typeNo, int digits) {
        Session s = session();
        ASSERT_TRUE(s.exec(QStringLiteral("INSERT INTO Code_Parameters (TypeNo, Name, DigitQty, "
                                          "ParameterLevel) VALUES (:t, :n, :d, :l)"),
                           {{QStringLiteral(":t"), typeNo},
                            {QStringLiteral(":n"), QStringLiteral("L%1").arg(typeNo)},
                            {QStringLiteral(":d"), digits},
                            {QStringLiteral(":l"), typeNo % 100}}));
    }

    static QStringList codesOf(const QList<Value>& values) {
        QStringList codes;
        for (const Value& v : values) {
            codes << v.code;
        }
        return codes;
    }
};

TEST_P(TypesRepositoryTest, ListIsOrderedByCodeAndSearchedBySubstring) {
    add(1011, QStringLiteral("30"), QStringLiteral("نانوا"), {}, QStringLiteral("Baker"));
    add(1011, QStringLiteral("10"), QStringLiteral("معلم"), {}, QStringLiteral("Teacher"),
        QStringLiteral("school"));
    add(1011, QStringLiteral("20"), QStringLiteral("راننده"), {}, QStringLiteral("Driver"));
    // Stored with Persian yeh and a zero-width non-joiner; searched as people type it.
    add(1011, QStringLiteral("45"),
        QStringLiteral(u"\u0686\u0627\u06CC\u200C\u062E\u0627\u0646\u0647"), {},
        QStringLiteral("Tea House"));
    add(1012, QStringLiteral("11"), QStringLiteral("other list"));
    TypesRepository r = repo();
    EXPECT_EQ(codesOf(r.list(1011)), (QStringList{"10", "20", "30", "45"}));
    struct Case {
        Column column;
        const char* text;
        QStringList codes;
    };
    const Case cases[] = {
        {Column::Code, "0", {"10", "20", "30"}},
        {Column::Code, "2", {"20"}},
        {Column::Name, "نانو", {"30"}},
        {Column::NameEng, "iv", {"20"}},
        {Column::Note, "hoo", {"10"}},
        {Column::Name, "", {"10", "20", "30", "45"}},
        {Column::Name, "none", {}},
        {Column::Code, "' OR '1'='1", {}},
        {Column::Name, "\u0686\u0627\u064A", {"45"}},                          // Arabic yeh typed
        {Column::Name, "\u0686\u0627\u06CC\u062E\u0627\u0646\u0647", {"45"}},  // no non-joiner
        {Column::Code, "\u06F4", {"45"}},                                      // Persian four
        {Column::Code, "\u0664\u0665", {"45"}},                                // Arabic-Indic 45
        {Column::NameEng, "HOUSE", {"45"}},
        {Column::Code, "%", {}},
        {Column::Code, "_0", {}},
    };
    for (const Case& c : cases) {
        QStringList found = codesOf(r.list(1011, c.column, QString::fromUtf8(c.text)));
        QStringList expected = c.codes;
        found.sort();
        expected.sort();
        EXPECT_EQ(found, expected) << c.text;
    }
    const QList<Value> values = r.list(1011);
    EXPECT_EQ(values.first().name, QStringLiteral("معلم"));
    EXPECT_EQ(values.first().note, QStringLiteral("school"));
    EXPECT_EQ(values.first().typeNo, 1011);
}

TEST_P(TypesRepositoryTest, SaveChecksNameCodeDigitsAndRepeatsInOrder) {
    using namespace listmessages;
    addLevel(502, 3);
    add(502, QStringLiteral("001"), QStringLiteral("Dairy"));
    struct Case {
        int typeNo;
        const char* code;
        const char* name;
        QString message;
        QString title;
    };
    const Case cases[] = {
        {502, "001", "", kEnterName, kNoticeTitle},
        {502, "001", "   ", kEnterName, kNoticeTitle},
        {502, "", "x", kEnterCode, kNoticeTitle},
        {502, "01", "x", kCodeMustBe + QStringLiteral("3") + kDigitsOrLetters, warningTitle()},
        {502, "0001", "x", kCodeMustBe + QStringLiteral("3") + kDigitsOrLetters, warningTitle()},
        {502, "001", "x", kRepeatedCode, warningTitle()},
        // No digit count for a list that is not a code level, nor for a level without one.
        {61, "0001", "x", {}, warningTitle()},
        {503, "1", "x", {}, warningTitle()},
        {502, "002", "x", {}, warningTitle()},
        {502, "ab3", "x", {}, warningTitle()},
    };
    for (const Case& c : cases) {
        const Value v{0, c.typeNo, QString::fromUtf8(c.code), QString::fromUtf8(c.name), {}, {}};
        const CheckResult r = repo().check(v);
        EXPECT_EQ(r.ok, c.message.isEmpty()) << c.code << " " << c.name;
        EXPECT_EQ(r.message, c.message) << c.code;
        EXPECT_EQ(r.title, c.title) << c.code;
    }
    // A refused save writes nothing.
    Value refused{0, 502, QStringLiteral("01"), QStringLiteral("short code"), {}, {}};
    EXPECT_FALSE(repo().save(refused, {}).ok);
    EXPECT_EQ(refused.counter, 0);
    EXPECT_EQ(count(QStringLiteral("SELECT COUNT(*) FROM Types")), 1);
}

TEST_P(TypesRepositoryTest, EditingAValueKeepsItsCodeAndReplacesItsLinks) {
    const int parentA = add(501, QStringLiteral("1"), QStringLiteral("A"));
    const int parentB = add(501, QStringLiteral("2"), QStringLiteral("B"));
    const int child = add(502, QStringLiteral("10"), QStringLiteral("child"), {parentA});
    add(502, QStringLiteral("11"), QStringLiteral("other"));
    Value edited{child,
                 502,
                 QStringLiteral("10"),
                 QStringLiteral("renamed"),
                 QStringLiteral("en"),
                 QStringLiteral("n")};
    const CheckResult r = repo().save(edited, {parentB});
    ASSERT_TRUE(r.ok) << r.message.toStdString();
    EXPECT_EQ(edited.counter, child);
    const auto row = [&] {
        Session s = session();
        return procedures::sp_Types_SelectRow(s, child);
    }();
    ASSERT_TRUE(row.has_value());
    EXPECT_EQ(row->name, QStringLiteral("renamed"));
    EXPECT_EQ(row->nameEng, QStringLiteral("en"));
    EXPECT_EQ(row->typeNo, 502);
    EXPECT_EQ(count(QStringLiteral("SELECT COUNT(*) FROM TypesLink WHERE Counter = :c"),
                    {{QStringLiteral(":c"), child}}),
              1);
    EXPECT_EQ(count(QStringLiteral("SELECT Link FROM TypesLink WHERE Counter = :c"),
                    {{QStringLiteral(":c"), child}}),
              parentB);
    // Taking another value's code is still a repeat.
    edited.code = QStringLiteral("11");
    EXPECT_EQ(repo().save(edited, {}).message, listmessages::kRepeatedCode);
}

TEST_P(TypesRepositoryTest, DeleteIsRefusedWhileGoodsOrAccountsUseTheValueAndForLevelNine) {
    using namespace listmessages;
    const int used = add(503, QStringLiteral("1"), QStringLiteral("used"));
    const int unused = add(503, QStringLiteral("2"), QStringLiteral("unused"));
    const int account = add(202, QStringLiteral("1"), QStringLiteral("account"));
    const int child = add(504, QStringLiteral("1"), QStringLiteral("child"), {unused});
    Session s = session();
    ASSERT_TRUE(s.exec(QStringLiteral("INSERT INTO Goods (EAN_Code, LevelID3) VALUES ('1', :c)"),
                       {{QStringLiteral(":c"), used}}));
    ASSERT_TRUE(s.exec(QStringLiteral("INSERT INTO Acc_Code (LevelID2) VALUES (:c)"),
                       {{QStringLiteral(":c"), account}}));
    TypesRepository r = repo();
    EXPECT_EQ(r.useCount(503, used), 1);
    EXPECT_EQ(r.useCount(503, unused), 0);
    EXPECT_EQ(r.useCount(202, account), 1);
    EXPECT_EQ(r.useCount(61, 1), 0);

    const CheckResult refused = r.canDelete(503, used);
    EXPECT_FALSE(refused.ok);
    EXPECT_EQ(refused.message, kCannotDelete + QLatin1Char('\n') + kTiedToGoods);
    EXPECT_FALSE(r.canDelete(202, account).ok);

    const CheckResult allowed = r.canDelete(503, unused);
    ASSERT_TRUE(allowed.ok);
    EXPECT_EQ(allowed.message, kDeleteQuestion);
    // The value goes with its links, and so do the links of the values under it.
    ASSERT_TRUE(s.exec(QStringLiteral("INSERT INTO TypesLink (Counter, Link) VALUES (:c, 1)"),
                       {{QStringLiteral(":c"), unused}}));
    ASSERT_TRUE(r.remove(unused));
    EXPECT_EQ(count(QStringLiteral("SELECT COUNT(*) FROM Types WHERE Counter = :c"),
                    {{QStringLiteral(":c"), unused}}),
              0);
    EXPECT_EQ(count(QStringLiteral("SELECT COUNT(*) FROM TypesLink WHERE Counter = :c"),
                    {{QStringLiteral(":c"), unused}}),
              0);
    EXPECT_EQ(count(QStringLiteral("SELECT COUNT(*) FROM Types WHERE Counter = :c"),
                    {{QStringLiteral(":c"), child}}),
              1);
    EXPECT_EQ(messages().count(), 0);

    // A level-9 value is never deleted through the list, used or not; the person sees the
    // connection message first, as before.
    const int level9 = add(509, QStringLiteral("1"), QStringLiteral("unused level 9 value"));
    const CheckResult level9Refused = r.canDelete(509, level9);
    EXPECT_FALSE(level9Refused.ok);
    EXPECT_EQ(level9Refused.message, refused.message);
    ASSERT_EQ(messages().count(), 1);
    EXPECT_EQ(messages().messages().first().text, Database::connectionFailureMessage());
}

TEST_P(TypesRepositoryTest, CountersAndPartyCodesStartAtOneAndShareOneRunWithoutDashes) {
    TypesRepository empty = repo();
    EXPECT_EQ(empty.newCounter(61), 1);
    EXPECT_EQ(empty.newPartyCode(), 1);
    EXPECT_TRUE(empty.list(61).isEmpty());
    EXPECT_TRUE(empty.picker(501, 7).isEmpty());
    EXPECT_TRUE(empty.units().isEmpty());
    EXPECT_EQ(messages().count(), 0);
    Session s = session();
    struct Party {
        int typeNo;
        const char* code;
    };
    const Party parties[] = {{10, "12-3"}, {11, "124"}, {10, ""}, {61, "999"}};
    int counter = 100;
    for (const Party& p : parties) {
        ASSERT_TRUE(s.exec(QStringLiteral("INSERT INTO Types (Counter, TypeNo, Code) "
                                          "VALUES (:counter, :typeNo, :code)"),
                           {{QStringLiteral(":counter"), ++counter},
                            {QStringLiteral(":typeNo"), p.typeNo},
                            {QStringLiteral(":code"), QString::fromLatin1(p.code)}}));
    }
    EXPECT_EQ(repo().newPartyCode(), 125);
    ASSERT_TRUE(
        s.exec(QStringLiteral("INSERT INTO Types (Counter, TypeNo, Code) VALUES "
                              "(200, 10, '9-9-9')")));
    EXPECT_EQ(repo().newPartyCode(), 1000);
    EXPECT_EQ(repo().newCounter(10), 201);
}

SANDOGH_INSTANTIATE_BACKENDS(TypesRepositoryTest);

}  // namespace
}  // namespace sandogh
