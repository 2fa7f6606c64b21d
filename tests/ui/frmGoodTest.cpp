// The article screen: what is typed and picked reaches the saved article, and a refusal
// is shown.

#include <gtest/gtest.h>

#include <QCheckBox>
#include <QComboBox>
#include <QPushButton>
#include <QRadioButton>
#include <QToolButton>

#include "CatalogScreenFixture.h"
#include "data/repositories/GoodsMessages.h"
#include "data/repositories/GoodsSavedHook.h"
#include "ui/catalog/frmGood.h"
#include "ui/catalog/frmParametersList.h"

namespace sandogh {
namespace {

const QString kSaved = QStringLiteral("اطلاعات جديد با موفقيت ذخيره گرديد.");
const QString kNotice = QStringLiteral("توجه!");

class RecordingHook final : public GoodsSavedHook {
public:
    bool goodsSaved(Session& /*session*/, const GoodsArticle& article) override {
        saved << article;
        return true;
    }
    bool goodsDeleted(Session& /*session*/, const GoodsArticle& /*article*/) override {
        return true;
    }
    QList<GoodsArticle> saved;
};

class frmGoodTest : public test::CatalogScreenFixture {
protected:
    void SetUp() override {
        CatalogScreenFixture::SetUp();
        if (IsSkipped() || HasFatalFailure()) {
            return;
        }
        // Two goods levels, the second's values hanging under the first's; two units.
        ASSERT_TRUE(exec(QStringLiteral(
            "INSERT INTO Code_Parameters (TypeNo, Name, NameEnglish, DigitQty, ParameterLevel) "
            "VALUES (501, 'گروه', 'Group', 2, 1), (502, 'برند', 'Brand', 3, 2)")));
        ASSERT_TRUE(exec(QStringLiteral(
            "INSERT INTO Types (Counter, TypeNo, Code, Name) VALUES (10, 501, '01', 'لبنیات'), "
            "(11, 501, '02', 'نوشیدنی'), (20, 502, '001', 'پگاه'), (21, 502, '002', 'زمزم'), "
            "(30, 61, '1', 'عدد'), (31, 61, '2', 'کیلوگرم')")));
        ASSERT_TRUE(exec(
            QStringLiteral("INSERT INTO TypesLink (Counter, Link) VALUES (20, 10), (21, 11)")));
    }

    std::unique_ptr<frmGood> openGood() {
        auto screen = std::make_unique<frmGood>(db(), messages(), clock, 3, &hook, QString());
        screen->show();
        return screen;
    }
    // Opens a level's picker with its button and confirms the value of a code.
    void pick(frmGood& screen, int level, const QString& code, QList<int>* offered = nullptr) {
        control<QToolButton>(&screen, QStringLiteral("cmdLevel%1").arg(level))->click();
        auto* picker = openChild<frmParametersList>(&screen);
        ASSERT_NE(picker, nullptr);
        if (offered != nullptr) {
            for (const auto& v : picker->values()) {
                *offered << v.counter;
            }
        }
        for (const auto& v : picker->values()) {
            if (v.code == code) {
                ASSERT_TRUE(picker->selectCounter(v.counter));
            }
        }
        control<QPushButton>(picker, QStringLiteral("cmdOk"))->click();
        EXPECT_FALSE(picker->isVisible());
    }
    void typeArticle(frmGood& screen, const QString& barcode, const QString& name,
                     const QString& cost) {
        typeInto<QLineEdit>(&screen, QStringLiteral("txtBarcode"), barcode);
        typeInto<QLineEdit>(&screen, QStringLiteral("txtName"), name);
        typeInto<QLineEdit>(&screen, QStringLiteral("txtCost"), cost);
    }
    qint64 goodsRows() { return number(QStringLiteral("SELECT COUNT(*) FROM Goods")); }

