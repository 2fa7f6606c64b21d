#pragma once

#include <QObject>
#include <QPointer>

#include "app/StartUp.h"

namespace sandogh {

class AppContext;
class frmLogin;
class frmLogo;
class frmMain;
struct UserAccount;

// The way through the program's screens: the splash screen runs the start-up step and
// shows for a few seconds, then the login screen, then the main window with the user's
// permissions. finished() tells main() that the program ends, and with what exit code:
// 1 when the connection file could not be read, 0 when the login was cancelled or the
// main window was left.
class StartUpFlow : public QObject {
    Q_OBJECT

public:
    explicit StartUpFlow(AppContext& context, QObject* parent = nullptr);
    ~StartUpFlow() override;

    // Shows the splash screen and runs the start-up step.
    void start();
    // The login screen (after the splash screen, or at once where the splash is skipped).
    void showLogin();

    frmLogo* logo() const;
    frmLogin* login() const;
    frmMain* mainWindow() const;
    // The main window has closed for another user to log in: the login screen again.
    void switchUser();

signals:
    void finished(int exitCode);

private:
    void onLoggedIn(const UserAccount& user);
    void onYearChosen(const UserAccount& user);
    void end(int exitCode);

    AppContext& m_context;
    StartUp m_startUp;
    QPointer<frmLogo> m_logo;
    QPointer<frmLogin> m_login;
    QPointer<frmMain> m_main;
    bool m_ended = false;
};

}  // namespace sandogh
