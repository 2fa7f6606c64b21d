#include "ui/sales/frmTransFactor.h"

#include <QComboBox>
#include <QDir>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QTableWidget>
#include <QVBoxLayout>

#include "app/AppContext.h"
#include "common/AmountText.h"
#include "sales/InternalSend.h"
#include "settings/BranchTransferSettings.h"

namespace sandogh {

frmTransFactor::frmTransFactor(AppContext& context, QWidget* parent)
    : QWidget(parent), m_context(context) {
    setObjectName(QStringLiteral("frmTransFactor"));
    setLayoutDirection(Qt::RightToLeft);
    cboBranch = new QComboBox(this);
    cboBranch->setObjectName(QStringLiteral("cboBranch"));
    lblFolder = new QLabel(this);
    lblFolder->setObjectName(QStringLiteral("lblFolder"));
    cmdSend = new QPushButton(QStringLiteral("ارسال"), this);
    cmdSend->setObjectName(QStringLiteral("cmdSend"));
    Grid1 = new QTableWidget(0, 5, this);
    Grid1->setObjectName(QStringLiteral("Grid1"));
    Grid1->setHorizontalHeaderLabels({QString(), QStringLiteral("شماره"), QStringLiteral("تاريخ"),
                                      QStringLiteral("مبلغ"), QStringLiteral("وضعيت")});
    Grid1->setEditTriggers(QAbstractItemView::NoEditTriggers);
    Grid1->horizontalHeader()->setStretchLastSection(true);
    auto* top = new QHBoxLayout;
    top->addWidget(new QLabel(QStringLiteral("شعبه:"), this));
    top->addWidget(cboBranch, 1);
    top->addWidget(cmdSend);
    auto* layout = new QVBoxLayout(this);
    layout->addLayout(top);
    layout->addWidget(Grid1, 1);
    layout->addWidget(lblFolder);
    lblFolder->setText(QDir::toNativeSeparators(folder()));

    InternalSend send(context.database(), context.messages());
    for (const CenterBranch& b : send.branches().value_or(QList<CenterBranch>{})) {
        cboBranch->addItem(b.name, b.id);
    }
    cmdSend->setEnabled(cboBranch->count() > 0);
    connect(cboBranch, &QComboBox::currentIndexChanged, this, &frmTransFactor::FillGrid);
    connect(cmdSend, &QPushButton::clicked, this, &frmTransFactor::cmdSend_Click);
    FillGrid();
}

QString frmTransFactor::folder() const {
    SettingsStore* store = m_context.transferSettingsStore();
    if (store == nullptr) {
        return InternalSend::folder(nullptr);
    }
    const BranchTransferSettings settings(*store);
    return InternalSend::folder(&settings);
}

void frmTransFactor::FillGrid() {
    m_rows = cboBranch->currentIndex() < 0
                 ? QList<InternalTransferRepository::Invoice>{}
                 : InternalSend(m_context.database(), m_context.messages())
                       .invoices(cboBranch->currentData().toInt());
    Grid1->setRowCount(0);
    Grid1->setRowCount(static_cast<int>(m_rows.size()));
    for (int i = 0; i < m_rows.size(); ++i) {
        const InternalTransferRepository::Invoice& r = m_rows.at(i);
        auto* tick = new QTableWidgetItem;
        tick->setFlags(Qt::ItemIsUserCheckable | Qt::ItemIsEnabled);
        tick->setCheckState(Qt::Unchecked);
        Grid1->setItem(i, 0, tick);
        Grid1->setItem(i, 1, new QTableWidgetItem(r.docNo));
        Grid1->setItem(i, 2, new QTableWidgetItem(r.docDate));
        Grid1->setItem(
            i, 3, new QTableWidgetItem(QString::fromStdString(AmountText::formatWhole(r.docSum))));
        Grid1->setItem(
            i, 4,
            new QTableWidgetItem(r.sent ? InternalSend::sentText() : InternalSend::notSentText()));
    }
}

bool frmTransFactor::cmdSend_Click() {
    QList<qint64> ticked;
    for (int i = 0; i < Grid1->rowCount() && i < m_rows.size(); ++i) {
        if (Grid1->item(i, 0)->checkState() == Qt::Checked) {
            ticked << m_rows.at(i).code;
        }
    }
    const int branch = cboBranch->currentIndex() < 0 ? 0 : cboBranch->currentData().toInt();
    InternalSend send(m_context.database(), m_context.messages());
    const bool sent =
        send.send(branch, ticked, InternalSend::pathIn(folder()),
                  InternalSend::shopId(m_context.database())) == InternalSend::Outcome::Sent;
    if (sent) {
        FillGrid();
    }
    return sent;
}

}  // namespace sandogh