    RecordingHook hook;
};

TEST_P(frmGoodTest, AnArticleWithItsLevelsIsSavedAsTyped) {
    auto screen = openGood();
    EXPECT_EQ(control<QLineEdit>(screen.get(), QStringLiteral("txtBarcode"))->text(),
              QStringLiteral("1"));
    EXPECT_EQ(control<QRadioButton>(screen.get(), QStringLiteral("optCounted"))->text(),
              QStringLiteral("کالا تعدادي"));
    EXPECT_EQ(control<QRadioButton>(screen.get(), QStringLiteral("optWeighed"))->text(),
              QStringLiteral("کالاي وزني"));
    EXPECT_TRUE(screen->hasLevel(1));
    EXPECT_TRUE(screen->hasLevel(2));
    EXPECT_FALSE(screen->hasLevel(3));

    typeArticle(*screen, QStringLiteral("6260000000017"), QStringLiteral("پنیر لیقوان"),
                QStringLiteral("125000"));
    typeInto<QLineEdit>(screen.get(), QStringLiteral("txtEnName"), QStringLiteral("Feta"));
    typeInto<QLineEdit>(screen.get(), QStringLiteral("txtSpecCode"), QStringLiteral("12"));
    typeInto<QLineEdit>(screen.get(), QStringLiteral("txtCost2"), QStringLiteral("120000"));
    typeInto<QLineEdit>(screen.get(), QStringLiteral("txtArticlePrice"), QStringLiteral("130000"));
    typeInto<QLineEdit>(screen.get(), QStringLiteral("txtTaxValue"), QStringLiteral("9"));
    typeInto<QLineEdit>(screen.get(), QStringLiteral("txtStockNo1"), QStringLiteral("A-3"));
    auto* unit = control<QComboBox>(screen.get(), QStringLiteral("cboUnit"));
    unit->setCurrentIndex(unit->findText(QStringLiteral("کیلوگرم")));
    control<QRadioButton>(screen.get(), QStringLiteral("optWeighed"))->click();
    control<QCheckBox>(screen.get(), QStringLiteral("chkFavorite"))->click();
    control<QCheckBox>(screen.get(), QStringLiteral("chkAQIS"))->click();

    pick(*screen, 1, QStringLiteral("01"));
    EXPECT_EQ(control<QLineEdit>(screen.get(), QStringLiteral("txtLevel1"))->text(),
              QStringLiteral("01 - لبنیات"));
    QList<int> offered;
    pick(*screen, 2, QStringLiteral("001"), &offered);
    EXPECT_EQ(offered, QList<int>({20})) << "the brands under the chosen group only";
    EXPECT_EQ(control<QLineEdit>(screen.get(), QStringLiteral("txtComplexCode"))->text(),
              QStringLiteral("01001"));

    control<QPushButton>(screen.get(), QStringLiteral("cmdSave"))->click();
    ASSERT_EQ(messages().count(), 1);
    EXPECT_EQ(messages().messages().first().text, kSaved);
    EXPECT_EQ(messages().messages().first().title, kNotice);

    Session s = session();
    SqlQuery q(s, QStringLiteral(
                      "SELECT Name, EnName, Spec_Code, Cost, Cost2, ArticlePrice, TaxValue, Unit, "
                      "GType, ISFavorite, AQIS, ComplexCode, LevelID1, LevelID2, StockNo1, "
                      "ISActive FROM Goods WHERE EAN_Code = '6260000000017'"));
    ASSERT_TRUE(q.exec() && q.next());
    EXPECT_EQ(q.text(0), QStringLiteral("پنیر لیقوان"));
    EXPECT_EQ(q.text(1), QStringLiteral("Feta"));
    EXPECT_EQ(q.text(2), QStringLiteral("12"));
    EXPECT_EQ(q.number(3), 125000.0);
    EXPECT_EQ(q.number(4), 120000.0);
    EXPECT_EQ(q.number(5), 130000.0);
    EXPECT_EQ(q.number(6), 9.0);
    EXPECT_EQ(q.integer(7), 31);
    EXPECT_EQ(q.integer(8), 1);
    EXPECT_EQ(q.integer(9), 1);
    EXPECT_EQ(q.integer(10), 1);
    EXPECT_EQ(q.text(11), QStringLiteral("01001"));
    EXPECT_EQ(q.integer(12), 10);
    EXPECT_EQ(q.integer(13), 20);
    EXPECT_EQ(q.text(14), QStringLiteral("A-3"));
    EXPECT_EQ(q.integer(15), 1);
    EXPECT_TRUE(screen->isEditing());
    EXPECT_TRUE(control<QLineEdit>(screen.get(), QStringLiteral("txtBarcode"))->isReadOnly());

    ASSERT_EQ(hook.saved.size(), 1);
    EXPECT_EQ(hook.saved.first().barcode, QStringLiteral("6260000000017"));

    // The next new article is proposed the barcode after it.
    control<QPushButton>(screen.get(), QStringLiteral("cmdNew"))->click();
    EXPECT_EQ(control<QLineEdit>(screen.get(), QStringLiteral("txtBarcode"))->text(),
              QStringLiteral("6260000000018"));
    EXPECT_TRUE(control<QLineEdit>(screen.get(), QStringLiteral("txtLevel1"))->text().isEmpty());
}

// The refusals themselves are the repository's (tested under data); the screen shows
// them and stays on the new article.
TEST_P(frmGoodTest, ARefusedSaveShowsTheMessageAndSavesNothing) {
    ASSERT_TRUE(exec(QStringLiteral("INSERT INTO Goods (EAN_Code, Name) VALUES ('777', 'Old')")));
    auto screen = openGood();
    typeArticle(*screen, QStringLiteral("777"), QStringLiteral("نان"), QStringLiteral("1000"));
    control<QPushButton>(screen.get(), QStringLiteral("cmdSave"))->click();
    ASSERT_EQ(messages().count(), 1);
    EXPECT_EQ(messages().messages().first().text, goodsmessages::kBarcodeTaken);
    EXPECT_EQ(messages().messages().first().style, MessageStyle::Critical);
    EXPECT_EQ(goodsRows(), 1);
    EXPECT_FALSE(screen->isEditing());
    EXPECT_TRUE(hook.saved.isEmpty());
}

SANDOGH_INSTANTIATE_SQLITE_ONLY(frmGoodTest);

}  // namespace
}  // namespace sandogh
