#include <gtest/gtest.h>

#include <QComboBox>
#include <QPushButton>
#include <QScrollBar>
#include <QTableView>

#include "CatalogScreenFixture.h"
#include "data/Transaction.h"
#include "data/repositories/GoodsMessages.h"
#include "ui/catalog/GoodsListModel.h"
#include "ui/catalog/frmGood.h"
#include "ui/catalog/frmGoodsList.h"

namespace sandogh {
namespace {

class frmGoodsListTest : public test::CatalogScreenFixture {
protected:
    static constexpr int kArticles = 450;

    void SetUp() override {
        CatalogScreenFixture::SetUp();
        if (HasFatalFailure()) {
            return;
        }
        Session s = database->session();
        Transaction tx(s);
        ASSERT_TRUE(tx.isActive());
        for (int i = 0; i < kArticles; ++i) {
            ASSERT_TRUE(s.exec(
                QStringLiteral("INSERT INTO Goods (EAN_Code, Spec_Code, Name, NameKey, Cost, "
                               "ISActive) VALUES (:b, :s, :n, :n, :c, 1)"),
                {{QStringLiteral(":b"), QStringLiteral("62600%1").arg(i, 5, 10, QLatin1Char('0'))},
                 {QStringLiteral(":s"), QString::number(i % 50)},
                 // Persian letters and ASCII digits: the name is its own search form.
                 {QStringLiteral(":n"),
                  i % 10 == 0 ? QStringLiteral("چای %1").arg(i) : QStringLiteral("برنج %1").arg(i)},
                 {QStringLiteral(":c"), 1000 + i}}));
        }
        ASSERT_TRUE(tx.commit());
    }

    std::unique_ptr<frmGoodsList> openList() {
        auto screen = std::make_unique<frmGoodsList>(*database, messages, clock, 1, nullptr);
        screen->show();
        return screen;
    }
};

TEST_F(frmGoodsListTest, OpensWithOnePageAndReadsMoreAsTheGridScrolls) {
    auto screen = openList();
    GoodsListModel* model = screen->model();
    EXPECT_EQ(model->rowCount(), GoodsListModel::kPageRows);
    EXPECT_EQ(model->pagesRead(), 1);
    EXPECT_TRUE(model->canFetchMore({}));
    EXPECT_EQ(screen->currentBarcode(), QStringLiteral("6260000000"));

    auto* grid = control<QTableView>(screen.get(), QStringLiteral("grdGoods"));
    // Scrolling to the end of what is read asks for the next page.
    for (int i = 0; i < 10 && model->canFetchMore({}); ++i) {
        grid->scrollToBottom();
        QApplication::processEvents();
    }
    EXPECT_EQ(model->rowCount(), kArticles);
    EXPECT_FALSE(model->canFetchMore({}));
    EXPECT_EQ(model->row(kArticles - 1).barcode, QStringLiteral("6260000449"));
}

TEST_F(frmGoodsListTest, SearchesByTheChosenColumn) {
    auto screen = openList();
    auto* column = control<QComboBox>(screen.get(), QStringLiteral("cboSearchColumn"));
    GoodsListModel* model = screen->model();
    struct Case {
        int column;  // barcode, special code, name
        const char* text;
        int rows;
        const char* first;
    };
    const Case cases[] = {
        {0, "626000012", 10, "6260000120"},
        {0, "6260000449", 1, "6260000449"},
        {1, "49", 9, "6260000049"},
        {2, "چای", 45, "6260000000"},
        {2, "برنج 44", 10, "6260000044"},  // 440 is a tea
        {2, "قهوه", 0, ""},
    };
    for (const Case& c : cases) {
        column->setCurrentIndex(c.column);
        typeInto<QLineEdit>(screen.get(), QStringLiteral("txtSearch"), QString::fromUtf8(c.text));
        EXPECT_EQ(model->rowCount(), c.rows) << c.text;
        EXPECT_EQ(screen->currentBarcode(), QString::fromLatin1(c.first)) << c.text;
    }
}

TEST_F(frmGoodsListTest, TheSelectedArticleOpensAndItsSaveShowsInTheList) {
    auto screen = openList();
    ASSERT_TRUE(screen->selectBarcode(QStringLiteral("6260000007")));
    control<QPushButton>(screen.get(), QStringLiteral("cmdEdit"))->click();
    auto* good = openChild<frmGood>(screen.get());
    ASSERT_NE(good, nullptr);
    EXPECT_TRUE(good->isEditing());
    EXPECT_EQ(control<QLineEdit>(good, QStringLiteral("txtName"))->text(),
              QStringLiteral("برنج 7"));
    typeInto<QLineEdit>(good, QStringLiteral("txtName"), QStringLiteral("برنج طارم"));
    ASSERT_TRUE(good->save());
    EXPECT_EQ(screen->currentBarcode(), QStringLiteral("6260000007"));
    const int row = screen->model()->rowOf(QStringLiteral("6260000007"));
    ASSERT_GE(row, 0);
    EXPECT_EQ(screen->model()->row(row).name, QStringLiteral("برنج طارم"));
}

TEST_F(frmGoodsListTest, ArticlesAreTakenOutOfUseOrDeletedFromTheList) {
    ASSERT_TRUE(
        exec(QStringLiteral("INSERT INTO Whs_QTYDocD (Code, EAN_Code, Qty) VALUES "
                            "(1, '6260000001', 1)")));
    auto screen = openList();
    messages.answer = true;

    ASSERT_TRUE(screen->selectBarcode(QStringLiteral("6260000002")));
    control<QPushButton>(screen.get(), QStringLiteral("cmdDeactivate"))->click();
    EXPECT_EQ(shownTexts(), QStringList({goodsmessages::kDeactivateConfirm}));
    EXPECT_EQ(number(QStringLiteral("SELECT ISActive FROM Goods WHERE EAN_Code = '6260000002'")),
              0);
    EXPECT_FALSE(screen->model()->row(2).active);

    messages.shown.clear();
    ASSERT_TRUE(screen->selectBarcode(QStringLiteral("6260000001")));
    control<QPushButton>(screen.get(), QStringLiteral("cmdDelete"))->click();
    EXPECT_EQ(shownTexts(), QStringList({goodsmessages::inDocumentsRefusal(),
                                         goodsmessages::kDeactivateQuestion}));
    EXPECT_EQ(number(QStringLiteral("SELECT ISActive FROM Goods WHERE EAN_Code = '6260000001'")),
              0);

    messages.shown.clear();
    ASSERT_TRUE(screen->selectBarcode(QStringLiteral("6260000003")));
    control<QPushButton>(screen.get(), QStringLiteral("cmdDelete"))->click();
    EXPECT_EQ(number(QStringLiteral("SELECT COUNT(*) FROM Goods WHERE EAN_Code = '6260000003'")),
              0);
    EXPECT_EQ(screen->model()->rowOf(QStringLiteral("6260000003")), -1);
    EXPECT_EQ(number(QStringLiteral("SELECT COUNT(*) FROM Goods")), kArticles - 1);
}

}  // namespace
}  // namespace sandogh
