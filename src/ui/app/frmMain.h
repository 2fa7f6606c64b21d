#pragma once

#include <QHash>
#include <QMainWindow>
#include <QPointer>
#include <QString>
#include <functional>

#include "app/Permissions.h"
#include "ui/app/MainMenuCommand.h"

class QAction;
class QLabel;
class QMdiArea;
class QMenu;
class QMdiSubWindow;
class QPushButton;

namespace sandogh {

class AppContext;
class GeneralPorts;

// The main window: the menus of every screen the user may open, the other screens as
// child windows of its MDI area (one of each at a time), the drawer button and the
// status bar (user, cash desk, today, version, and " COM:" with the second general
// port's number). It holds the two general ports for as long as the program runs.
class frmMain : public QMainWindow {
    Q_OBJECT

public:
    explicit frmMain(AppContext& context, QWidget* parent = nullptr);
    ~frmMain() override;

    AppContext& context() const { return m_context; }

    // The load: configures and opens the general ports, fills the status bar and reads the
    // customer display's greeting.
    void Form_Load();
    // Shows and enables only the commands the user's permissions allow; a menu left empty
    // is hidden.
    void applyPermissions(const Permissions& permissions);

    // The single entry through which every screen opens the cash drawer.
    void openCashDrawer();
    // Starts the scale vendor's program.
    void mnuScale_Click();
    // Opens the child window called name, made by create, or brings it forward when it is
    // open already. The window is returned.
    QWidget* openChild(const QString& name, const std::function<QWidget*()>& create);
    // Closes the ports and the child windows and ends the program (exited()).
    void ExitApplication();
    // Closes the child windows (each asks what it must, the sale screen about an open sale)
    // and, when all have closed, the window, asking for the login again (switchUser()).
    // False when a screen stayed open.
    bool switchUser();
    // Runs a command of the menus: refused with a message when the user may not open it,
    // whatever way it was reached (menu, key, button).
    bool runCommand(const QString& name);
    const Permissions& permissions() const { return m_permissions; }

    // The general ports, for screens that must free them for a while.
    GeneralPorts* ports() const { return m_ports; }
    void OpenPort();
    void ClosePort();

    QMdiArea* mdiArea() const { return mdiMain; }
    QAction* command(const QString& name) const { return m_actions.value(name); }

signals:
    void exited();
    void switchUserRequested();

protected:
    void closeEvent(QCloseEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void buildMenus();
    void buildStatusBar();

    AppContext& m_context;
    GeneralPorts* m_ports = nullptr;
    bool m_exiting = false;
    QHash<QString, QAction*> m_actions;
    QHash<QString, Permission> m_actionPermissions;
    QHash<QString, std::function<void(frmMain&)>> m_runs;
    Permissions m_permissions{PermissionLevel::Cashier};
    // The open child windows by name; an entry turns null when its window is closed.
    QHash<QString, QPointer<QMdiSubWindow>> m_children;
    QList<QMenu*> m_menus;

    QMdiArea* mdiMain;
    QPushButton* cmdCashDraw;
    QLabel* stbUser;
    QLabel* stbStation;
    QLabel* stbDate;
    QLabel* stbVersion;
    QLabel* stbPort;
};

}  // namespace sandogh
