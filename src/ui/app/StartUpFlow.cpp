#include "ui/app/StartUpFlow.h"

#include <QGuiApplication>
#include <QScreen>

#include "app/AfterLogin.h"
#include "app/AppContext.h"
#include "app/UserAccount.h"
#include "settings/MessageService.h"
#include "ui/app/frmLogin.h"
#include "ui/app/frmLogo.h"
#include "ui/app/frmMain.h"

namespace sandogh {

StartUpFlow::StartUpFlow(AppContext& context, QObject* parent)
    : QObject(parent), m_context(context), m_startUp(context) {}

StartUpFlow::~StartUpFlow() {
    delete m_logo;
    delete m_login;
    delete m_main;
}

frmLogo* StartUpFlow::logo() const {
    return m_logo;
}

frmLogin* StartUpFlow::login() const {
    return m_login;
}

frmMain* StartUpFlow::mainWindow() const {
    return m_main;
}

void StartUpFlow::start() {
    m_logo = new frmLogo(m_context.programFolder(), m_context.messages());
    m_logo->setStartupStep([this] { return m_startUp.run(); });
    connect(m_logo, &frmLogo::failed, this, [this] {
        m_logo->deleteLater();
        end(1);
    });
    connect(m_logo, &frmLogo::finished, this, [this] {
        m_logo->deleteLater();
        showLogin();
    });
    m_logo->start();
}

void StartUpFlow::showLogin() {
    m_login = new frmLogin(m_context);
    connect(m_login, &frmLogin::loggedIn, this, &StartUpFlow::onLoggedIn);
    connect(m_login, &frmLogin::yearChosen, this, &StartUpFlow::onYearChosen);
    connect(m_login, &frmLogin::cancelled, this, [this] {
        m_login->deleteLater();
        end(0);
    });
    m_login->Form_Load();
    m_login->adjustSize();
    if (const QScreen* screen = QGuiApplication::primaryScreen()) {
        m_login->move(screen->availableGeometry().center() - m_login->rect().center());
    }
    m_login->show();
    m_login->raise();
    m_login->activateWindow();
}

void StartUpFlow::onLoggedIn(const UserAccount& user) {
    m_login->close();
    m_login->deleteLater();

    AfterLogin(m_context).run(user);
    m_main = new frmMain(m_context);
    connect(m_main, &frmMain::exited, this, [this] {
        m_main->deleteLater();
        end(0);
    });
    connect(m_main, &frmMain::switchUserRequested, this, &StartUpFlow::switchUser);
    m_main->Form_Load();
    m_main->applyPermissions(user.permissions());
    // The whole screen, also where no window manager maximises windows.
    if (const QScreen* screen = QGuiApplication::primaryScreen()) {
        m_main->setGeometry(screen->availableGeometry());
    }
    m_main->showMaximized();
}

void StartUpFlow::onYearChosen(const UserAccount& user) {
    // The catalog swap: the start-up opens the shop again on the year now in the setting,
    // which holds the same users (they are carried into every new year).
    if (!m_startUp.run()) {
        m_context.messages().show(m_startUp.failure(), MessageStyle::Information);
        m_login->close();
        m_login->deleteLater();
        end(1);
        return;
    }
    onLoggedIn(user);
}

void StartUpFlow::switchUser() {
    if (m_main != nullptr) {
        m_main->deleteLater();
        m_main = nullptr;
    }
    m_context.setUser(UserAccount{});
    showLogin();
}

void StartUpFlow::end(int exitCode) {
    if (m_ended) {
        return;
    }
    m_ended = true;
    emit finished(exitCode);
}

}  // namespace sandogh
