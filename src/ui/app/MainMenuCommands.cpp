#include "ui/app/MainMenuCommands.h"

#include "app/AppContext.h"
#include "ui/app/frmMain.h"
#include "ui/catalog/CatalogScreens.h"
#include "ui/catalog/frmCodeParameters.h"
#include "ui/catalog/frmGoodsList.h"
#include "ui/catalog/frmParameters.h"
#include "ui/parties/frmCustomerGroup.h"
#include "ui/parties/frmParties.h"
#include "ui/reports/frmReports.h"
#include "ui/sales/SaleDesk.h"
#include "ui/sales/frmShift.h"
#include "ui/settings/frmSetUp.h"

namespace sandogh {

namespace {

// Opens the child window called name, made from the context by make, or brings the open one
// forward.
std::function<void(frmMain&)> child(const QString& name,
                                    std::function<QWidget*(AppContext&)> make) {
    return [name, make](frmMain& main) {
        main.openChild(name, [&main, &make] { return make(main.context()); });
    };
}

void openSetUp(frmMain& main) {
    main.openChild(QStringLiteral("frmSetUp"), [&main]() -> QWidget* {
        AppContext& context = main.context();
        QList<SettingsStore*> stores{&context.settingsStore()};
        if (context.transferSettingsStore() != nullptr) {
            stores << context.transferSettingsStore();
        }
        return new frmSetUp(stores, context.programFolder(), context.messages());
    });
}

}  // namespace

QList<MainMenu> MainMenuCommands::menus() {
    return {MainMenu::System,    MainMenu::Sales,   MainMenu::Goods, MainMenu::Customers,
            MainMenu::Purchases, MainMenu::Reports, MainMenu::Tools};
}

QString MainMenuCommands::menuCaption(MainMenu menu) {
    switch (menu) {
        case MainMenu::System:
            return QStringLiteral("سیستم");
        case MainMenu::Sales:
            return QStringLiteral("فروش");
        case MainMenu::Goods:
            return QStringLiteral("کالا");
        case MainMenu::Customers:
            return QStringLiteral("مشتریان");
        case MainMenu::Purchases:
            return QStringLiteral("خرید و انبار");
        case MainMenu::Reports:
            return QStringLiteral("گزارش‌ها");
        case MainMenu::Tools:
            return QStringLiteral("ابزار");
    }
    return {};
}

QList<MainMenuCommand> MainMenuCommands::all() {
    using Family = CodeLevelsRepository::Family;
    // A screen is one line: action name, caption, menu, permission, and how it opens.
    return {
        {QStringLiteral("mnuSetUp"), QStringLiteral("تنظیمات این صندوق"), MainMenu::System,
         Permission::SetUp, openSetUp},
        {QStringLiteral("mnuAccountLevels"), QStringLiteral("سطوح کد حساب"), MainMenu::System,
         Permission::CodeLevels,
         child(QStringLiteral("frmCodeParameters/Accounts"),
               [](AppContext& c) { return CatalogScreens::codeLevels(c, Family::Accounts); })},
        {QStringLiteral("mnuExit"), QStringLiteral("خروج"), MainMenu::System,
         Permission::LeaveProgram, [](frmMain& main) { main.ExitApplication(); },
         QKeySequence(Qt::ALT | Qt::Key_F4)},
        {QStringLiteral("mnuSale"), QStringLiteral("فاکتور فروش"), MainMenu::Sales,
         Permission::Sale, [](frmMain& main) { SaleDesk::open(main); }},
        {QStringLiteral("mnuOpenCash"), QStringLiteral("باز کردن کشوی پول"), MainMenu::Sales,
         Permission::OpenDrawer, [](frmMain& main) { main.mnuOpenCash_Click(); },
         QKeySequence(Qt::CTRL | Qt::Key_K)},
        {QStringLiteral("mnuShift"), QStringLiteral("شیفت صندوق"), MainMenu::Sales,
         Permission::Shift,
         child(QStringLiteral("frmShift"),
               [](AppContext& c) { return new frmShift(c.database(), c.messages()); })},
        {QStringLiteral("mnuGoodsList"), QStringLiteral("فهرست کالاها"), MainMenu::Goods,
         Permission::Goods,
         child(QStringLiteral("frmGoodsList"),
               [](AppContext& c) { return CatalogScreens::goodsList(c); })},
        {QStringLiteral("mnuGoodsLevels"), QStringLiteral("سطوح کد کالا"), MainMenu::Goods,
         Permission::CodeLevels,
         child(QStringLiteral("frmCodeParameters/Goods"),
               [](AppContext& c) { return CatalogScreens::codeLevels(c, Family::Goods); })},
        {QStringLiteral("mnuUnits"), QStringLiteral("واحدهای اندازه‌گیری"),
         MainMenu::Goods, Permission::Parameters,
         child(QStringLiteral("frmParameters/61"),
               [](AppContext& c) { return CatalogScreens::parameters(c, 61); })},
        {QStringLiteral("mnuCustomers"), QStringLiteral("مشتریان"), MainMenu::Customers,
         Permission::Customers,
         child(QStringLiteral("frmParties/10"),
               [](AppContext& c) { return CatalogScreens::parties(c, 10); })},
        {QStringLiteral("mnuSuppliers"), QStringLiteral("تأمین‌کنندگان"),
         MainMenu::Customers, Permission::Customers,
         child(QStringLiteral("frmParties/11"),
               [](AppContext& c) { return CatalogScreens::parties(c, 11); })},
        {QStringLiteral("mnuCustomerGroups"), QStringLiteral("گروه‌های مشتری"),
         MainMenu::Customers, Permission::Customers,
         child(QStringLiteral("frmCustomerGroup"),
               [](AppContext& c) { return CatalogScreens::customerGroups(c); })},
        {QStringLiteral("mnuReports"), QStringLiteral("گزارش‌های فروشگاه"),
         MainMenu::Reports, Permission::Reports,
         child(QStringLiteral("frmReports"),
               [](AppContext& c) {
                   return new frmReports(
                       c.database(), c.messages(), &c.errorLog(), c.launcher(),
                       c.machineSettings().companionProgramPath(c.programFolder()),
                       c.todayJalali());
               })},
        {QStringLiteral("mnuScale"), QStringLiteral("برنامه ترازو"), MainMenu::Tools,
         Permission::ScaleProgram, [](frmMain& main) { main.mnuScale_Click(); }},
    };
}

}  // namespace sandogh
