// The catalogue and party screens as the main window makes them from the program's
// context: the demo shop's database, and the scales' export of this machine's settings.

#include <gtest/gtest.h>

#include <QLineEdit>
#include <QPushButton>
#include <memory>

#include "ScreenTestContext.h"
#include "TypeText.h"
#include "data/Session.h"
#include "data/schema/ShopSchema.h"
#include "settings/SettingKeys.h"
#include "ui/catalog/CatalogScreens.h"
#include "ui/catalog/GoodsListModel.h"
#include "ui/catalog/frmCodeParameters.h"
#include "ui/catalog/frmGood.h"
#include "ui/catalog/frmGoodsList.h"
#include "ui/catalog/frmParameters.h"
#include "ui/parties/frmCustomerGroup.h"
#include "ui/parties/frmParties.h"

namespace sandogh {
namespace {

class CatalogScreensTest : public ::testing::Test {
protected:
    void SetUp() override {
        ASSERT_TRUE(app.openShop(true));
        UserAccount user;
        user.id = 4;
        user.userName = QStringLiteral("manager");
        app.context.setUser(user);
    }

    qint64 number(const QString& sql) {
        Session s = app.context.database().session();
        return s.scalarInt64(sql);
    }

    test::ScreenTestContext app;
};

TEST_F(CatalogScreensTest, EveryScreenOpensOnTheDemoShop) {
    std::unique_ptr<frmParameters> units(CatalogScreens::parameters(app.context, 61));
    EXPECT_EQ(units->values().size(), number(QStringLiteral("SELECT COUNT(*) FROM Types WHERE "
                                                            "TypeNo = 61")));
    EXPECT_FALSE(units->values().isEmpty());
    std::unique_ptr<frmCodeParameters> levels(
        CatalogScreens::codeLevels(app.context, CodeLevelsRepository::Family::Accounts));
    EXPECT_EQ(levels->family(), CodeLevelsRepository::Family::Accounts);
    std::unique_ptr<frmGoodsList> goods(CatalogScreens::goodsList(app.context));
    EXPECT_EQ(goods->model()->rowCount(),
              qMin<qint64>(GoodsListModel::kPageRows, number(QStringLiteral("SELECT COUNT(*) "
                                                                            "FROM Goods"))));
    std::unique_ptr<frmParties> customers(CatalogScreens::parties(app.context, 10));
    std::unique_ptr<frmParties> suppliers(CatalogScreens::parties(app.context, 11));
    EXPECT_EQ(customers->parties().size(),
              number(QStringLiteral("SELECT COUNT(*) FROM Types WHERE TypeNo = 10")));
    EXPECT_EQ(suppliers->parties().size(),
              number(QStringLiteral("SELECT COUNT(*) FROM Types WHERE TypeNo = 11")));
    std::unique_ptr<frmCustomerGroup> groups(CatalogScreens::customerGroups(app.context));
    EXPECT_EQ(groups->groups().size(),
              number(QStringLiteral("SELECT COUNT(*) FROM tblCustomerGroup")));
}

TEST_F(CatalogScreensTest, AGoodSavedFeedsTheScalesThisMachineHasTurnedOn) {
    ASSERT_TRUE(app.settings.write(QStringLiteral("Scale"), QStringLiteral("IsActiveTakin"),
                                   QStringLiteral("1")));
    std::unique_ptr<frmGood> good(CatalogScreens::good(app.context));
    good->show();
    auto* barcode = good->findChild<QLineEdit*>(QStringLiteral("txtBarcode"));
    barcode->clear();
    test::typeText(barcode, QStringLiteral("2999001"));
    test::typeText(good->findChild<QLineEdit*>(QStringLiteral("txtName")), QStringLiteral("کره"));
    test::typeText(good->findChild<QLineEdit*>(QStringLiteral("txtSpecCode")),
                   QStringLiteral("901"));
    test::typeText(good->findChild<QLineEdit*>(QStringLiteral("txtCost")), QStringLiteral("85000"));
    ASSERT_TRUE(good->save());
    Session s = app.context.database().session();
    const QString items =
        s.dialect().table(QStringLiteral("Items"), QString::fromLatin1(kOnlineSalesDatabase));
    EXPECT_EQ(s.scalarInt64(QStringLiteral("SELECT Price FROM ") + items +
                            QStringLiteral(" WHERE Code = 901")),
              85000);
    EXPECT_EQ(s.scalarInt64(QStringLiteral("SELECT UserID FROM Price_History WHERE "
                                           "EAN_CODE = '2999001'")),
              4);
}

}  // namespace
}  // namespace sandogh
