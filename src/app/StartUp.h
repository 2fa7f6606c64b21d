#pragma once

#include <QString>

namespace sandogh {

class AppContext;

// The start-up step the splash screen runs before anything else: the fiscal-year choice
// of this machine, the connection file Provider.txt of the program folder, and the shop
// database built from them. No connection is opened here; the login screen's load is the
// first to reach the database.
class StartUp {
public:
    explicit StartUp(AppContext& context) : m_context(context) {}

    // Reads "Year"/"Year" (trimmed) into CurrentDatabaseName, runs LoadPrimary and builds
    // the Database into the context. False when the connection file is missing, has fewer
    // than six lines, a line shorter than its key, or names no backend the program knows;
    // the failure has then been recorded in the error log (module "MainModule", routine
    // "LoadPrimary"), and the caller shows that the connection file is missing and ends.
    bool run();

    // Why run() failed, in English, for the log and for support.
    const QString& failure() const { return m_failure; }

private:
    bool fail(const QString& number, const QString& description);

    AppContext& m_context;
    QString m_failure;
};

}  // namespace sandogh
