#include <gtest/gtest.h>

#include <QComboBox>
#include <QPushButton>
#include <QSpinBox>
#include <QTableView>

#include "CatalogScreenFixture.h"
#include "ui/catalog/frmCodeParameters.h"
#include "ui/catalog/frmNewCodePara.h"
#include "ui/catalog/frmNewPara.h"
#include "ui/catalog/frmParameters.h"

namespace sandogh {
namespace {

const QString kEnterName = QStringLiteral("نام را وارد نمائيد");
const QString kSaved = QStringLiteral("اطلاعات جديد با موفقيت ذخيره گرديد.");
const QString kNotice = QStringLiteral("توجه!");
const QString kDeleteQuestion = QStringLiteral("آيا براي حذف اطمينان داريد؟");
const QString kDefinitionsMade =
    QStringLiteral("! قادر به حذف نميباشيد") + QLatin1Char('\n') +
    QStringLiteral(".جهت رديف مورد نظر در منوي مشخصات تعاريفي صورت گرفته است ");

using Family = CodeLevelsRepository::Family;

class frmCodeParametersTest : public test::CatalogScreenFixture {
protected:
    std::unique_ptr<frmCodeParameters> openLevels(Family family) {
        auto screen = std::make_unique<frmCodeParameters>(*database, messages, family);
        screen->show();
        return screen;
    }
    // New on the list, the boxes typed, save.
    frmNewCodePara* newLevel(frmCodeParameters& screen, const QString& name, int digits,
                             QString* shownTypeNo = nullptr) {
        control<QPushButton>(&screen, QStringLiteral("cmdNew"))->click();
        auto* form = openChild<frmNewCodePara>(&screen);
        EXPECT_NE(form, nullptr);
        if (form == nullptr) {
            return nullptr;
        }
        if (shownTypeNo != nullptr) {
            *shownTypeNo = control<QLineEdit>(form, QStringLiteral("txtTypeNo"))->text();
        }
        typeInto<QLineEdit>(form, QStringLiteral("txtName"), name);
        typeInto<QLineEdit>(form, QStringLiteral("txtNameEnglish"), QStringLiteral("Level"));
        control<QSpinBox>(form, QStringLiteral("spnDigitQty"))->setValue(digits);
        control<QPushButton>(form, QStringLiteral("cmdSave"))->click();
        return form;
    }
    qint64 levelRows() { return number(QStringLiteral("SELECT COUNT(*) FROM Code_Parameters")); }
};

TEST_F(frmCodeParametersTest, EachFamilyStartsAtItsFirstNumberAndOrder) {
    struct Case {
        Family family;
        const char* first;
        int firstTypeNo;
        int secondTypeNo;
    };
    for (const Case c :
         {Case{Family::Goods, "501", 501, 502}, Case{Family::Accounts, "201", 201, 202}}) {
        auto screen = openLevels(c.family);
        messages.shown.clear();
        QString shown;
        newLevel(*screen, QStringLiteral("گروه"), 2, &shown);
        EXPECT_EQ(shown, QString::fromLatin1(c.first));
        ASSERT_EQ(messages.shown.size(), 1);
        EXPECT_EQ(messages.shown.first().text, kSaved);
        EXPECT_EQ(messages.shown.first().title, kNotice);
        newLevel(*screen, QStringLiteral("زیرگروه"), 3);
        const auto& levels = screen->levels();
        ASSERT_EQ(levels.size(), 2);
        EXPECT_EQ(levels.at(0).typeNo, c.firstTypeNo);
        EXPECT_EQ(levels.at(0).parameterLevel, 1);
        EXPECT_EQ(levels.at(1).typeNo, c.secondTypeNo);
        EXPECT_EQ(levels.at(1).parameterLevel, 2);
        EXPECT_EQ(levels.at(1).digitQty, 3);
        const auto* grid = control<QTableView>(screen.get(), QStringLiteral("grdLevels"));
        EXPECT_EQ(grid->model()->headerData(1, Qt::Horizontal).toString(),
                  QStringLiteral("نام مشخصه"));
        EXPECT_EQ(grid->model()->headerData(2, Qt::Horizontal).toString(),
                  QStringLiteral("نام لاتين مشخصه"));
        EXPECT_EQ(grid->model()->index(1, 1).data().toString(), QStringLiteral("زیرگروه"));
    }
    EXPECT_EQ(levelRows(), 4);
}

TEST_F(frmCodeParametersTest, ALevelWithoutANameIsNotSaved) {
    auto screen = openLevels(Family::Goods);
    frmNewCodePara* form = newLevel(*screen, QStringLiteral("  "), 2);
    ASSERT_EQ(messages.shown.size(), 1);
    EXPECT_EQ(messages.shown.first().text, kEnterName);
    EXPECT_EQ(levelRows(), 0);
    EXPECT_TRUE(form->isVisible());
}

TEST_F(frmCodeParametersTest, ALevelIsDeletedOnlyWithoutValues) {
    auto screen = openLevels(Family::Goods);
    newLevel(*screen, QStringLiteral("گروه"), 2);
    ASSERT_TRUE(
        exec(QStringLiteral("INSERT INTO Types (Counter, TypeNo, Code, Name) VALUES "
                            "(1, 501, '01', 'x')")));
    messages.shown.clear();
    ASSERT_TRUE(screen->selectTypeNo(501));
    control<QPushButton>(screen.get(), QStringLiteral("cmdDelete"))->click();
    ASSERT_EQ(messages.shown.size(), 1);
    EXPECT_EQ(messages.shown.first().text, kDefinitionsMade);
    EXPECT_EQ(levelRows(), 1);

    ASSERT_TRUE(exec(QStringLiteral("DELETE FROM Types WHERE Counter = 1")));
    messages.shown.clear();
    control<QPushButton>(screen.get(), QStringLiteral("cmdDelete"))->click();
    ASSERT_EQ(messages.shown.size(), 1);
    EXPECT_EQ(messages.shown.first().text, kDeleteQuestion);
    EXPECT_EQ(levelRows(), 0);
    EXPECT_TRUE(screen->levels().isEmpty());
}

TEST_F(frmCodeParametersTest, ValuesOfALevelAreLinkedUnderTheValuesOfTheLevelAbove) {
    auto screen = openLevels(Family::Goods);
    newLevel(*screen, QStringLiteral("گروه"), 2);
    newLevel(*screen, QStringLiteral("برند"), 3);
    messages.shown.clear();

    // A value of the first level, through its values list.
    ASSERT_TRUE(screen->selectTypeNo(501));
    frmParameters* groups = screen->openValues();
    ASSERT_NE(groups, nullptr);
    EXPECT_EQ(groups->typeNo(), 501);
    EXPECT_EQ(groups->windowTitle(), QStringLiteral("گروه"));
    frmNewPara* form = groups->openEditor(0);
    typeInto<QLineEdit>(form, QStringLiteral("txtName"), QStringLiteral("لبنیات"));
    typeInto<QLineEdit>(form, QStringLiteral("txtCode"), QStringLiteral("01"));
    ASSERT_TRUE(form->save());
    const int dairy = groups->currentCounter();
    ASSERT_GT(dairy, 0);

    // A value of the second level under it; a code one short is refused first.
    ASSERT_TRUE(screen->selectTypeNo(502));
    frmParameters* brands = screen->openValues();
    form = brands->openEditor(0);
    ASSERT_TRUE(form->setParentTicked(dairy, true));
    typeInto<QLineEdit>(form, QStringLiteral("txtName"), QStringLiteral("پگاه"));
    typeInto<QLineEdit>(form, QStringLiteral("txtCode"), QStringLiteral("01"));
    EXPECT_FALSE(form->save());
    EXPECT_EQ(number(QStringLiteral("SELECT COUNT(*) FROM Types WHERE TypeNo = 502")), 0);
    typeInto<QLineEdit>(form, QStringLiteral("txtCode"), QStringLiteral("001"));
    ASSERT_TRUE(form->save());
    const int pegah = brands->currentCounter();
    EXPECT_EQ(number(QStringLiteral("SELECT COUNT(*) FROM TypesLink WHERE Counter = :c AND "
                                    "Link = :p"),
                     {{QStringLiteral(":c"), pegah}, {QStringLiteral(":p"), dairy}}),
              1);
    ASSERT_EQ(messages.shown.size(), 1);  // the digit count, once
}

TEST_F(frmCodeParametersTest, TheSearchNarrowsByNameOrLatinName) {
    ASSERT_TRUE(exec(QStringLiteral(
        "INSERT INTO Code_Parameters (TypeNo, Name, NameEnglish, DigitQty, ParameterLevel) VALUES "
        "(501, 'گروه', 'Group', 2, 1), (502, 'برند', 'Brand', 3, 2), "
        "(503, 'زیرگروه', 'Subgroup', 2, 3), (201, 'کل', 'Group', 1, 1)")));
    auto screen = openLevels(Family::Goods);
    auto typeNos = [&screen] {
        QList<int> numbers;
        for (const auto& level : screen->levels()) {
            numbers << level.typeNo;
        }
        return numbers;
    };
    EXPECT_EQ(typeNos(), QList<int>({501, 502, 503}));
    typeInto<QLineEdit>(screen.get(), QStringLiteral("txtSearch"), QStringLiteral("گروه"));
    EXPECT_EQ(typeNos(), QList<int>({501, 503}));
    control<QComboBox>(screen.get(), QStringLiteral("cboSearchColumn"))->setCurrentIndex(1);
    EXPECT_TRUE(typeNos().isEmpty());
    typeInto<QLineEdit>(screen.get(), QStringLiteral("txtSearch"), QStringLiteral("Br"));
    EXPECT_EQ(typeNos(), QList<int>({502}));
}

}  // namespace
}  // namespace sandogh
