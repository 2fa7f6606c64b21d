#include "ui/app/MainMenuCommands.h"

#include "app/AppContext.h"
#include "app/Permissions.h"
#include "ui/admin/frmBackup.h"
#include "ui/admin/frmNewYear.h"
#include "ui/admin/frmPermissions.h"
#include "ui/admin/frmUsers.h"
#include "ui/app/frmMain.h"
#include "ui/catalog/CatalogScreens.h"
#include "ui/catalog/frmCodeParameters.h"
#include "ui/catalog/frmGoodsList.h"
#include "ui/catalog/frmParameters.h"
#include "ui/parties/frmCustomerGroup.h"
#include "ui/parties/frmParties.h"
#include "ui/purchase/frmBuy.h"
#include "ui/reports/frmReports.h"
#include "ui/sales/SaleDesk.h"
#include "ui/sales/frmDeleteFactor.h"
#include "ui/sales/frmDeleteFactorGroup.h"
#include "ui/sales/frmDeleteFactorInternal.h"
#include "ui/sales/frmRePrint.h"
#include "ui/sales/frmRePrintInter.h"
#include "ui/sales/frmReceiveFactor.h"
#include "ui/sales/frmSaleAudit.h"
#include "ui/sales/frmSaleInter.h"
#include "ui/sales/frmSaleInterList.h"
#include "ui/sales/frmSaleList.h"
#include "ui/sales/frmSaleUpdate.h"
#include "ui/sales/frmShift.h"
#include "ui/sales/frmTransFactor.h"
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

void openBackup(frmMain& main) {
    main.openChild(QStringLiteral("frmBackup"), [&main]() -> QWidget* {
        AppContext& context = main.context();
        auto* screen =
            new frmBackup(context.database(), context.messages(), context.programFolder());
        // The program must not go on with the shop replaced under it.
        QObject::connect(screen, &frmBackup::restored, &main, &frmMain::ExitApplication,
                         Qt::QueuedConnection);
        return screen;
    });
}

// The saved documents of one kind; a sale or return opens in frmSaleUpdate from there
// when the user may edit.
void openSaleList(frmMain& main, int transType) {
    main.openChild(QStringLiteral("frmSaleList/%1").arg(transType), [&main, transType] {
        auto* list = new frmSaleList(main.context(), transType);
        QObject::connect(
            list, &frmSaleList::editRequested, &main,
            [&main](qint64 code, const QString& name, int counter) {
                if (!Permissions(main.context().user().level).allows(Permission::EditSales)) {
                    return;
                }
                auto* editor = qobject_cast<frmSaleUpdate*>(
                    main.openChild(QStringLiteral("frmSaleUpdate"),
                                   [&main] { return new frmSaleUpdate(main.context()); }));
                if (editor != nullptr) {
                    editor->frmSaleUdateSetup(code, name, QString::number(counter));
                }
            });
        return list;
    });
}

