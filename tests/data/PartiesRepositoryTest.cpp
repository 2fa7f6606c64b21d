#include <gtest/gtest.h>

#include "data/ShopFixture.h"
#include "data/repositories/CustomerGroupRepository.h"
#include "data/repositories/PartiesRepository.h"
#include "data/repositories/PartyMessages.h"

namespace sandogh {
namespace {

class PartiesRepositoryTest : public test::ShopBackendTest {
protected:
    static Party person(const QString& code, const QString& name) {
        Party p;
        p.code = code;
        p.name = name;
        return p;
    }
    void addParty(int counter, int typeNo, const QString& code) {
        ASSERT_TRUE(exec(QStringLiteral("INSERT INTO Types (Counter, TypeNo, Code, Name) VALUES "
                                        "(:c, :t, :code, 'x')"),
                         {{QStringLiteral(":c"), counter},
                          {QStringLiteral(":t"), typeNo},
                          {QStringLiteral(":code"), code}}));
    }
};

TEST_P(PartiesRepositoryTest, APartyIsSavedWithEveryFieldAsTyped) {
    ASSERT_TRUE(
        exec(QStringLiteral("INSERT INTO tblCustomerGroup (Code, Name) VALUES (3, 'VIP')")));
    PartiesRepository parties(db());
    Party p = person(parties.newCode(), QStringLiteral("Ali'); DELETE FROM Types; --"));
    p.family = QStringLiteral("رضایی");
    p.telephone = QStringLiteral("021-555");
    p.mobile = QStringLiteral("0912");
    p.email = QStringLiteral(" a@b.ir ");
    p.address = QStringLiteral("Tehran, 'Vali-Asr'");
    p.birthday = QStringLiteral("1360/12/29");
    p.customerGroup = 3;
    p.accountingGroupId = 12;
    p.credit = 500000;
    const CheckResult saved = parties.save(p);
    ASSERT_TRUE(saved.ok) << saved.message.toStdString();
    ASSERT_GT(p.counter, 0);

    const auto back = parties.find(p.counter);
    ASSERT_TRUE(back.has_value());
    EXPECT_EQ(back->typeNo, Party::kPerson);
    EXPECT_EQ(back->code, QStringLiteral("1"));
    EXPECT_EQ(back->name, p.name);
    EXPECT_EQ(back->family, p.family);
    EXPECT_EQ(back->telephone, p.telephone);
    EXPECT_EQ(back->mobile, p.mobile);
    EXPECT_EQ(back->email, QStringLiteral("a@b.ir"));
    EXPECT_EQ(back->address, p.address);
    EXPECT_EQ(back->birthday, QStringLiteral("1360/12/29"));
    EXPECT_EQ(back->customerGroup, 3);
    EXPECT_EQ(back->groupName, QStringLiteral("VIP"));
    EXPECT_EQ(back->accountingGroupId, 12);
    EXPECT_EQ(back->credit, 500000.0);
    EXPECT_TRUE(back->active);
    EXPECT_EQ(parties.newCode(), QStringLiteral("2"));

    Party edited = *back;
    edited.family = QStringLiteral("Karimi");
    edited.active = false;
    ASSERT_TRUE(parties.save(edited).ok);
    EXPECT_EQ(parties.find(p.counter)->family, QStringLiteral("Karimi"));
    EXPECT_EQ(parties.list(Party::kPerson, PartiesRepository::SearchColumn::None, {}, false).size(),
              0);
    EXPECT_EQ(parties.list(Party::kPerson).size(), 1);
    EXPECT_EQ(parties.list(Party::kCompany).size(), 0);
}

TEST_P(PartiesRepositoryTest, BadInputIsRefusedWithItsMessage) {
    addParty(50, Party::kCompany, QStringLiteral("12-3"));
    PartiesRepository parties(db());
    struct Case {
        const char* what;
        Party party;
        QString message;
    };
    Party badDay = person(QStringLiteral("9"), QStringLiteral("A"));
    badDay.birthday = QStringLiteral("1404/12/30");  // 1404 is no leap year
    Party negative = person(QStringLiteral("9"), QStringLiteral("A"));
    negative.credit = -1;
    const Case cases[] = {
        {"empty name", person(QStringLiteral("9"), QStringLiteral(" ")), listmessages::kEnterName},
        {"empty code", person(QStringLiteral(" "), QStringLiteral("A")), partymessages::kEnterCode},
        {"letters in the code", person(QStringLiteral("12a"), QStringLiteral("A")),
         partymessages::kCodeDigitsOnly},
        {"a dash at the end", person(QStringLiteral("12-"), QStringLiteral("A")),
         partymessages::kCodeDigitsOnly},
        {"the company's code without its dash", person(QStringLiteral("123"), QStringLiteral("A")),
         listmessages::kRepeatedCode},
        {"the company's code", person(QStringLiteral("12-3"), QStringLiteral("A")),
         listmessages::kRepeatedCode},
        {"no such day", badDay, partymessages::kBadBirthday},
        {"negative credit", negative, partymessages::kBadCredit},
    };
    for (const Case& c : cases) {
        Party p = c.party;
        const CheckResult result = parties.save(p);
        EXPECT_FALSE(result.ok) << c.what;
        EXPECT_EQ(result.message, c.message) << c.what;
        EXPECT_EQ(p.counter, 0) << c.what;
    }
    EXPECT_EQ(rows(QStringLiteral("Types")), 1);
    // Its own code does not count against an edited party.
    Party company = *parties.find(50);
    company.name = QStringLiteral("Renamed");
    EXPECT_TRUE(parties.save(company).ok);
}

TEST_P(PartiesRepositoryTest, APartyNamedByADocumentStaysAndCanBeTakenOutOfUse) {
    PartiesRepository parties(db());
    Party used = person(QStringLiteral("1"), QStringLiteral("Used"));
    Party unused = person(QStringLiteral("2"), QStringLiteral("Unused"));
    ASSERT_TRUE(parties.save(used).ok);
    ASSERT_TRUE(parties.save(unused).ok);
    ASSERT_TRUE(exec(QStringLiteral("INSERT INTO Whs_QTYDocH (Code, DocNo, TransType, CompanyID) "
                                    "VALUES (1, '1', 2, :c)"),
                     {{QStringLiteral(":c"), used.counter}}));

    EXPECT_EQ(parties.canDelete(used.counter).message, partymessages::partyInUseRefusal());
    EXPECT_FALSE(parties.remove(used.counter).ok);
    EXPECT_TRUE(parties.setActive(used.counter, false));
    EXPECT_FALSE(parties.find(used.counter)->active);

    const CheckResult allowed = parties.canDelete(unused.counter);
    EXPECT_TRUE(allowed.ok);
    EXPECT_EQ(allowed.message, listmessages::kDeleteQuestion);
    EXPECT_TRUE(parties.remove(unused.counter).ok);
    EXPECT_FALSE(parties.find(unused.counter).has_value());
    EXPECT_TRUE(parties.find(used.counter).has_value());
}

TEST_P(PartiesRepositoryTest, CustomerGroupsAreNumberedAndKeptWhileCustomersHaveThem) {
    CustomerGroupRepository groups(db());
    EXPECT_EQ(groups.nextCode(), 1);
    CustomerGroup g;
    g.name = QStringLiteral("Gold 'A'");
    g.color = 0xffcc00;
    g.discountPercent = 12.5;
    g.buyFactor = 1.5;
    g.amountRebate = 20000;
    ASSERT_TRUE(groups.save(g).ok);
    EXPECT_EQ(g.code, 1);
    EXPECT_EQ(groups.nextCode(), 2);
    const auto back = groups.find(1);
    ASSERT_TRUE(back.has_value());
    EXPECT_EQ(back->name, g.name);
    EXPECT_EQ(back->color, 0xffcc00);
    EXPECT_EQ(back->discountPercent, 12.5);
    EXPECT_EQ(back->buyFactor, 1.5);
    EXPECT_EQ(back->amountRebate, 20000.0);

    CustomerGroup bad;
    bad.name = QStringLiteral("Too much");
    bad.discountPercent = 101;
    EXPECT_EQ(groups.save(bad).message, partymessages::kBadDiscountPercent);
    bad.name.clear();
    bad.discountPercent = 1;
    EXPECT_EQ(groups.save(bad).message, listmessages::kEnterName);
    EXPECT_EQ(rows(QStringLiteral("tblCustomerGroup")), 1);

    PartiesRepository parties(db());
    Party member = person(QStringLiteral("1"), QStringLiteral("Member"));
    member.customerGroup = 1;
    ASSERT_TRUE(parties.save(member).ok);
    EXPECT_EQ(groups.memberCount(1), 1);
    EXPECT_EQ(groups.remove(1).message, partymessages::groupInUseRefusal());
    member.customerGroup = 0;
    ASSERT_TRUE(parties.save(member).ok);
    EXPECT_TRUE(groups.canDelete(1).ok);
    EXPECT_TRUE(groups.remove(1).ok);
    EXPECT_EQ(rows(QStringLiteral("tblCustomerGroup")), 0);
}

TEST_P(PartiesRepositoryTest, ListSearchesEachColumnAsPeopleTypeIt) {
    PartiesRepository parties(db());
    // Stored as older data has it: Arabic kaf and yeh, a non-joiner, Persian digits.
    Party arabic = person(QStringLiteral("1"), QStringLiteral(u"\u0643\u0631\u064A\u0645"));
    arabic.family = QStringLiteral(u"\u0645\u06CC\u200C\u0632\u0627\u062F\u0647");
    arabic.telephone = QStringLiteral(u"\u06F0\u06F2\u06F1\u06F5\u06F5");
    Party latin = person(QStringLiteral("2"), QStringLiteral("Sara"));
    latin.mobile = QStringLiteral("0912 100");
    ASSERT_TRUE(parties.save(arabic).ok);
    ASSERT_TRUE(parties.save(latin).ok);
    using Column = PartiesRepository::SearchColumn;
    struct Case {
        Column column;
        const char* typed;
        QStringList codes;
    };
    const Case cases[] = {
        {Column::Name, "\u06A9\u0631\u06CC", {"1"}},                // Persian keheh and yeh
        {Column::Family, "\u0645\u06CC\u0632\u0627\u062F", {"1"}},  // without the non-joiner
        {Column::Telephone, "215", {"1"}},                          // Latin digits
        {Column::Telephone, "\u0669\u0661\u0662", {"2"}},           // Arabic-Indic, the mobile
        {Column::Code, "\u06F2", {"2"}},
        {Column::Name, "SAR", {"2"}},
        {Column::Name, "%", {}},
        {Column::Name, "", {"1", "2"}},
    };
    for (const Case& c : cases) {
        QStringList codes;
        for (const Party& p : parties.list(Party::kPerson, c.column, QString::fromUtf8(c.typed))) {
            codes << p.code;
        }
        EXPECT_EQ(codes, c.codes) << c.typed;
    }
}

SANDOGH_INSTANTIATE_BACKENDS(PartiesRepositoryTest);

}  // namespace
}  // namespace sandogh
