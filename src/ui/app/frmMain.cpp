#include "ui/app/frmMain.h"

#include <QAction>
#include <QCloseEvent>
#include <QIcon>
#include <QLabel>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMenuBar>
#include <QPixmap>
#include <QPushButton>
#include <QStatusBar>
#include <algorithm>

#include "app/AppContext.h"
#include "app/CompanionPrograms.h"
#include "app/ShopInfo.h"
#include "devices/CashDrawer.h"
#include "devices/DeviceConfigs.h"
#include "devices/GeneralPorts.h"
#include "settings/MessageService.h"
#include "ui/app/MainMenuCommands.h"

namespace sandogh {

namespace {

// The share of the MDI area a child window opens with, at least.
constexpr double kChildShare = 0.85;
// Set to true on a screen that opens maximized in the main window.
constexpr const char* kWholeAreaProperty = "wholeArea";
constexpr int kCascadeStep = 28;

// Child windows show no icon (the platform would put its own there).
QIcon blankIcon() {
    QPixmap blank(16, 16);
    blank.fill(Qt::transparent);
    return QIcon(blank);
}

QLabel* statusPanel(const QString& name, QWidget* parent) {
    auto* label = new QLabel(parent);
    label->setObjectName(name);
    label->setContentsMargins(8, 0, 8, 0);
    return label;
}

}  // namespace

frmMain::frmMain(AppContext& context, QWidget* parent) : QMainWindow(parent), m_context(context) {
    setObjectName(QStringLiteral("frmMain"));
    setLayoutDirection(Qt::RightToLeft);
    setWindowTitle(QStringLiteral("صندوق"));

    mdiMain = new QMdiArea(this);
    mdiMain->setObjectName(QStringLiteral("mdiMain"));
    mdiMain->setHorizontalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    mdiMain->setVerticalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    mdiMain->setBackground(QColor(0xe6, 0xe9, 0xed));
    setCentralWidget(mdiMain);

    // The drawer button sits in the status bar rather than on a tool bar of its own: on a
    // 768-pixel screen the sale screen needs that height for its rows, and a maximized screen
    // takes the menu bar's corners for its own buttons.
    cmdCashDraw = new QPushButton(QStringLiteral("کشوی پول"), this);
    cmdCashDraw->setObjectName(QStringLiteral("cmdCashDraw"));
    cmdCashDraw->setToolTip(QStringLiteral("باز کردن کشوی پول"));
    cmdCashDraw->setFocusPolicy(Qt::NoFocus);
    cmdCashDraw->setStyleSheet(QStringLiteral("QPushButton { padding: 1px 14px; }"));
    connect(cmdCashDraw, &QPushButton::clicked, this, &frmMain::openCashDrawer);

    buildMenus();

    buildStatusBar();
    statusBar()->addPermanentWidget(cmdCashDraw);
    resize(1100, 720);
}

frmMain::~frmMain() = default;

void frmMain::buildMenus() {
    QHash<MainMenu, QMenu*> menus;
    for (MainMenu menu : MainMenuCommands::menus()) {
        QMenu* m = menuBar()->addMenu(MainMenuCommands::menuCaption(menu));
        m->setObjectName(QStringLiteral("mnu%1").arg(static_cast<int>(menu)));
        menus.insert(menu, m);
        m_menus << m;
    }
    for (const MainMenuCommand& command : MainMenuCommands::all()) {
        QAction* action = menus.value(command.menu)->addAction(command.caption);
        action->setObjectName(command.name);
        if (!command.shortcut.isEmpty()) {
            action->setShortcut(command.shortcut);
        }
        const QString name = command.name;
        connect(action, &QAction::triggered, this, [this, name] { runCommand(name); });
        m_runs.insert(command.name, command.run);
        m_actions.insert(command.name, action);
        m_actionPermissions.insert(command.name, command.permission);
    }
    // Nothing shows until the user's permissions are known.
    applyPermissions(Permissions(PermissionLevel::Cashier));
}

void frmMain::buildStatusBar() {
    stbUser = statusPanel(QStringLiteral("stbUser"), this);
    stbStation = statusPanel(QStringLiteral("stbStation"), this);
    stbDate = statusPanel(QStringLiteral("stbDate"), this);
    stbVersion = statusPanel(QStringLiteral("stbVersion"), this);
    stbPort = statusPanel(QStringLiteral("stbPort"), this);
    // User, cash desk and day from the start of the line; version and port at its end.
    for (QLabel* panel : {stbUser, stbStation, stbDate}) {
        statusBar()->addWidget(panel);
    }
    for (QLabel* panel : {stbPort, stbVersion}) {
        statusBar()->addPermanentWidget(panel);
    }
}

void frmMain::Form_Load() {
    const UserAccount& user = m_context.user();
    stbUser->setText(QStringLiteral("کاربر: ") + (user.name.isEmpty() ? user.userName : user.name));
    const Station& station = m_context.station();
    stbStation->setText(QStringLiteral("صندوق: ") +
                        (station.name.isEmpty() ? QString::number(station.id) : station.name));
    stbDate->setText(m_context.todayWeekday() + QLatin1Char(' ') + m_context.todayJalali());
    stbVersion->setText(m_context.versionText());

    if (m_context.hasDatabase()) {
        ShopInfo shop(m_context.database());
        m_context.setDisplayGreeting(shop.displayGreeting());
        setWindowTitle(QStringLiteral("صندوق — ") + shop.shopName());
    }

    // The ports are configured by the first start-up branch that applies, then opened.
    // The caller ID's polling belongs to the caller ID screen, which is not part of this
    // program yet.
    delete m_ports;
    m_ports = new GeneralPorts(DeviceConfigs::generalPorts(m_context.machineSettings()), this);
    m_ports->load();
    stbPort->setText(m_ports->statusText());
    stbPort->setVisible(!stbPort->text().isEmpty());
}

void frmMain::applyPermissions(const Permissions& permissions) {
    m_permissions = permissions;
    for (auto it = m_actions.cbegin(); it != m_actions.cend(); ++it) {
        const bool allowed = permissions.allows(m_actionPermissions.value(it.key()));
        it.value()->setVisible(allowed);
        it.value()->setEnabled(allowed);
    }
    for (QMenu* menu : m_menus) {
        bool any = false;
        for (const QAction* action : menu->actions()) {
            any = any || action->isVisible();
        }
        menu->menuAction()->setVisible(any);
    }
    const bool drawer = permissions.allows(Permission::OpenDrawer);
    cmdCashDraw->setVisible(drawer);
    cmdCashDraw->setEnabled(drawer);
}

bool frmMain::runCommand(const QString& name) {
    const auto run = m_runs.constFind(name);
    if (run == m_runs.cend()) {
        return false;
    }
    if (!m_permissions.allows(m_actionPermissions.value(name))) {
        m_context.messages().show(QStringLiteral("شما اجازه باز کردن این بخش را ندارید."),
                                  MessageStyle::Warning);
        return false;
    }
    run.value()(*this);
    return true;
}

bool frmMain::switchUser() {
    if (m_exiting) {
        return false;
    }
    mdiMain->closeAllSubWindows();
    // A screen that refused to close (a sale the person kept) keeps the user here.
    for (QMdiSubWindow* window : mdiMain->subWindowList()) {
        if (window->isVisible()) {
            return false;
        }
    }
    m_exiting = true;
    ClosePort();
    hide();
    emit switchUserRequested();
    return true;
}

void frmMain::openCashDrawer() {
    CashDrawer drawer(DeviceConfigs::drawer(m_context.machineSettings(), m_context.programFolder()),
                      m_context.rawPrinter(), m_context.launcher(), m_context.messages());
    drawer.open();
}

void frmMain::mnuScale_Click() {
    CompanionPrograms programs(m_context.machineSettings(), m_context.launcher(),
                               m_context.programFolder());
    if (!programs.startScaleProgram()) {
        m_context.messages().show(
            QStringLiteral("برنامه ترازو پیدا نشد:\n") + programs.scaleProgram(),
            MessageStyle::Information);
    }
}

QWidget* frmMain::openChild(const QString& name, const std::function<QWidget*()>& create) {
    if (QMdiSubWindow* open = m_children.value(name); open != nullptr) {
        if (open->widget()->property(kWholeAreaProperty).toBool()) {
            open->showMaximized();
        } else {
            open->showNormal();
        }
        mdiMain->setActiveSubWindow(open);
        return open->widget();
    }
    QWidget* screen = create();
    if (screen->objectName().isEmpty()) {
        screen->setObjectName(name);
    }
    QMdiSubWindow* window = mdiMain->addSubWindow(screen);
    window->setAttribute(Qt::WA_DeleteOnClose);
    window->setWindowTitle(screen->windowTitle());
    window->setWindowIcon(blankIcon());
    // A screen that closes itself (its own exit button) takes its frame with it.
    screen->installEventFilter(this);
    m_children.insert(name, window);
    // Lists and forms get most of the area rather than their smallest size, from its right
    // (reading) side, each one a step below and aside the one opened before.
    const QSize area = mdiMain->viewport()->size();
    window->resize(window->sizeHint().expandedTo(area * kChildShare).boundedTo(area));
    const int step = kCascadeStep * static_cast<int>(mdiMain->subWindowList().size() - 1);
    const int x = std::max(0, area.width() - window->width() - step);
    window->move(isRightToLeft() ? x : std::min(step, area.width() - window->width()),
                 std::min(step, std::max(0, area.height() - window->height())));
    // A cash desk screen takes the whole area, its title joining the menu bar.
    if (screen->property(kWholeAreaProperty).toBool()) {
        window->showMaximized();
    } else {
        window->show();
    }
    mdiMain->setActiveSubWindow(window);
    return screen;
}

bool frmMain::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::Hide) {
        for (const QPointer<QMdiSubWindow>& child : std::as_const(m_children)) {
            if (child == nullptr || child->widget() != watched) {
                continue;
            }
            // Minimising or shading a child hides its screen too; only a screen hidden while
            // its frame stays open has closed itself. Decided once the hiding is over.
            QPointer<QMdiSubWindow> window = child;
            QMetaObject::invokeMethod(
                this,
                [window] {
                    if (window != nullptr && window->isVisible() && !window->isMinimized() &&
                        !window->isShaded() && window->widget() != nullptr &&
                        !window->widget()->isVisible()) {
                        window->close();
                    }
                },
                Qt::QueuedConnection);
            break;
        }
    }
    return QMainWindow::eventFilter(watched, event);
}

void frmMain::OpenPort() {
    if (m_ports != nullptr) {
        m_ports->OpenPort();
    }
}

void frmMain::ClosePort() {
    if (m_ports != nullptr) {
        m_ports->ClosePort();
    }
}

void frmMain::ExitApplication() {
    if (m_exiting) {
        return;
    }
    m_exiting = true;
    ClosePort();
    mdiMain->closeAllSubWindows();
    close();
    emit exited();
}

void frmMain::closeEvent(QCloseEvent* event) {
    if (!m_exiting) {
        ExitApplication();
    }
    event->accept();
}

}  // namespace sandogh
