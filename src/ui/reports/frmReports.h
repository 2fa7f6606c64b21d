#pragma once

#include <QWidget>
#include <memory>
#include <optional>

#include "reports/ReportTable.h"

class QChartView;
class QComboBox;
class QLabel;
class QProgressBar;
class QPushButton;
class QSpinBox;
class QStandardItemModel;
class QTableView;

namespace sandogh {

class CompanionHandOff;
class Database;
class ErrorLog;
class JalaliDateEdit;
class MessageService;
class ProgramLauncher;
class ReportRun;
struct ReportFilter;

// The shop's reports: the report chooser cmbReport, the range txtFrom..txtTo, the desk,
// shift, user and goods group (0: all), cmdShow, the table grdReport and the chart
// chtReport, and the exports cmdCsv and cmdPdf. A report runs on a worker thread; meanwhile
// prgRun turns and cmdShow waits. cmdCashByStation hands "mnuRptCashByStation, " to the
// companion program when there is one, and otherwise shows the desks report here.
class frmReports : public QWidget {
    Q_OBJECT

public:
    frmReports(Database& database, MessageService& messages, ErrorLog* errorLog,
               ProgramLauncher& launcher, const QString& companionPath, const QString& today,
               QWidget* parent = nullptr);
    ~frmReports() override;

    // Runs the chosen report; false when one is running or the range is not valid.
    bool cmdShow_Click();
    // Writes the report shown; false (with a message) when there is none or it failed.
    bool exportCsv(const QString& path);
    bool exportPdf(const QString& path);
    void cmdCashByStation_Click();

    bool isRunning() const;
    const std::optional<ReportTable>& shown() const { return m_shown; }

signals:
    // A report has come back (shown, or failed and reported).
    void reportDone();

private:
    void onFinished(const std::optional<ReportTable>& table);
    void showTable(const ReportTable& table);
    void askAndExport(bool pdf);
    std::optional<ReportFilter> filter();

    MessageService& m_messages;
    QString m_today;
    std::unique_ptr<CompanionHandOff> m_companion;
    ReportRun* m_run;
    std::optional<ReportTable> m_shown;

    QComboBox* cmbReport;
    JalaliDateEdit* txtFrom;
    JalaliDateEdit* txtTo;
    QSpinBox* spnStation;
    QSpinBox* spnShift;
    QSpinBox* spnUser;
    QSpinBox* spnGroup;
    QPushButton* cmdShow;
    QPushButton* cmdCsv;
    QPushButton* cmdPdf;
    QPushButton* cmdCashByStation;
    QProgressBar* prgRun;
    QStandardItemModel* m_model;
    QTableView* grdReport;
    QChartView* chtReport;
};

}  // namespace sandogh