// The internal documents of one kind; one opens in frmSaleInterUpdate from there when the
// user may edit.
void openInternalList(frmMain& main, int transType) {
    main.openChild(QStringLiteral("frmSaleInterList/%1").arg(transType), [&main, transType] {
        auto* list = new frmSaleInterList(main.context(), transType);
        QObject::connect(
            list, &frmSaleList::editRequested, &main, [&main](qint64 code, const QString&, int) {
                if (!Permissions(main.context().user().level).allows(Permission::EditSales)) {
                    return;
                }
                frmSaleInter* editor = frmSaleInter::editor(main.context(), code);
                if (editor == nullptr) {
                    return;  // the document could not be read; told already
                }
                // An editor already open on this document is brought forward instead.
                if (main.openChild(QStringLiteral("frmSaleInterUpdate/%1").arg(code),
                                   [editor] { return editor; }) != editor) {
                    delete editor;
                }
            });
        return list;
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

QHash<Permission, QString> MainMenuCommands::permissionCaptions() {
    QHash<Permission, QString> captions;
    for (const MainMenuCommand& command : all()) {
        QString& caption = captions[command.permission];
        caption += (caption.isEmpty() ? QString() : QStringLiteral("، ")) + command.caption;
    }
    return captions;
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
        {QStringLiteral("mnuUsers"), QStringLiteral("کاربران"), MainMenu::System, Permission::Users,
         child(QStringLiteral("frmUsers"),
               [](AppContext& c) { return new frmUsers(c.database(), c.messages()); })},
        {QStringLiteral("mnuPermissions"), QStringLiteral("دسترسی‌ها"), MainMenu::System,
         Permission::Users,
         child(QStringLiteral("frmPermissions"),
               [](AppContext& c) {
                   return new frmPermissions(c.database(), c.messages(),
                                             MainMenuCommands::permissionCaptions());
               })},
        {QStringLiteral("mnuBackup"),
         QStringLiteral("پشتیبان‌گیری و بازگردانی"), MainMenu::System,
         Permission::Backup, openBackup},
        {QStringLiteral("mnuNewYear"), QStringLiteral("سال مالی جدید"), MainMenu::System,
         Permission::FiscalYear,
         child(QStringLiteral("frmNewYear"), [](AppContext& c) { return new frmNewYear(c); })},
        {QStringLiteral("mnuSwitchUser"), QStringLiteral("تعویض کاربر"), MainMenu::System,
         Permission::SwitchUser, [](frmMain& main) { main.switchUser(); }},
        {QStringLiteral("mnuExit"), QStringLiteral("خروج"), MainMenu::System,
         Permission::LeaveProgram, [](frmMain& main) { main.ExitApplication(); },
         QKeySequence(Qt::ALT | Qt::Key_F4)},
        {QStringLiteral("mnuSale"), QStringLiteral("فاکتور فروش"), MainMenu::Sales,
         Permission::Sale, [](frmMain& main) { SaleDesk::open(main); }},
        {QStringLiteral("mnuSaleInter"), QStringLiteral("فاکتور فروش داخلی"), MainMenu::Sales,
         Permission::Sale,
         child(QStringLiteral("frmSaleInter"), [](AppContext& c) { return new frmSaleInter(c); })},
        {QStringLiteral("mnuOpenCash"), QStringLiteral("باز کردن کشوی پول"), MainMenu::Sales,
         Permission::OpenDrawer, [](frmMain& main) { main.openCashDrawer(); },
         QKeySequence(Qt::CTRL | Qt::Key_K)},
        {QStringLiteral("mnuShift"), QStringLiteral("شیفت صندوق"), MainMenu::Sales,
         Permission::Shift,
         child(QStringLiteral("frmShift"),
               [](AppContext& c) { return new frmShift(c.database(), c.messages()); })},
        {QStringLiteral("mnuSaleList"), QStringLiteral("فهرست فاکتورهای فروش"), MainMenu::Sales,
         Permission::Reports, [](frmMain& main) { openSaleList(main, 2); }},
        {QStringLiteral("mnuSaleReturnList"),
         QStringLiteral("فهرست مرجوعی‌های فروش"), MainMenu::Sales,
         Permission::Reports, [](frmMain& main) { openSaleList(main, 3); }},
        {QStringLiteral("mnuRePrint"), QStringLiteral("چاپ مجدد فاکتور"), MainMenu::Sales,
         Permission::Sale,
         child(QStringLiteral("frmRePrint"), [](AppContext& c) { return new frmRePrint(c); })},
        {QStringLiteral("mnuDeleteFactor"), QStringLiteral("حذف فاکتور"), MainMenu::Sales,
         Permission::DeleteSales,
         child(QStringLiteral("frmDeleteFactor"),
               [](AppContext& c) { return new frmDeleteFactor(c); })},
        {QStringLiteral("mnuDeleteFactorGroup"), QStringLiteral("حذف گروهی فاکتورها"),
         MainMenu::Sales, Permission::DeleteSales,
         child(QStringLiteral("frmDeleteFactorGroup"),
               [](AppContext& c) { return new frmDeleteFactorGroup(c); })},
        // The internal documents handed to the branches, under the same permissions as the
        // ordinary ones.
        {QStringLiteral("mnuSaleInterList"), QStringLiteral("فهرست فاکتورهای فروش داخلی"),
         MainMenu::Sales, Permission::Reports, [](frmMain& main) { openInternalList(main, 2); }},
        {QStringLiteral("mnuSaleInterReturnList"),
         QStringLiteral("فهرست مرجوعی‌های فروش داخلی"), MainMenu::Sales,
         Permission::Reports, [](frmMain& main) { openInternalList(main, 3); }},
        {QStringLiteral("mnuRePrintInter"), QStringLiteral("چاپ مجدد فاکتور داخلی"),
         MainMenu::Sales, Permission::Sale,
         child(QStringLiteral("frmRePrintInter"),
               [](AppContext& c) { return new frmRePrintInter(c); })},
        {QStringLiteral("mnuDeleteFactorInternal"), QStringLiteral("حذف فاکتور داخلی"),
         MainMenu::Sales, Permission::DeleteSales,
         child(QStringLiteral("frmDeleteFactorInternal"),
               [](AppContext& c) { return new frmDeleteFactorInternal(c); })},
        {QStringLiteral("mnuSaleAudit"), QStringLiteral("سوابق حذف و ویرایش فاکتورها"),
         MainMenu::Sales, Permission::DeleteSales,
         child(QStringLiteral("frmSaleAudit"), [](AppContext& c) { return new frmSaleAudit(c); })},
        {QStringLiteral("mnuTransFactor"), QStringLiteral("ارسال فاکتور به شعبه"), MainMenu::Sales,
         Permission::Purchases,
         child(QStringLiteral("frmTransFactor"),
               [](AppContext& c) { return new frmTransFactor(c); })},
        {QStringLiteral("mnuReceiveFactor"), QStringLiteral("دریافت فاکتور از مرکز"),
         MainMenu::Purchases, Permission::Purchases,
         child(QStringLiteral("frmReceiveFactor"),
               [](AppContext& c) { return new frmReceiveFactor(c); })},
        {QStringLiteral("mnuBuyList"), QStringLiteral("فهرست فاکتورهای خرید"), MainMenu::Purchases,
         Permission::Reports, [](frmMain& main) { openSaleList(main, 1); }},
        {QStringLiteral("mnuBuyReturnList"),
         QStringLiteral("فهرست مرجوعی‌های خرید"), MainMenu::Purchases,
         Permission::Reports, [](frmMain& main) { openSaleList(main, 4); }},
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
        {QStringLiteral("mnuBuy"), QStringLiteral("خريد کالا"), MainMenu::Purchases,
         Permission::Purchases,
         child(QStringLiteral("frmBuy"), [](AppContext& c) { return frmBuy::create(c, false); })},
        {QStringLiteral("mnuBuyReturn"), QStringLiteral("برگشت از خريد"), MainMenu::Purchases,
         Permission::Purchases,
         child(QStringLiteral("frmBuy/Return"),
               [](AppContext& c) { return frmBuy::create(c, true); })},
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
