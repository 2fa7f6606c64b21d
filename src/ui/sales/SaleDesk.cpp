#include "ui/sales/SaleDesk.h"

#include <QAction>

#include "app/AppContext.h"
#include "devices/CompanionHandOff.h"
#include "devices/CustomerDisplay.h"
#include "devices/DeviceConfigs.h"
#include "devices/GeneralPorts.h"
#include "devices/PecTerminal.h"
#include "devices/SqlPosPaymentRecorder.h"
#include "devices/WeightService.h"
#include "sales/CustomerDisplayTotal.h"
#include "sales/GiftCardService.h"
#include "sales/LoyaltyGift.h"
#include "sales/PaymentAccounts.h"
#include "sales/SaleReceipt.h"
#include "sales/SaleSaver.h"
#include "sales/SaleSession.h"
#include "sales/TerminalHandOffs.h"
#include "ui/app/frmMain.h"
#include "ui/catalog/CatalogScreens.h"
#include "ui/catalog/frmGood.h"
#include "ui/sales/QtReceiptPrinter.h"
#include "ui/sales/SaleDeskActions.h"
#include "ui/sales/frmSale.h"

namespace sandogh {

namespace {

const char* const kDeskName = "saleDesk";

}  // namespace

SaleDesk::SaleDesk(AppContext& context, GeneralPorts* generalPorts, frmSale& screen)
    : QObject(&screen) {
    setObjectName(QString::fromLatin1(kDeskName));
    MachineSettings& settings = context.machineSettings();
    if (generalPorts == nullptr) {
        // Without the main window's ports the line displays have nothing to write to.
        m_ownPorts = std::make_unique<GeneralPorts>(GeneralPortsConfig{});
        generalPorts = m_ownPorts.get();
    }
    DisplayConfig display = DeviceConfigs::display(settings);
    display.greeting =
        context.displayGreeting().isEmpty() ? display.greeting : context.displayGreeting();
    m_display = new CustomerDisplay(display, *generalPorts, this);
    m_total = std::make_unique<CustomerDisplayTotal>(*m_display);

    m_recorder = std::make_unique<SqlPosPaymentRecorder>(context.database());
    m_pec = new PecTerminal(
        DeviceConfigs::pec(settings), *m_recorder, context.messages(), context.clock(),
        [&context] { return context.todayJalali(); }, this);
    m_weight = new WeightService(DeviceConfigs::weightService(settings), this);
    m_companion = std::make_unique<CompanionHandOff>(
        context.launcher(), settings.companionProgramPath(context.programFolder()));

    m_handOffs = std::make_unique<TerminalHandOffs>(*m_companion);

    m_pagePrinter = std::make_unique<QtReceiptPrinter>();
    m_receipt = std::make_unique<SaleReceipt>(context.database(), settings, context.messages(),
                                              context.launcher(), context.programFolder(),
                                              &context.rawPrinter(), m_pagePrinter.get());
    m_saver = std::make_unique<SaleSaver>(context.database(), settings, context.messages(),
                                          context.clock());
    m_saver->setCompanion(m_companion.get());
    m_saver->setReceiptHook(
        [this](const SaleSaveResult& saved, const SaleSession&, const SaleSettlement& settlement) {
            ReceiptOptions options;
            options.giftDiscount = settlement.loyaltyGift;
            options.giftPrint = settlement.giftPrint;
            options.a4 = settlement.a4Print;
            if (settlement.handedOver > 0) {
                options.handedOver = settlement.handedOver;
            }
            m_receipt->print(saved.code, options);
        });
    m_cards = std::make_unique<GiftCardService>(context.database(), context.messages());
    m_cards->setCentralDatabase(GiftCardService::centralDatabaseOf(settings));

    m_actions = new SaleDeskActions(screen, context.messages(), this);
    m_actions->setPecTerminal(m_pec);
    m_actions->setTerminalHandOffs(m_handOffs.get());
    m_actions->setSaver(m_saver.get());
    m_actions->setGiftCards(m_cards.get());
    m_accounts = std::make_unique<PaymentAccounts>(context.database());
    m_actions->setPaymentAccounts(m_accounts.get());
    m_loyalty = std::make_unique<LoyaltyGift>(context.database(), settings, context.messages());
    m_actions->setLoyaltyGift(m_loyalty.get());
    connect(&screen, &frmSale::loyaltyGiftRequested, m_actions, &SaleDeskActions::giveLoyaltyGift);
}

SaleDesk::~SaleDesk() = default;

frmSale* SaleDesk::create(AppContext& context, GeneralPorts* generalPorts, QWidget* parent) {
    auto* screen = new frmSale(context.database(), context.machineSettings(), context.messages(),
                               context.clock(), parent);
    SaleSession& sale = screen->session();
    sale.setStation(context.station().id);
    sale.setUser(context.user().id, context.user().userName);
    auto* desk = new SaleDesk(context, generalPorts, *screen);
    screen->setActions(desk->m_actions);
    screen->setCustomerDisplay(desk->m_display);
    screen->setTotalDisplay(desk->m_total.get());
    screen->setWeightService(desk->m_weight);
    desk->m_actions->showNewDocument();
    // A return is numbered in its own run: switching shows the number it will get.
    QObject::connect(&sale, &SaleSession::modeChanged, desk,
                     [desk] { desk->m_actions->showNewDocument(); });
    return screen;
}

SaleDesk* SaleDesk::of(const frmSale& screen) {
    return screen.findChild<SaleDesk*>(QString::fromLatin1(kDeskName), Qt::FindDirectChildrenOnly);
}

frmSale* SaleDesk::open(frmMain& main) {
    return openNamed(main, QStringLiteral("frmSale"));
}

frmSale* SaleDesk::openAnother(frmMain& main) {
    // Each further screen has a name of its own, so that none is merely brought forward.
    static int opened = 0;
    return openNamed(main, QStringLiteral("frmSale/%1").arg(++opened));
}

frmSale* SaleDesk::openNamed(frmMain& main, const QString& name) {
    QWidget* child = main.openChild(name, [&main]() -> QWidget* {
        frmSale* screen = create(main.context(), main.ports());
        SaleDesk* desk = of(*screen);
        // The drawer goes through the main window's one entry.
        desk->m_actions->setDrawer([&main] { main.openCashDrawer(); });
        // The keys and buttons that open other screens ask the user's permissions, as the
        // main window holds them.
        screen->setAccess(
            [&main](Permission permission) { return main.permissions().allows(permission); });
        connect(screen, &frmSale::newSaleFormRequested, &main, [&main] { openAnother(main); });
        // Ctrl+P: frmDeleteFactor through its menu command (the screen has checked the
        // permission; the main window checks it again).
        connect(screen, &frmSale::deleteInvoiceRequested, &main,
                [&main] { main.runCommand(QStringLiteral("mnuDeleteFactor")); });
        connect(screen, &frmSale::goodDefinitionRequested, &main, [&main] {
            main.openChild(QStringLiteral("frmGood"),
                           [&main] { return CatalogScreens::good(main.context()); });
        });
        return screen;
    });
    return qobject_cast<frmSale*>(child);
}

}  // namespace sandogh
