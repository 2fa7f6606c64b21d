#include "ui/sales/frmSaleAudit.h"

#include <QHBoxLayout>
#include <QHeaderView>
#include <QLineEdit>
#include <QPushButton>
#include <QSpinBox>
#include <QTableWidget>
#include <QVBoxLayout>

#include "app/AppContext.h"
#include "data/repositories/SaleDeleteRepository.h"
#include "sales/SaleAudit.h"

namespace sandogh {

frmSaleAudit::frmSaleAudit(AppContext& context, QWidget* parent)
    : QWidget(parent), m_context(context) {
    setObjectName(QStringLiteral("frmSaleAudit"));
    setLayoutDirection(Qt::RightToLeft);
    txtFromDate = new QLineEdit(context.todayJalali(), this);
    txtFromDate->setObjectName(QStringLiteral("txtFromDate"));
    txtToDate = new QLineEdit(context.todayJalali(), this);
    txtToDate->setObjectName(QStringLiteral("txtToDate"));
    spnUser = new QSpinBox(this);
    spnUser->setObjectName(QStringLiteral("spnUser"));
    spnUser->setRange(0, 1000000);
    spnUser->setSpecialValueText(QStringLiteral("همه کاربران"));
    cmdShow = new QPushButton(QStringLiteral("نمايش"), this);
    cmdShow->setObjectName(QStringLiteral("cmdShow"));
    Grid1 = new QTableWidget(0, 9, this);
    Grid1->setObjectName(QStringLiteral("Grid1"));
    Grid1->setHorizontalHeaderLabels(
        {QStringLiteral("تاريخ"), QStringLiteral("ساعت"), QStringLiteral("کاربر"),
         QStringLiteral("صندوق"), QStringLiteral("عمليات"), QStringLiteral("نوع"),
         QStringLiteral("شماره"), QStringLiteral("تاريخ فاکتور"), QStringLiteral("فاکتور")});
    Grid1->setEditTriggers(QAbstractItemView::NoEditTriggers);
    Grid1->horizontalHeader()->setStretchLastSection(true);
    auto* top = new QHBoxLayout;
    top->addWidget(txtFromDate);
    top->addWidget(txtToDate);
    top->addWidget(spnUser);
    top->addWidget(cmdShow);
    auto* layout = new QVBoxLayout(this);
    layout->addLayout(top);
    layout->addWidget(Grid1, 1);
    connect(cmdShow, &QPushButton::clicked, this, &frmSaleAudit::FillGrid);
    FillGrid();
}

void frmSaleAudit::FillGrid() {
    const QList<SaleAuditRepository::Record> records = SaleAudit::list(
        m_context.database(), txtFromDate->text(), txtToDate->text(), spnUser->value());
    Grid1->setRowCount(0);
    Grid1->setRowCount(static_cast<int>(records.size()));
    for (int i = 0; i < records.size(); ++i) {
        const SaleAuditRepository::Record& r = records.at(i);
        const QStringList cells{r.auditDate,
                                r.auditTime,
                                r.userName.isEmpty() ? QString::number(r.userId) : r.userName,
                                QString::number(r.stationId),
                                SaleAudit::actionName(r.action),
                                SaleDeleteRepository::kindName(r.transType),
                                r.docNo,
                                r.docDate,
                                r.document};
        for (int c = 0; c < cells.size(); ++c) {
            Grid1->setItem(i, c, new QTableWidgetItem(cells.at(c)));
        }
    }
}

}  // namespace sandogh
