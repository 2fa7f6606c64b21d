#include <gtest/gtest.h>

#include <QCheckBox>
#include <QComboBox>
#include <QPushButton>
#include <QTableView>

#include "CatalogScreenFixture.h"
#include "data/repositories/PartyMessages.h"
#include "ui/parties/frmCustomerGroup.h"
#include "ui/parties/frmParties.h"
#include "ui/parties/frmParty.h"
#include "ui/widgets/JalaliDateEdit.h"

namespace sandogh {
namespace {

class frmPartiesTest : public test::CatalogScreenFixture {
protected:
    void SetUp() override {
        CatalogScreenFixture::SetUp();
        if (HasFatalFailure()) {
            return;
        }
        ASSERT_TRUE(
            exec(QStringLiteral("INSERT INTO tblCustomerGroup (Code, Name) VALUES "
                                "(1, 'عادی'), (2, 'طلایی')")));
        ASSERT_TRUE(
            exec(QStringLiteral("INSERT INTO tblAccountingGroup (Code, ParentCode, Name) "
                                "VALUES (10, 1, 'دارایی'), (103, 10, 'بدهکاران')")));
    }
    std::unique_ptr<frmParties> openList(int typeNo) {
        auto screen = std::make_unique<frmParties>(*database, messages, typeNo);
        screen->show();
        return screen;
    }
    static frmParty* clickNew(frmParties& screen) {
        control<QPushButton>(&screen, QStringLiteral("cmdNew"))->click();
        auto* form = openChild<frmParty>(&screen);
        EXPECT_NE(form, nullptr);
        return form;
    }
};

TEST_F(frmPartiesTest, ACustomerIsTypedInAndSaved) {
    auto screen = openList(10);
    frmParty* form = clickNew(*screen);
    ASSERT_NE(form, nullptr);
    EXPECT_EQ(control<QLineEdit>(form, QStringLiteral("txtCode"))->text(), QStringLiteral("1"));
    typeInto<QLineEdit>(form, QStringLiteral("txtName"), QStringLiteral("مریم"));
    typeInto<QLineEdit>(form, QStringLiteral("txtFamily"), QStringLiteral("احمدی"));
    typeInto<QLineEdit>(form, QStringLiteral("txtTel"), QStringLiteral("02188776655"));
    typeInto<QLineEdit>(form, QStringLiteral("txtMobile"), QStringLiteral("09121234567"));
    typeInto<QLineEdit>(form, QStringLiteral("txtEmail"), QStringLiteral("maryam@example.ir"));
    typeInto<QLineEdit>(form, QStringLiteral("txtAddress"),
                        QStringLiteral("تهران، خیابان 'ولیعصر'"));
    auto* birthday = control<JalaliDateEdit>(form, QStringLiteral("txtBirthday"));
    birthday->setFocus();
    test::typeText(birthday, QStringLiteral("1360/5/3"));
    auto* group = control<QComboBox>(form, QStringLiteral("cboGroup"));
    group->setCurrentIndex(group->findText(QStringLiteral("طلایی")));
    auto* ledger = control<QComboBox>(form, QStringLiteral("cboAccountingGroup"));
    EXPECT_EQ(ledger->count(), 2) << "the empty choice and the one ledger";
    ledger->setCurrentIndex(1);
    typeInto<QLineEdit>(form, QStringLiteral("txtCredit"), QStringLiteral("500000"));
    control<QPushButton>(form, QStringLiteral("cmdSave"))->click();
    EXPECT_TRUE(messages.shown.isEmpty()) << shownTexts().join('|').toStdString();

    Session s = database->session();
    SqlQuery q(s,
               QStringLiteral("SELECT Code, Name, Value1, Value2, Value5, Value6, Value7, Value9, "
                              "CstGrpCode, AccountingGroupID, Credit, Active FROM Types "
                              "WHERE TypeNo = 10"));
    ASSERT_TRUE(q.exec() && q.next());
    EXPECT_EQ(q.text(0), QStringLiteral("1"));
    EXPECT_EQ(q.text(1), QStringLiteral("مریم"));
    EXPECT_EQ(q.text(2), QStringLiteral("احمدی"));
    EXPECT_EQ(q.text(3), QStringLiteral("02188776655"));
    EXPECT_EQ(q.text(4), QStringLiteral("09121234567"));
    EXPECT_EQ(q.text(5), QStringLiteral("maryam@example.ir"));
    EXPECT_EQ(q.text(6), QStringLiteral("تهران، خیابان 'ولیعصر'"));
    EXPECT_EQ(q.text(7), QStringLiteral("1360/05/03"));
    EXPECT_EQ(q.integer(8), 2);
    EXPECT_EQ(q.integer(9), int(number(QStringLiteral("SELECT ID FROM tblAccountingGroup "
                                                      "WHERE Code = 103"))));
    EXPECT_EQ(q.number(10), 500000.0);
    EXPECT_EQ(q.integer(11), 1);
    ASSERT_EQ(screen->parties().size(), 1);
    EXPECT_EQ(screen->parties().first().groupName, QStringLiteral("طلایی"));

    // Suppliers continue the same run of codes.
    auto suppliers = openList(11);
    frmParty* supplier = clickNew(*suppliers);
    ASSERT_NE(supplier, nullptr);
    EXPECT_EQ(control<QLineEdit>(supplier, QStringLiteral("txtCode"))->text(), QStringLiteral("2"));
    EXPECT_FALSE(control<JalaliDateEdit>(supplier, QStringLiteral("txtBirthday"))->isVisible());
}

TEST_F(frmPartiesTest, BadInputShowsTheMessageAndSavesNothing) {
    ASSERT_TRUE(
        exec(QStringLiteral("INSERT INTO Types (Counter, TypeNo, Code, Name) VALUES "
                            "(5, 11, '7', 'Supplier')")));
    struct Case {
        const char* what;
        QString code;
        QString name;
        QString birthday;
        QString message;
    };
    const Case cases[] = {
        {"empty name", QStringLiteral("8"), QString(), QString(), listmessages::kEnterName},
        {"a supplier's code", QStringLiteral("7"), QStringLiteral("Ali"), QString(),
         listmessages::kRepeatedCode},
        {"letters in the code", QStringLiteral("8b"), QStringLiteral("Ali"), QString(),
         partymessages::kCodeDigitsOnly},
        {"no such day", QStringLiteral("8"), QStringLiteral("Ali"), QStringLiteral("1404/12/30"),
         partymessages::kBadBirthday},
    };
    for (const Case& c : cases) {
        messages.shown.clear();
        auto screen = openList(10);
        frmParty* form = clickNew(*screen);
        ASSERT_NE(form, nullptr);
        typeInto<QLineEdit>(form, QStringLiteral("txtCode"), c.code);
        typeInto<QLineEdit>(form, QStringLiteral("txtName"), c.name);
        if (!c.birthday.isEmpty()) {
            auto* birthday = control<JalaliDateEdit>(form, QStringLiteral("txtBirthday"));
            test::typeText(birthday, c.birthday);
        }
        control<QPushButton>(form, QStringLiteral("cmdSave"))->click();
        ASSERT_EQ(messages.shown.size(), 1) << c.what;
        EXPECT_EQ(messages.shown.first().text, c.message) << c.what;
        EXPECT_EQ(number(QStringLiteral("SELECT COUNT(*) FROM Types WHERE TypeNo = 10")), 0)
            << c.what;
        EXPECT_TRUE(form->isVisible()) << c.what;
    }
}

TEST_F(frmPartiesTest, ACustomerWithSalesIsTakenOutOfUseInsteadOfDeleted) {
    ASSERT_TRUE(
        exec(QStringLiteral("INSERT INTO Types (Counter, TypeNo, Code, Name, Active) VALUES "
                            "(5, 10, '1', 'Buyer', 1), (6, 10, '2', 'Other', 1)")));
    ASSERT_TRUE(
        exec(QStringLiteral("INSERT INTO Whs_QTYDocH (Code, DocNo, TransType, CompanyID) "
                            "VALUES (1, '1', 2, 5)")));
    auto screen = openList(10);
    messages.answer = true;
    ASSERT_TRUE(screen->selectCounter(5));
    control<QPushButton>(screen.get(), QStringLiteral("cmdDelete"))->click();
    EXPECT_EQ(shownTexts(), QStringList({partymessages::partyInUseRefusal(),
                                         partymessages::kDeactivateQuestion}));
    EXPECT_EQ(number(QStringLiteral("SELECT Active FROM Types WHERE Counter = 5")), 0);

    control<QCheckBox>(screen.get(), QStringLiteral("chkOnlyActive"))->click();
    EXPECT_EQ(screen->parties().size(), 1);
    ASSERT_TRUE(screen->selectCounter(6));
    control<QPushButton>(screen.get(), QStringLiteral("cmdDelete"))->click();
    EXPECT_EQ(number(QStringLiteral("SELECT COUNT(*) FROM Types WHERE Counter = 6")), 0);
    EXPECT_TRUE(screen->parties().isEmpty());
}

TEST_F(frmPartiesTest, ACustomerGroupIsMadeAndKeptWhileCustomersHaveIt) {
    frmCustomerGroup screen(*database, messages);
    screen.show();
    EXPECT_EQ(screen.groups().size(), 2);
    control<QPushButton>(&screen, QStringLiteral("cmdNew"))->click();
    EXPECT_EQ(control<QLineEdit>(&screen, QStringLiteral("txtCode"))->text(), QStringLiteral("3"));
    typeInto<QLineEdit>(&screen, QStringLiteral("txtName"), QStringLiteral("نقره‌ای"));
    typeInto<QLineEdit>(&screen, QStringLiteral("txtDiscountPercent"), QStringLiteral("7.5"));
    typeInto<QLineEdit>(&screen, QStringLiteral("txtAmountRebate"), QStringLiteral("20000"));
    screen.setColor(0xc0c0c0);
    control<QPushButton>(&screen, QStringLiteral("cmdSave"))->click();
    Session s = database->session();
    SqlQuery q(s, QStringLiteral("SELECT Name, DiscountPercent, AmountRebate, Color FROM "
                                 "tblCustomerGroup WHERE Code = 3"));
    ASSERT_TRUE(q.exec() && q.next());
    EXPECT_EQ(q.text(0), QStringLiteral("نقره‌ای"));
    EXPECT_EQ(q.number(1), 7.5);
    EXPECT_EQ(q.number(2), 20000.0);
    EXPECT_EQ(q.int64(3), 0xc0c0c0);
    EXPECT_EQ(screen.groups().size(), 3);

    ASSERT_TRUE(
        exec(QStringLiteral("INSERT INTO Types (Counter, TypeNo, Code, Name, CstGrpCode) "
                            "VALUES (5, 10, '1', 'Member', 3)")));
    messages.shown.clear();
    control<QPushButton>(&screen, QStringLiteral("cmdDelete"))->click();
    EXPECT_EQ(shownTexts(), QStringList({partymessages::groupInUseRefusal()}));
    EXPECT_EQ(number(QStringLiteral("SELECT COUNT(*) FROM tblCustomerGroup")), 3);
}

}  // namespace
}  // namespace sandogh
