#include "ui/reports/frmReports.h"

#include <QChart>
#include <QChartView>
#include <QComboBox>
#include <QFileDialog>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QSpinBox>
#include <QSplitter>
#include <QStandardItemModel>
#include <QTableView>
#include <QVBoxLayout>

#include "data/Database.h"
#include "data/repositories/ReportFilter.h"
#include "devices/CompanionHandOff.h"
#include "reports/ReportCsv.h"
#include "reports/ReportPdf.h"
#include "settings/MessageService.h"
#include "ui/reports/ReportChart.h"
#include "ui/reports/ReportRun.h"
#include "ui/widgets/JalaliDateEdit.h"

namespace sandogh {

namespace {

// The cash desk report of the companion program, handed over as its menu command.
const QString kCashByStationCommand = QStringLiteral("mnuRptCashByStation, ");

QSpinBox* allOrNumber(const QString& name) {
    auto* box = new QSpinBox;
    box->setObjectName(name);
    box->setRange(0, 999999);
    box->setSpecialValueText(QStringLiteral("همه"));
    return box;
}

QPushButton* button(const QString& name, const QString& caption) {
    auto* b = new QPushButton(caption);
    b->setObjectName(name);
    return b;
}

}  // namespace

frmReports::frmReports(Database& database, MessageService& messages, ErrorLog* errorLog,
                       ProgramLauncher& launcher, const QString& companionPath,
                       const QString& today, QWidget* parent)
    : QWidget(parent)
    , m_messages(messages)
    , m_today(today)
    , m_companion(std::make_unique<CompanionHandOff>(launcher, companionPath))
    , m_run(new ReportRun(database.settings(), messages, errorLog, this)) {
    setObjectName(QStringLiteral("frmReports"));
    setWindowTitle(QStringLiteral("گزارش‌ها"));
    setLayoutDirection(Qt::RightToLeft);

    cmbReport = new QComboBox;
    cmbReport->setObjectName(QStringLiteral("cmbReport"));
    for (const ReportKind kind : ReportKinds::all()) {
        cmbReport->addItem(ReportKinds::title(kind), int(kind));
    }
    txtFrom = new JalaliDateEdit;
    txtFrom->setObjectName(QStringLiteral("txtFrom"));
    txtTo = new JalaliDateEdit;
    txtTo->setObjectName(QStringLiteral("txtTo"));
    // The month so far, as a shop owner asks most.
    txtFrom->setDateText(today.left(8) + QStringLiteral("01"));
    txtTo->setDateText(today);
    spnStation = allOrNumber(QStringLiteral("spnStation"));
    spnShift = allOrNumber(QStringLiteral("spnShift"));
    spnUser = allOrNumber(QStringLiteral("spnUser"));
    spnGroup = allOrNumber(QStringLiteral("spnGroup"));
    cmdShow = button(QStringLiteral("cmdShow"), QStringLiteral("نمایش"));
    cmdCsv = button(QStringLiteral("cmdCsv"), QStringLiteral("ذخیره CSV"));
    cmdPdf = button(QStringLiteral("cmdPdf"), QStringLiteral("ذخیره PDF"));
    cmdCashByStation = button(QStringLiteral("cmdCashByStation"),
                              QStringLiteral("نقدینگی صندوق‌ها"));
    prgRun = new QProgressBar;
    prgRun->setObjectName(QStringLiteral("prgRun"));
    prgRun->setRange(0, 0);  // turning: a query's progress cannot be measured
    prgRun->setVisible(false);

    auto* filters = new QHBoxLayout;
    const auto labelled = [filters](const QString& caption, QWidget* w) {
        filters->addWidget(new QLabel(caption));
        filters->addWidget(w);
    };
    labelled(QStringLiteral("گزارش"), cmbReport);
    labelled(QStringLiteral("از تاریخ"), txtFrom);
    labelled(QStringLiteral("تا تاریخ"), txtTo);
    labelled(QStringLiteral("صندوق"), spnStation);
    labelled(QStringLiteral("شیفت"), spnShift);
    labelled(QStringLiteral("کاربر"), spnUser);
    labelled(QStringLiteral("گروه کالا"), spnGroup);
    auto* buttons = new QHBoxLayout;
    for (QWidget* w : {static_cast<QWidget*>(cmdShow), static_cast<QWidget*>(cmdCsv),
                       static_cast<QWidget*>(cmdPdf), static_cast<QWidget*>(cmdCashByStation)}) {
        buttons->addWidget(w);
    }
    buttons->addWidget(prgRun, 1);

    m_model = new QStandardItemModel(this);
    grdReport = new QTableView;
    grdReport->setObjectName(QStringLiteral("grdReport"));
    grdReport->setModel(m_model);
    grdReport->setEditTriggers(QAbstractItemView::NoEditTriggers);
    grdReport->horizontalHeader()->setStretchLastSection(true);
    chtReport = new QChartView;
    chtReport->setObjectName(QStringLiteral("chtReport"));
    chtReport->setRenderHint(QPainter::Antialiasing);
    chtReport->setMinimumHeight(220);
    auto* split = new QSplitter(Qt::Vertical);
    split->addWidget(chtReport);
    split->addWidget(grdReport);

    auto* layout = new QVBoxLayout(this);
    layout->addLayout(filters);
    layout->addLayout(buttons);
    layout->addWidget(split, 1);

    cmdCsv->setEnabled(false);
    cmdPdf->setEnabled(false);
    connect(cmdShow, &QPushButton::clicked, this, [this] { cmdShow_Click(); });
    connect(cmdCsv, &QPushButton::clicked, this, [this] { askAndExport(false); });
    connect(cmdPdf, &QPushButton::clicked, this, [this] { askAndExport(true); });
    connect(cmdCashByStation, &QPushButton::clicked, this, [this] { cmdCashByStation_Click(); });
    connect(m_run, &ReportRun::finished, this, &frmReports::onFinished);
}

frmReports::~frmReports() = default;

bool frmReports::isRunning() const {
    return m_run->isRunning() || prgRun->isVisible();
}

std::optional<ReportFilter> frmReports::filter() {
    ReportFilter f;
    f.from = txtFrom->dateText();
    f.to = txtTo->dateText();
    if (f.from.isEmpty() || f.to.isEmpty() || f.to < f.from) {
        m_messages.show(QStringLiteral("بازه تاریخ گزارش درست نیست."), MessageStyle::Critical);
        return std::nullopt;
    }
    const auto number = [](QSpinBox* box) {
        return box->value() == 0 ? std::nullopt : std::optional<int>(box->value());
    };
    f.stationId = number(spnStation);
    f.shiftCode = number(spnShift);
    f.userId = number(spnUser);
    f.goodsGroup = number(spnGroup);
    return f;
}

bool frmReports::cmdShow_Click() {
    if (isRunning()) {
        return false;
    }
    const std::optional<ReportFilter> f = filter();
    if (!f) {
        return false;
    }
    const auto kind = static_cast<ReportKind>(cmbReport->currentData().toInt());
    if (!m_run->start(kind, *f, m_today)) {
        return false;
    }
    prgRun->setVisible(true);
    cmdShow->setEnabled(false);
    cmdCashByStation->setEnabled(false);
    return true;
}

void frmReports::onFinished(const std::optional<ReportTable>& table) {
    prgRun->setVisible(false);
    cmdShow->setEnabled(true);
    cmdCashByStation->setEnabled(true);
    if (table) {
        showTable(*table);
    }
    emit reportDone();
}

void frmReports::showTable(const ReportTable& t) {
    m_shown = t;
    m_model->clear();
    QStringList titles;
    for (const ReportTable::Column& c : t.columns) {
        titles << c.title;
    }
    m_model->setHorizontalHeaderLabels(titles);
    for (int r = 0; r < t.rows.size(); ++r) {
        QList<QStandardItem*> items;
        for (int c = 0; c < t.columns.size(); ++c) {
            auto* item = new QStandardItem(t.cellText(r, c));
            if (t.columns.at(c).amount) {
                item->setTextAlignment(Qt::AlignLeft | Qt::AlignVCenter);
            }
            items << item;
        }
        m_model->appendRow(items);
    }
    QChart* chart = ReportChart::make(t);
    QChart* old = chtReport->chart();
    chtReport->setChart(chart != nullptr ? chart : new QChart);
    delete old;
    cmdCsv->setEnabled(true);
    cmdPdf->setEnabled(true);
}

bool frmReports::exportCsv(const QString& path) {
    if (!m_shown || !ReportCsv::write(*m_shown, path)) {
        m_messages.show(QStringLiteral("فایل گزارش ذخیره نشد."), MessageStyle::Critical);
        return false;
    }
    return true;
}

bool frmReports::exportPdf(const QString& path) {
    if (!m_shown || !ReportPdf::write(*m_shown, path)) {
        m_messages.show(QStringLiteral("فایل گزارش ذخیره نشد."), MessageStyle::Critical);
        return false;
    }
    return true;
}

void frmReports::askAndExport(bool pdf) {
    const QString path = QFileDialog::getSaveFileName(
        this, windowTitle(), QString(),
        pdf ? QStringLiteral("PDF (*.pdf)") : QStringLiteral("CSV (*.csv)"));
    if (!path.isEmpty()) {
        pdf ? exportPdf(path) : exportCsv(path);
    }
}

void frmReports::cmdCashByStation_Click() {
    if (m_companion->isPresent()) {
        m_companion->send(kCashByStationCommand);
        return;
    }
    cmbReport->setCurrentIndex(cmbReport->findData(int(ReportKind::Desks)));
    cmdShow_Click();
}

}  // namespace sandogh
