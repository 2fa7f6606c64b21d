// Code levels: numbering per family, saving, deleting only without values, digit counts,
// and the barcode proposed from the newest article.

#include "ShopFixture.h"
#include "data/repositories/CodeLevelsRepository.h"
#include "data/repositories/ListMessages.h"
#include "support/QtPrinters.h"

namespace sandogh {
namespace {

using Family = CodeLevelsRepository::Family;
using Level = CodeLevelsRepository::Level;

class CodeLevelsRepositoryTest : public test::ShopFixture {
protected:
    CodeLevelsRepository repo() { return CodeLevelsRepository(db()); }

    Level add(Family family, const QString& name, int digits, int typeNo = 0) {
        Level level;
        level.typeNo = typeNo;
        level.name = name;
        level.nameEnglish = name + QStringLiteral(" en");
        level.digitQty = digits;
        const CheckResult r = repo().save(level, family);
        EXPECT_TRUE(r.ok);
        EXPECT_EQ(r.message, listmessages::kSaved);
        EXPECT_EQ(r.title, listmessages::kNoticeTitle);
        return level;
    }
};

TEST_P(CodeLevelsRepositoryTest, AnEmptyFamilyStartsAtItsFirstNumberAndOrderOne) {
    CodeLevelsRepository r = repo();
    EXPECT_EQ(r.nextTypeNo(Family::Goods), 501);
    EXPECT_EQ(r.nextTypeNo(Family::Accounts), 201);
    EXPECT_EQ(r.nextParameterLevel(Family::Goods), 1);
    EXPECT_EQ(r.nextParameterLevel(Family::Accounts), 1);
    const Level goods = add(Family::Goods, QStringLiteral("گروه"), 2);
    EXPECT_EQ(goods.typeNo, 501);
    EXPECT_EQ(goods.parameterLevel, 1);
    EXPECT_GT(goods.counter, 0);
    // The goods family does not move the accounts' numbers, nor the other way round.
    EXPECT_EQ(r.nextTypeNo(Family::Accounts), 201);
    const Level account = add(Family::Accounts, QStringLiteral("کل"), 1);
    EXPECT_EQ(account.typeNo, 201);
    EXPECT_EQ(account.parameterLevel, 1);
    EXPECT_EQ(r.nextTypeNo(Family::Goods), 502);
    EXPECT_EQ(r.nextParameterLevel(Family::Goods), 2);
    const Level second = add(Family::Goods, QStringLiteral("برند"), 3);
    EXPECT_EQ(second.typeNo, 502);
    EXPECT_EQ(second.parameterLevel, 2);
}

TEST_P(CodeLevelsRepositoryTest, SavingNeedsANameAndAFreeNumberAndEditsInPlace) {
    Level level;
    level.name = QStringLiteral("  ");
    const CheckResult refused = repo().save(level, Family::Goods);
    EXPECT_FALSE(refused.ok);
    EXPECT_EQ(refused.message, listmessages::kEnterName);
    EXPECT_EQ(count(QStringLiteral("SELECT COUNT(*) FROM Code_Parameters")), 0);

    Level saved = add(Family::Goods, QStringLiteral("Group"), 2);
    saved.name = QStringLiteral("O'Group");
    saved.digitQty = 4;
    saved.parameterLevel = 3;
    ASSERT_TRUE(repo().save(saved, Family::Accounts).ok);  // the family plays no part
    const QList<Level> levels = repo().list(Family::Goods);
    ASSERT_EQ(levels.size(), 1);
    EXPECT_EQ(levels.first().name, QStringLiteral("O'Group"));
    EXPECT_EQ(levels.first().digitQty, 4);
    EXPECT_EQ(levels.first().parameterLevel, 3);
    EXPECT_EQ(levels.first().typeNo, 501);
    // A new level under a number already taken is refused by the key.
    Level twin;
    twin.typeNo = 501;
    twin.name = QStringLiteral("Twin");
    EXPECT_FALSE(repo().save(twin, Family::Goods).ok);
    EXPECT_EQ(count(QStringLiteral("SELECT COUNT(*) FROM Code_Parameters")), 1);
}

TEST_P(CodeLevelsRepositoryTest, ALevelWithValuesCannotBeDeletedUntilTheyAreGone) {
    const Level level = add(Family::Goods, QStringLiteral("Group"), 1);
    Session s = session();
    ASSERT_TRUE(s.exec(QStringLiteral("INSERT INTO Types (Counter, TypeNo, Code, Name) "
                                      "VALUES (1, :t, :code, :name)"),
                       {{QStringLiteral(":t"), level.typeNo},
                        {QStringLiteral(":code"), QStringLiteral("1")},
                        {QStringLiteral(":name"), QStringLiteral("Dairy")}}));
    CodeLevelsRepository r = repo();
    const CheckResult refused = r.canDelete(level.typeNo);
    EXPECT_FALSE(refused.ok);
    EXPECT_EQ(refused.message,
              listmessages::kCannotDelete + QLatin1Char('\n') + listmessages::kDefinitionsMade);
    ASSERT_TRUE(s.exec(QStringLiteral("DELETE FROM Types WHERE Counter = 1")));
    const CheckResult allowed = r.canDelete(level.typeNo);
    EXPECT_TRUE(allowed.ok);
    EXPECT_EQ(allowed.message, listmessages::kDeleteQuestion);
    ASSERT_TRUE(r.remove(level.counter));
    EXPECT_TRUE(r.list(Family::Goods).isEmpty());
    EXPECT_EQ(r.nextTypeNo(Family::Goods), 501);
}

TEST_P(CodeLevelsRepositoryTest, DigitCountsPerLevelAllGoodsLevelsAndBelowALevel) {
    add(Family::Accounts, QStringLiteral("a1"), 1, 201);
    add(Family::Accounts, QStringLiteral("a2"), 2, 202);
    add(Family::Goods, QStringLiteral("g1"), 2, 501);
    add(Family::Goods, QStringLiteral("g2"), 3, 502);
    add(Family::Goods, QStringLiteral("g9"), 4, 509);
    CodeLevelsRepository r = repo();
    EXPECT_EQ(r.digitCount(502), 3);
    EXPECT_EQ(r.digitCount(505), 0);
    const std::array<int, 9> expected{2, 3, 0, 0, 0, 0, 0, 0, 4};
    EXPECT_EQ(r.goodsDigitCounts(), expected);
    struct Case {
        int typeNo;
        int below;
    };
    // Every level numbered below counts, the account levels under a goods level too.
    for (const Case& c : {Case{201, 0}, Case{202, 1}, Case{203, 3}, Case{501, 3}, Case{502, 5},
                          Case{509, 8}, Case{510, 12}}) {
        EXPECT_EQ(r.digitsBelow(c.typeNo), c.below) << c.typeNo;
    }
}

TEST_P(CodeLevelsRepositoryTest, AFamilyTakesNineOrTenLevelsAndNoMore) {
    struct Case {
        Family family;
        int levels;
        int last;
    };
    const Case cases[] = {
        {Family::Goods, CodeLevelsRepository::kGoodsLevels, 509},
        {Family::Accounts, CodeLevelsRepository::kAccountLevels, 210},
    };
    CodeLevelsRepository r = repo();
    for (const Case& c : cases) {
        for (int i = 0; i < c.levels; ++i) {
            add(c.family, QStringLiteral("سطح %1").arg(i + 1), 1);
        }
        EXPECT_EQ(r.nextTypeNo(c.family), c.last + 1);
        Level extra;
        extra.name = QStringLiteral("سطح اضافه");
        const CheckResult refused = r.save(extra, c.family);
        EXPECT_FALSE(refused.ok);
        EXPECT_EQ(refused.message, listmessages::kAllLevelsDefined);
        // A number typed past the family's last is refused too; nothing was written.
        extra.typeNo = c.last + 1;
        EXPECT_FALSE(r.save(extra, c.family).ok);
        EXPECT_EQ(r.list(c.family).size(), c.levels);
        // Editing a level of a full family still works.
        Level first = r.list(c.family).first();
        first.name = QStringLiteral("گروه اصلي");
        EXPECT_TRUE(r.save(first, c.family).ok);
    }
}

SANDOGH_INSTANTIATE_BACKENDS(CodeLevelsRepositoryTest);

}  // namespace
}  // namespace sandogh
