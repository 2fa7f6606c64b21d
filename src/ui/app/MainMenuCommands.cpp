#include "ui/app/MainMenuCommands.h"

#include "app/AppContext.h"
#include "ui/app/frmMain.h"
#include "ui/settings/frmSetUp.h"

namespace sandogh {

namespace {

// Opens Screen(context) as a child window of the main window, or brings the open one
// forward. For screens whose constructor takes the application context and a parent.
template <typename Screen>
std::function<void(frmMain&)> screen(const QString& name) {
    return [name](frmMain& main) {
        main.openChild(name, [&main] { return new Screen(main.context()); });
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
    // Screens of the form frmX(AppContext&) are added as
    //   {"mnuX", caption, menu, permission, screen<frmX>("frmX")},
    return {
        {QStringLiteral("mnuSetUp"), QStringLiteral("تنظیمات این صندوق"), MainMenu::System,
         Permission::SetUp, openSetUp},
        {QStringLiteral("mnuExit"), QStringLiteral("خروج"), MainMenu::System,
         Permission::LeaveProgram, [](frmMain& main) { main.ExitApplication(); },
         QKeySequence(Qt::ALT | Qt::Key_F4)},
        {QStringLiteral("mnuOpenCash"), QStringLiteral("باز کردن کشوی پول"), MainMenu::Sales,
         Permission::OpenDrawer, [](frmMain& main) { main.mnuOpenCash_Click(); },
         QKeySequence(Qt::CTRL | Qt::Key_K)},
        {QStringLiteral("mnuScale"), QStringLiteral("برنامه ترازو"), MainMenu::Tools,
         Permission::ScaleProgram, [](frmMain& main) { main.mnuScale_Click(); }},
    };
}

}  // namespace sandogh
