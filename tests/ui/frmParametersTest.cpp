#include <gtest/gtest.h>

#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QPushButton>
#include <QTableView>

#include "CatalogScreenFixture.h"
#include "ui/catalog/frmNewPara.h"
#include "ui/catalog/frmParameters.h"
#include "ui/catalog/frmParametersList.h"

namespace sandogh {
namespace {

// The system's own texts of the list, its form and the picker.
const QString kEnterName = QStringLiteral("نام را وارد نمائيد");
const QString kEnterCode = QStringLiteral("كد كالا را وارد نمائيد");
const QString kRepeated = QStringLiteral("! كد وارد شده تكراري است  ");
const QString kNotice = QStringLiteral("توجه!");
const QString kWarning = QStringLiteral("اخطار!");
const QString kDeleteQuestion = QStringLiteral("آيا براي حذف اطمينان داريد؟");
const QString kTiedToGoods = QStringLiteral("! قادر به حذف نميباشيد") + QLatin1Char('\n') +
                             QStringLiteral(".رديف مورد نظر با كالايي مرتبط است ");
const QString kConnection = QStringLiteral("خطا در برقراري ارتباط با سرور بانک اطلاعاتي");

QString digitsMessage(int digits) {
    return QStringLiteral(" كد بايد ") + QString::number(digits) +
           QStringLiteral("رقم يا حرف باشد.");
}

class frmParametersTest : public test::CatalogScreenFixture {
protected:
    void addLevel(int typeNo, const QString& name, int digits) {
        ASSERT_TRUE(exec(QStringLiteral("INSERT INTO Code_Parameters (TypeNo, Name, NameEnglish, "
                                        "DigitQty, ParameterLevel) VALUES (:t, :n, '', :d, :l)"),
                         {{QStringLiteral(":t"), typeNo},
                          {QStringLiteral(":n"), name},
                          {QStringLiteral(":d"), digits},
                          {QStringLiteral(":l"), typeNo % 100}}));
    }
    void addValue(int counter, int typeNo, const QString& code, const QString& name,
                  int parent = 0) {
        ASSERT_TRUE(exec(QStringLiteral("INSERT INTO Types (Counter, TypeNo, Code, Name) VALUES "
                                        "(:c, :t, :code, :name)"),
                         {{QStringLiteral(":c"), counter},
                          {QStringLiteral(":t"), typeNo},
                          {QStringLiteral(":code"), code},
                          {QStringLiteral(":name"), name}}));
        if (parent > 0) {
            ASSERT_TRUE(
                exec(QStringLiteral("INSERT INTO TypesLink (Counter, Link) VALUES (:c, :p)"),
                     {{QStringLiteral(":c"), counter}, {QStringLiteral(":p"), parent}}));
        }
    }
    qint64 valuesOf(int typeNo) {
        return number(QStringLiteral("SELECT COUNT(*) FROM Types WHERE TypeNo = :t"),
                      {{QStringLiteral(":t"), typeNo}});
    }
    std::unique_ptr<frmParameters> openList(int typeNo) {
        auto screen = std::make_unique<frmParameters>(*database, messages, typeNo);
        screen->show();
        return screen;
    }
    static frmNewPara* clickNew(frmParameters& screen) {
        control<QPushButton>(&screen, QStringLiteral("cmdNew"))->click();
        auto* form = openChild<frmNewPara>(&screen);
        EXPECT_NE(form, nullptr);
        return form;
    }
    // Types into the form's four boxes and presses save.
    void fillAndSave(frmNewPara* form, const QString& name, const QString& code,
                     const QString& latin = {}, const QString& note = {}) {
        ASSERT_NE(form, nullptr);
        typeInto<QLineEdit>(form, QStringLiteral("txtName"), name);
        typeInto<QLineEdit>(form, QStringLiteral("txtCode"), code);
        typeInto<QLineEdit>(form, QStringLiteral("txtNameEng"), latin);
        typeInto<QLineEdit>(form, QStringLiteral("txtNote"), note);
        control<QPushButton>(form, QStringLiteral("cmdSave"))->click();
    }
    static QStringList gridColumn(const frmParameters& screen, int column) {
        const auto* grid = control<QTableView>(&screen, QStringLiteral("grdList"));
        QStringList texts;
        for (int row = 0; row < grid->model()->rowCount(); ++row) {
            texts << grid->model()->index(row, column).data().toString();
        }
        return texts;
    }
};

TEST_F(frmParametersTest, AUnitIsMadeThroughTheListAndItsForm) {
    auto screen = openList(61);
    const auto* grid = control<QTableView>(screen.get(), QStringLiteral("grdList"));
    ASSERT_NE(grid, nullptr);
    QStringList headers;
    for (int c = 0; c < grid->model()->columnCount(); ++c) {
        headers << grid->model()->headerData(c, Qt::Horizontal).toString();
    }
    EXPECT_EQ(headers, QStringList({QStringLiteral("کد"), QStringLiteral("نام"),
                                    QStringLiteral("نام لاتين"), QStringLiteral("توضيح")}));

    frmNewPara* form = clickNew(*screen);
    ASSERT_NE(form, nullptr);
    EXPECT_FALSE(control<QGroupBox>(form, QStringLiteral("grpParents"))->isVisible());
    fillAndSave(form, QStringLiteral("کیلوگرم"), QStringLiteral("02"), QStringLiteral("kg"),
                QStringLiteral("وزن"));
    EXPECT_TRUE(messages.shown.isEmpty()) << shownTexts().join('|').toStdString();

    Session s = database->session();
    SqlQuery q(s, QStringLiteral("SELECT Counter, Code, Name, NameEng, Note FROM Types "
                                 "WHERE TypeNo = 61"));
    ASSERT_TRUE(q.exec() && q.next());
    const int counter = q.integer(0);
    EXPECT_GT(counter, 0);
    EXPECT_EQ(q.text(1), QStringLiteral("02"));
    EXPECT_EQ(q.text(2), QStringLiteral("کیلوگرم"));
    EXPECT_EQ(q.text(3), QStringLiteral("kg"));
    EXPECT_EQ(q.text(4), QStringLiteral("وزن"));
    EXPECT_FALSE(q.next());
    EXPECT_EQ(gridColumn(*screen, 1), QStringList({QStringLiteral("کیلوگرم")}));
    EXPECT_EQ(screen->currentCounter(), counter);
}

TEST_F(frmParametersTest, BadInputShowsTheWrittenMessageAndSavesNothing) {
    addLevel(501, QStringLiteral("گروه"), 3);
    addValue(10, 501, QStringLiteral("001"), QStringLiteral("لبنیات"));
    addValue(11, 61, QStringLiteral("01"), QStringLiteral("عدد"));
    struct Case {
        const char* what;
        int typeNo;
        QString name;
        QString code;
        QString message;
        QString title;
    };
    const Case cases[] = {
        {"empty name", 61, QStringLiteral(" "), QStringLiteral("05"), kEnterName, kNotice},
        {"empty code", 61, QStringLiteral("بسته"), QString(), kEnterCode, kNotice},
        {"repeated code", 61, QStringLiteral("بسته"), QStringLiteral("01"), kRepeated, kWarning},
        {"a level code one short", 501, QStringLiteral("نان"), QStringLiteral("02"),
         digitsMessage(3), kWarning},
        {"a level code one long", 501, QStringLiteral("نان"), QStringLiteral("0002"),
         digitsMessage(3), kWarning},
        {"a repeated level code", 501, QStringLiteral("نان"), QStringLiteral("001"), kRepeated,
         kWarning},
    };
    for (const Case& c : cases) {
        messages.shown.clear();
        auto screen = openList(c.typeNo);
        frmNewPara* form = clickNew(*screen);
        const qint64 before = valuesOf(c.typeNo);
        fillAndSave(form, c.name, c.code);
        ASSERT_EQ(messages.shown.size(), 1) << c.what;
        EXPECT_EQ(messages.shown.first().text, c.message) << c.what;
        EXPECT_EQ(messages.shown.first().title, c.title) << c.what;
        EXPECT_EQ(valuesOf(c.typeNo), before) << c.what;
        EXPECT_TRUE(form->isVisible()) << c.what << ": the form stays open for correction";
    }
}

TEST_F(frmParametersTest, EditingAValueWithoutChangingItsCodePasses) {
    addValue(11, 61, QStringLiteral("01"), QStringLiteral("عدد"));
    auto screen = openList(61);
    ASSERT_TRUE(screen->selectCounter(11));
    control<QPushButton>(screen.get(), QStringLiteral("cmdEdit"))->click();
    auto* form = openChild<frmNewPara>(screen.get());
    ASSERT_NE(form, nullptr);
    EXPECT_EQ(control<QLineEdit>(form, QStringLiteral("txtCode"))->text(), QStringLiteral("01"));
    typeInto<QLineEdit>(form, QStringLiteral("txtName"), QStringLiteral("دانه"));
    control<QPushButton>(form, QStringLiteral("cmdSave"))->click();
    EXPECT_TRUE(messages.shown.isEmpty()) << shownTexts().join('|').toStdString();
    EXPECT_EQ(text(QStringLiteral("SELECT Name FROM Types WHERE Counter = 11")),
              QStringLiteral("دانه"));
    EXPECT_EQ(valuesOf(61), 1);
}

TEST_F(frmParametersTest, AValueOfALevelIsTickedUnderItsParents) {
    addLevel(501, QStringLiteral("گروه"), 2);
    addLevel(502, QStringLiteral("برند"), 3);
    addValue(10, 501, QStringLiteral("01"), QStringLiteral("لبنیات"));
    addValue(11, 501, QStringLiteral("02"), QStringLiteral("نوشیدنی"));
    auto screen = openList(502);
    frmNewPara* form = clickNew(*screen);
    ASSERT_NE(form, nullptr);
    const auto* parents = control<QGroupBox>(form, QStringLiteral("grpParents"));
    EXPECT_TRUE(parents->isVisible());
    EXPECT_EQ(parents->title(), QStringLiteral(" Level:") + QStringLiteral("گروه"));
    EXPECT_EQ(form->findChildren<QCheckBox*>().size(), 2);
    EXPECT_EQ(control<QCheckBox>(form, QStringLiteral("chkParent10"))->text(),
              QStringLiteral("01 - لبنیات"));
    control<QCheckBox>(form, QStringLiteral("chkParent11"))->click();
    fillAndSave(form, QStringLiteral("پگاه"), QStringLiteral("007"));
    EXPECT_TRUE(messages.shown.isEmpty()) << shownTexts().join('|').toStdString();
    const int counter = int(number(QStringLiteral("SELECT Counter FROM Types WHERE TypeNo = 502")));
    EXPECT_EQ(number(QStringLiteral("SELECT Link FROM TypesLink WHERE Counter = :c"),
                     {{QStringLiteral(":c"), counter}}),
              11);

    // Opened again, the box of its parent is ticked; moving the tick replaces the link.
    ASSERT_TRUE(screen->selectCounter(counter));
    control<QPushButton>(screen.get(), QStringLiteral("cmdEdit"))->click();
    form = openChild<frmNewPara>(screen.get());
    ASSERT_NE(form, nullptr);
    EXPECT_EQ(form->tickedParents(), QList<int>({11}));
    form->setParentTicked(11, false);
    form->setParentTicked(10, true);
    ASSERT_TRUE(form->save());
    EXPECT_EQ(number(QStringLiteral("SELECT COUNT(*) FROM TypesLink WHERE Counter = :c"),
                     {{QStringLiteral(":c"), counter}}),
              1);
    EXPECT_EQ(number(QStringLiteral("SELECT Link FROM TypesLink WHERE Counter = :c"),
                     {{QStringLiteral(":c"), counter}}),
              10);
}

TEST_F(frmParametersTest, DeletingAsksFirstAndRefusesAValueArticlesUse) {
    addLevel(501, QStringLiteral("گروه"), 2);
    addLevel(502, QStringLiteral("برند"), 2);
    addValue(10, 501, QStringLiteral("01"), QStringLiteral("لبنیات"));
    addValue(11, 501, QStringLiteral("02"), QStringLiteral("نوشیدنی"));
    addValue(20, 502, QStringLiteral("01"), QStringLiteral("پگاه"), 11);
    ASSERT_TRUE(exec(QStringLiteral("INSERT INTO TypesLink (Counter, Link) VALUES (11, 99)")));
    ASSERT_TRUE(
        exec(QStringLiteral("INSERT INTO Goods (EAN_Code, Name, LevelID1) VALUES "
                            "('1', 'Milk', 10)")));
    auto screen = openList(501);

    // Used by an article: refused, kept.
    ASSERT_TRUE(screen->selectCounter(10));
    control<QPushButton>(screen.get(), QStringLiteral("cmdDelete"))->click();
    ASSERT_EQ(messages.shown.size(), 1);
    EXPECT_EQ(messages.shown.first().text, kTiedToGoods);
    EXPECT_EQ(valuesOf(501), 2);

    // Unused: asked; Cancel keeps it, OK deletes it and its links.
    messages.shown.clear();
    messages.answer = false;
    ASSERT_TRUE(screen->selectCounter(11));
    control<QPushButton>(screen.get(), QStringLiteral("cmdDelete"))->click();
    ASSERT_EQ(messages.shown.size(), 1);
    EXPECT_EQ(messages.shown.first().text, kDeleteQuestion);
    EXPECT_EQ(messages.shown.first().style, MessageStyle::QuestionOkCancel);
    EXPECT_EQ(valuesOf(501), 2);
    messages.answer = true;
    control<QPushButton>(screen.get(), QStringLiteral("cmdDelete"))->click();
    EXPECT_EQ(valuesOf(501), 1);
    EXPECT_EQ(number(QStringLiteral("SELECT COUNT(*) FROM TypesLink WHERE Counter = 11")), 0);
    EXPECT_EQ(screen->values().size(), 1);
}

TEST_F(frmParametersTest, ALevelNineValueIsNeverDeleted) {
    addLevel(509, QStringLiteral("سطح نهم"), 1);
    addValue(90, 509, QStringLiteral("1"), QStringLiteral("unused"));
    auto screen = openList(509);
    ASSERT_TRUE(screen->selectCounter(90));
    control<QPushButton>(screen.get(), QStringLiteral("cmdDelete"))->click();
    EXPECT_EQ(shownTexts(), QStringList({kConnection, kTiedToGoods}));
    EXPECT_EQ(valuesOf(509), 1);
}

TEST_F(frmParametersTest, TheSearchBoxNarrowsByTheChosenColumn) {
    addValue(1, 1013, QStringLiteral("11"), QStringLiteral("شمال"));
    addValue(2, 1013, QStringLiteral("12"), QStringLiteral("جنوب"));
    addValue(3, 1013, QStringLiteral("21"), QStringLiteral("غرب"));
    auto screen = openList(1013);
    EXPECT_EQ(gridColumn(*screen, 0), QStringList({"11", "12", "21"}));
    auto* column = control<QComboBox>(screen.get(), QStringLiteral("cboSearchColumn"));
    column->setCurrentIndex(0);  // "کد"
    typeInto<QLineEdit>(screen.get(), QStringLiteral("txtSearch"), QStringLiteral("1"));
    EXPECT_EQ(gridColumn(*screen, 0), QStringList({"11", "12", "21"}));
    typeInto<QLineEdit>(screen.get(), QStringLiteral("txtSearch"), QStringLiteral("2"));
    EXPECT_EQ(gridColumn(*screen, 0), QStringList({"12", "21"}));
    column->setCurrentIndex(1);  // "نام"
    EXPECT_TRUE(gridColumn(*screen, 0).isEmpty());
    typeInto<QLineEdit>(screen.get(), QStringLiteral("txtSearch"), QStringLiteral("نو"));
    EXPECT_EQ(gridColumn(*screen, 1), QStringList({QStringLiteral("جنوب")}));
}

TEST_F(frmParametersTest, EveryListOfTheRegistryOpens) {
    QList<int> lists{61, 1010, 1011, 1012, 1013};
    for (int t = 501; t <= 509; ++t) {
        addLevel(t, QStringLiteral("کالا %1").arg(t), 2);
        lists << t;
    }
    for (int t = 201; t <= 210; ++t) {
        addLevel(t, QStringLiteral("حساب %1").arg(t), 2);
        lists << t;
    }
    int counter = 1;
    for (const int typeNo : lists) {
        addValue(counter++, typeNo, QStringLiteral("01"), QStringLiteral("v%1").arg(typeNo));
    }
    for (const int typeNo : lists) {
        auto screen = openList(typeNo);
        EXPECT_EQ(screen->values().size(), 1) << typeNo;
        EXPECT_EQ(gridColumn(*screen, 1), QStringList({QStringLiteral("v%1").arg(typeNo)}))
            << typeNo;
        EXPECT_FALSE(screen->windowTitle().isEmpty()) << typeNo;
        if (typeNo > 500 && typeNo < 600) {
            EXPECT_EQ(screen->windowTitle(), QStringLiteral("کالا %1").arg(typeNo));
        }
    }
}

TEST_F(frmParametersTest, ThePickerOffersTheValuesUnderItsParentOrTheWholeList) {
    addValue(10, 501, QStringLiteral("01"), QStringLiteral("لبنیات"));
    addValue(11, 501, QStringLiteral("02"), QStringLiteral("نوشیدنی"));
    addValue(20, 502, QStringLiteral("001"), QStringLiteral("پگاه"), 10);
    addValue(21, 502, QStringLiteral("002"), QStringLiteral("دامداران"), 10);
    addValue(22, 502, QStringLiteral("003"), QStringLiteral("زمزم"), 11);
    struct Case {
        int parent;
        QList<int> offered;
    };
    // Under a parent with links only those; a parent without links, or none, the whole list.
    const Case cases[] = {{10, {20, 21}}, {11, {22}}, {22, {20, 21, 22}}, {0, {20, 21, 22}}};
    for (const Case& c : cases) {
        frmParametersList picker(*database, messages, 502, c.parent);
        QList<int> offered;
        for (const auto& v : picker.values()) {
            offered << v.counter;
        }
        std::sort(offered.begin(), offered.end());
        EXPECT_EQ(offered, c.offered) << c.parent;
    }

    frmParametersList picker(*database, messages, 502, 0);
    picker.show();
    const auto* grid = control<QTableView>(&picker, QStringLiteral("grdList"));
    EXPECT_EQ(grid->model()->headerData(0, Qt::Horizontal).toString(), QStringLiteral("کد"));
    EXPECT_EQ(grid->model()->headerData(1, Qt::Horizontal).toString(), QStringLiteral("نام"));
    control<QComboBox>(&picker, QStringLiteral("cboSearchColumn"))->setCurrentIndex(0);
    typeInto<QLineEdit>(&picker, QStringLiteral("txtSearch"), QStringLiteral("3"));
    ASSERT_EQ(picker.values().size(), 1);
    TypesRepository::Value chosen;
    QObject::connect(&picker, &frmParametersList::chosen,
                     [&chosen](const TypesRepository::Value& v) { chosen = v; });
    QTest::keyClick(control<QLineEdit>(&picker, QStringLiteral("txtSearch")), Qt::Key_Return);
    EXPECT_EQ(chosen.counter, 22);
    EXPECT_EQ(chosen.code, QStringLiteral("003"));
    EXPECT_EQ(chosen.name, QStringLiteral("زمزم"));
    EXPECT_FALSE(picker.isVisible());
}

}  // namespace
}  // namespace sandogh
