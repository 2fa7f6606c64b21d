#include "ui/sales/frmDeleteFactorGroup.h"

#include <QHBoxLayout>
#include <QHeaderView>
#include <QLineEdit>
#include <QPushButton>
#include <QTableWidget>
#include <QVBoxLayout>

#include "app/AppContext.h"
#include "data/Database.h"
#include "sales/SaleDelete.h"

namespace sandogh {

frmDeleteFactorGroup::frmDeleteFactorGroup(AppContext& context, QWidget* parent)
    : QWidget(parent), m_context(context) {
    setObjectName(QStringLiteral("frmDeleteFactorGroup"));
    setLayoutDirection(Qt::RightToLeft);
    txtDate = new QLineEdit(context.todayJalali(), this);
    txtDate->setObjectName(QStringLiteral("txtDate"));
    cmdShow = new QPushButton(QStringLiteral("نمايش"), this);
    cmdShow->setObjectName(QStringLiteral("cmdShow"));
    cmdDelete = new QPushButton(QStringLiteral("حذف"), this);
    cmdDelete->setObjectName(QStringLiteral("cmdDelete"));
    Grid1 = new QTableWidget(0, 5, this);
    Grid1->setObjectName(QStringLiteral("Grid1"));
    Grid1->setHorizontalHeaderLabels({QString(), QStringLiteral("شماره"), QStringLiteral("نوع"),
                                      QStringLiteral("مشتري"), QStringLiteral("تاريخ")});
    Grid1->setEditTriggers(QAbstractItemView::NoEditTriggers);
    Grid1->horizontalHeader()->setStretchLastSection(true);
    auto* top = new QHBoxLayout;
    top->addWidget(txtDate);
    top->addWidget(cmdShow);
    top->addWidget(cmdDelete);
    auto* layout = new QVBoxLayout(this);
    layout->addLayout(top);
    layout->addWidget(Grid1, 1);
    connect(cmdShow, &QPushButton::clicked, this, &frmDeleteFactorGroup::FillGrid);
    connect(txtDate, &QLineEdit::returnPressed, this, &frmDeleteFactorGroup::FillGrid);
    connect(cmdDelete, &QPushButton::clicked, this, &frmDeleteFactorGroup::cmdDelete_Click);
    FillGrid();
}

void frmDeleteFactorGroup::FillGrid() {
    {
        Session s = m_context.database().session(QStringLiteral("frmDeleteFactorGroup"),
                                                 QStringLiteral("FillGrid"));
        m_rows = SaleDeleteRepository::list(s, txtDate->text());
    }
    Grid1->setRowCount(0);
    Grid1->setRowCount(static_cast<int>(m_rows.size()));
    for (int i = 0; i < m_rows.size(); ++i) {
        const SaleDeleteRepository::ListRow& r = m_rows.at(i);
        auto* tick = new QTableWidgetItem;
        tick->setFlags(Qt::ItemIsUserCheckable | Qt::ItemIsEnabled);
        tick->setCheckState(Qt::Unchecked);
        Grid1->setItem(i, 0, tick);
        Grid1->setItem(i, 1, new QTableWidgetItem(r.docNo));
        Grid1->setItem(i, 2, new QTableWidgetItem(r.kindName));
        Grid1->setItem(i, 3, new QTableWidgetItem(r.customerName));
        Grid1->setItem(i, 4, new QTableWidgetItem(r.docDate));
    }
}

bool frmDeleteFactorGroup::cmdDelete_Click() {
    QList<SaleDeleteRepository::ListRow> ticked;
    for (int i = 0; i < Grid1->rowCount() && i < m_rows.size(); ++i) {
        if (Grid1->item(i, 0)->checkState() == Qt::Checked) {
            ticked << m_rows.at(i);
        }
    }
    SaleDelete deleter(m_context.database(), m_context.messages(), m_context.clock(),
                       {m_context.user().id, m_context.station().id});
    const bool deleted = deleter.deleteGroup(ticked) == SaleDelete::Outcome::Deleted;
    if (!ticked.isEmpty()) {
        FillGrid();
    }
    return deleted;
}

}  // namespace sandogh
