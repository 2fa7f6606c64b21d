#include "ui/reports/ReportRun.h"

#include "data/Database.h"
#include "data/Session.h"
#include "reports/ReportBuilder.h"

namespace sandogh {

ReportRun::ReportRun(const ConnectionSettings& settings, MessageService& messages,
                     ErrorLog* errorLog, QObject* parent)
    : QObject(parent), m_settings(settings), m_messages(messages, this), m_errorLog(errorLog) {}

ReportRun::~ReportRun() {
    if (m_thread.joinable()) {
        m_thread.join();
    }
}

bool ReportRun::isRunning() const {
    return m_running;
}

bool ReportRun::start(ReportKind kind, const ReportFilter& filter, const QString& today) {
    if (m_running) {
        return false;
    }
    if (m_thread.joinable()) {
        m_thread.join();
    }
    if (!m_database) {
        m_database = std::make_unique<Database>(m_settings, &m_messages, m_errorLog);
    }
    Database* database = m_database.get();
    m_running = true;
    m_thread = std::thread([this, database, kind, filter, today] {
        std::optional<ReportTable> table;
        {
            Session session =
                database->session(QStringLiteral("frmReports"), ReportKinds::title(kind));
            if (session) {
                table = ReportBuilder::build(session, kind, filter, today);
            }
        }
        m_running = false;
        QMetaObject::invokeMethod(
            this, [this, table] { emit finished(table); }, Qt::QueuedConnection);
    });
    return true;
}

}  // namespace sandogh
