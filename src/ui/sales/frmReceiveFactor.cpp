#include "ui/sales/frmReceiveFactor.h"

#include <QFileDialog>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTableWidget>
#include <QVBoxLayout>

#include "app/AppContext.h"
#include "common/AmountText.h"
#include "sales/InternalReceive.h"
#include "sales/InternalSend.h"
#include "settings/BranchTransferSettings.h"
#include "settings/MessageService.h"

namespace sandogh {

namespace {

// ShowPrice: 1 shows the price columns, 2 hides them.
constexpr int kHidePrices = 2;
constexpr int kFeeColumn = 4;
constexpr int kPriceColumn = 5;

QTableWidgetItem* cell(const QString& text) {
    return new QTableWidgetItem(text);
}

}  // namespace

frmReceiveFactor::frmReceiveFactor(AppContext& context, QWidget* parent)
    : QWidget(parent), m_context(context) {
    setObjectName(QStringLiteral("frmReceiveFactor"));
    setLayoutDirection(Qt::RightToLeft);
    lblSender = new QLabel(InternalReceive::senderName(), this);
    lblSender->setObjectName(QStringLiteral("lblSender"));
    txtFile = new QLineEdit(this);
    txtFile->setObjectName(QStringLiteral("txtFile"));
    txtFile->setReadOnly(true);
    cmdOpen = new QPushButton(QStringLiteral("انتخاب فايل"), this);
    cmdOpen->setObjectName(QStringLiteral("cmdOpen"));
    cmdReceive = new QPushButton(QStringLiteral("دريافت"), this);
    cmdReceive->setObjectName(QStringLiteral("cmdReceive"));
    Grid1 = new QTableWidget(0, 6, this);
    Grid1->setObjectName(QStringLiteral("Grid1"));
    Grid1->setHorizontalHeaderLabels({QStringLiteral("شماره"), QStringLiteral("تاريخ"),
                                      QStringLiteral("بارکد"), QStringLiteral("تعداد"),
                                      QStringLiteral("في"), QStringLiteral("مبلغ")});
    Grid1->setEditTriggers(QAbstractItemView::NoEditTriggers);
    Grid1->horizontalHeader()->setStretchLastSection(true);
    Grid1->setColumnHidden(kFeeColumn, !showsPrices());
    Grid1->setColumnHidden(kPriceColumn, !showsPrices());
    auto* top = new QHBoxLayout;
    top->addWidget(new QLabel(QStringLiteral("فرستنده:"), this));
    top->addWidget(lblSender);
    top->addWidget(txtFile, 1);
    top->addWidget(cmdOpen);
    top->addWidget(cmdReceive);
    auto* layout = new QVBoxLayout(this);
    layout->addLayout(top);
    layout->addWidget(Grid1, 1);

    m_pick = [this] {
        SettingsStore* store = m_context.transferSettingsStore();
        std::optional<BranchTransferSettings> settings;
        if (store != nullptr) {
            settings.emplace(*store);
        }
        return QFileDialog::getOpenFileName(this, cmdOpen->text(),
                                            InternalSend::folder(settings ? &*settings : nullptr),
                                            InternalReceive::dialogFilter());
    };
    connect(cmdOpen, &QPushButton::clicked, this, &frmReceiveFactor::cmdOpen_Click);
    connect(cmdReceive, &QPushButton::clicked, this, &frmReceiveFactor::cmdReceive_Click);
}

bool frmReceiveFactor::showsPrices() const {
    SettingsStore* store = m_context.transferSettingsStore();
    return store == nullptr || BranchTransferSettings(*store).showPrice() != kHidePrices;
}

bool frmReceiveFactor::cmdOpen_Click() {
    const QString path = m_pick ? m_pick() : QString();
    InternalReceive receive(m_context.database(), m_context.messages(), m_context.clock(),
                            {m_context.user().id, m_context.station().id});
    m_batch = receive.open(path);
    txtFile->setText(m_batch ? path : QString());
    FillGrid();
    return m_batch.has_value();
}

bool frmReceiveFactor::cmdReceive_Click() {
    InternalReceive receive(m_context.database(), m_context.messages(), m_context.clock(),
                            {m_context.user().id, m_context.station().id});
    if (!m_batch) {
        m_context.messages().show(InternalReceive::noFileText(), MessageStyle::Critical);
        return false;
    }
    const InternalReceive::Outcome outcome = receive.receive(*m_batch);
    if (outcome == InternalReceive::Outcome::Received ||
        outcome == InternalReceive::Outcome::AlreadyReceived) {
        m_batch.reset();
        txtFile->clear();
        FillGrid();
    }
    return outcome == InternalReceive::Outcome::Received;
}

void frmReceiveFactor::FillGrid() {
    Grid1->setRowCount(0);
    if (!m_batch) {
        return;
    }
    for (const TransferInvoice& invoice : m_batch->invoices) {
        for (const TransferLine& line : invoice.lines) {
            const int row = Grid1->rowCount();
            Grid1->insertRow(row);
            Grid1->setItem(row, 0, cell(invoice.docNo));
            Grid1->setItem(row, 1, cell(invoice.docDate));
            Grid1->setItem(row, 2, cell(line.barcode));
            Grid1->setItem(row, 3,
                           cell(QString::fromStdString(AmountText::formatDecimals(line.qty))));
            Grid1->setItem(row, kFeeColumn,
                           cell(QString::fromStdString(AmountText::formatWhole(line.fee))));
            Grid1->setItem(row, kPriceColumn,
                           cell(QString::fromStdString(AmountText::formatWhole(line.price))));
        }
    }
}

}  // namespace sandogh
