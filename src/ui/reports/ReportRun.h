#pragma once

#include <QObject>
#include <atomic>
#include <functional>
#include <memory>
#include <optional>
#include <thread>

#include "data/ConnectionSettings.h"
#include "data/repositories/ReportFilter.h"
#include "reports/ReportKind.h"
#include "reports/ReportTable.h"
#include "ui/reports/QueuedMessages.h"

namespace sandogh {

class Database;
class ErrorLog;

// Runs reports one at a time on a worker thread with a database session of its own (the
// sessions of a pool belong to the thread that took them), so the screen keeps painting
// and answering while a long report runs. The result comes back on the owner's thread.
class ReportRun : public QObject {
    Q_OBJECT

public:
    ReportRun(const ConnectionSettings& settings, MessageService& messages, ErrorLog* errorLog,
              QObject* parent = nullptr);
    // Waits for a running report to end: its statements are bounded.
    ~ReportRun() override;

    bool isRunning() const;
    // Starts a report; false while another is running.
    bool start(ReportKind kind, const ReportFilter& filter, const QString& today);

signals:
    // The report's table, or nothing when a look-up failed (it has been reported).
    void finished(std::optional<sandogh::ReportTable> table);

private:
    ConnectionSettings m_settings;
    QueuedMessages m_messages;
    ErrorLog* m_errorLog;
    std::unique_ptr<Database> m_database;  // used by the worker only
    // A plain thread: joining it waits for its thread-local connections to close too, so
    // the database may end right after.
    std::thread m_thread;
    std::atomic<bool> m_running{false};
};

}  // namespace sandogh
