#pragma once

// The application context of the screen tests (support/AppTestContext.h) with a real SQLite
// shop database in its program folder, made the way sandogh-admin demo makes it.

#include <QAbstractButton>
#include <QApplication>
#include <QTest>

#include "app/DemoShop.h"
#include "app/Permissions.h"
#include "app/ShopDatabaseSetup.h"
#include "data/ErrorLog.h"
#include "data/Session.h"
#include "support/AppTestContext.h"
#include "ui/app/frmMain.h"

namespace sandogh::test {

class ScreenTestContext : public AppTestContext {
public:
    // The connection file and the shop database, with the demo shop in it when seeded, handed
    // to the context. False (with a failure added) when it could not be made.
    bool openShop(bool seeded) {
        if (DemoShop::ensureProviderFile(programFolder(), nullptr) ==
            DemoShop::ProviderFile::Failed) {
            ADD_FAILURE() << "cannot write Provider.txt";
            return false;
        }
        ShopDatabaseSetup::Result setup =
            ShopDatabaseSetup::run(programFolder(), {}, messages, context.errorLog());
        const DemoShop::Report report =
            setup.ok && seeded ? DemoShop(*setup.database).seed() : DemoShop::Report{};
        if (!setup.ok || (seeded && !report.ok)) {
            ADD_FAILURE() << setup.error.toStdString() << report.error.toStdString();
            return false;
        }
        context.setDatabase(std::move(setup.database), setup.settings);
        return true;
    }

    // The demo shop with its cashier (user 1) logged in at the first cash desk.
    bool openDesk() {
        if (!openShop(true)) {
            return false;
        }
        UserAccount user;
        user.id = 1;
        user.userName = QStringLiteral("cashier");
        user.name = QStringLiteral("صندوق‌دار");
        context.setUser(user);
        context.setStation({1, QStringLiteral("صندوق ۱")});
        return true;
    }

    // The main window as the login leaves it for a user of the level, shown and active.
    std::unique_ptr<frmMain> openMain(PermissionLevel level) {
        auto window = std::make_unique<frmMain>(context);
        window->Form_Load();
        window->applyPermissions(Permissions(level));
        window->show();
        QApplication::setActiveWindow(window.get());
        return window;
    }

    qint64 count(const QString& sql, const SqlBinds& binds = {}) {
        Session s = context.database().session();
        return s.scalarInt64(sql, binds, -1);
    }
};

// The named control of a kind under a screen (a failure added when there is none).
template <typename T>
T* child(const QObject& parent, const char* name) {
    T* found = parent.findChild<T*>(QString::fromLatin1(name));
    EXPECT_NE(found, nullptr) << name;
    return found;
}

inline void click(const QObject& parent, const char* button) {
    QTest::mouseClick(child<QAbstractButton>(parent, button), Qt::LeftButton);
}

}  // namespace sandogh::test
