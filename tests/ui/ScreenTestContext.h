#pragma once

// An application context for the screen tests: a temporary program folder and settings
// file, a fixed clock (21 March 2025, 1404/01/01, a Friday), recorded messages, program
// starts and raw print jobs, and a real SQLite shop database made the way sandogh-admin
// demo makes it.

#include <gtest/gtest.h>

#include <QDir>
#include <QTemporaryDir>

#include "app/AppContext.h"
#include "app/DemoShop.h"
#include "app/ShopDatabaseSetup.h"
#include "data/Database.h"
#include "data/ErrorLog.h"
#include "settings/QSettingsStore.h"
#include "support/FixedClock.h"
#include "support/LaunchRecorder.h"
#include "support/RawPrintRecorder.h"
#include "support/RecordingMessageService.h"

namespace sandogh::test {

class ScreenTestContext {
public:
    ScreenTestContext()
        : settings(QStringLiteral("Retail"), folder.filePath(QStringLiteral("Retail.ini")))
        , context(folder.path(), settings, clock, messages, launcher, printer,
                  QStringLiteral("Sandogh test")) {}

    QString programFolder() const { return folder.path(); }
    QString path(const QString& relative) const { return folder.filePath(relative); }

    // The connection file and the shop database of the program folder, with the demo shop
    // in it when seeded; the database is handed to the context. False (with a failure
    // added) when it could not be made.
    bool openShop(bool seeded) {
        if (DemoShop::ensureProviderFile(programFolder(), nullptr) ==
            DemoShop::ProviderFile::Failed) {
            ADD_FAILURE() << "cannot write Provider.txt";
            return false;
        }
        ShopDatabaseSetup::Result setup =
            ShopDatabaseSetup::run(programFolder(), {}, messages, context.errorLog());
        if (!setup.ok) {
            ADD_FAILURE() << setup.error.toStdString();
            return false;
        }
        if (seeded) {
            const DemoShop::Report report = DemoShop(*setup.database).seed();
            if (!report.ok) {
                ADD_FAILURE() << report.error.toStdString();
                return false;
            }
        }
        context.setDatabase(std::move(setup.database), setup.settings);
        return true;
    }

    QTemporaryDir folder;
    QSettingsStore settings;
    FixedClock clock;
    RecordingMessageService messages;
    LaunchRecorder launcher;
    RawPrintRecorder printer;
    AppContext context;
};

}  // namespace sandogh::test
