#include "ui/sales/frmSaleUpdate.h"

#include <QFormLayout>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTableWidget>
#include <QVBoxLayout>

#include "app/AppContext.h"
#include "common/AmountText.h"
#include "data/repositories/GoodsRepository.h"

namespace sandogh {

namespace {

double amountOf(const QString& text) {
    return AmountText::parse(text.toStdString());
}

QString amountText(double value) {
    return QString::fromStdString(AmountText::formatDecimals(value));
}

}  // namespace

frmSaleUpdate::frmSaleUpdate(AppContext& context, QWidget* parent)
    : QWidget(parent)
    , m_context(context)
    , m_editor(std::make_unique<SaleEdit>(
          context.database(), context.machineSettings(), context.messages(), context.clock(),
          SaleAudit::Desk{context.user().id, context.station().id})) {
    setObjectName(QStringLiteral("frmSaleUpdate"));
    setLayoutDirection(Qt::RightToLeft);
    txtBarcode = new QLineEdit(this);
    txtBarcode->setObjectName(QStringLiteral("txtBarcode"));
    Grid1 = new QTableWidget(0, ColCount, this);
    Grid1->setObjectName(QStringLiteral("Grid1"));
    Grid1->setHorizontalHeaderLabels({QStringLiteral("بارکد"), QStringLiteral("نام کالا"),
                                      QStringLiteral("تعداد"), QStringLiteral("في"),
                                      QStringLiteral("تخفيف %"), QStringLiteral("في خالص"),
                                      QStringLiteral("مبلغ")});
    Grid1->setSelectionBehavior(QAbstractItemView::SelectRows);
    Grid1->horizontalHeader()->setStretchLastSection(true);
    txtDiscount = new QLineEdit(this);
    txtDiscount->setObjectName(QStringLiteral("txtDiscount"));
    txtReceived = new QLineEdit(this);
    txtReceived->setObjectName(QStringLiteral("txtReceived"));
    lblSum = new QLabel(this);
    lblSum->setObjectName(QStringLiteral("lblSum"));
    cmdDelRow = new QPushButton(QStringLiteral("حذف سطر"), this);
    cmdDelRow->setObjectName(QStringLiteral("cmdDelRow"));
    cmdSave = new QPushButton(QStringLiteral("ذخيره"), this);
    cmdSave->setObjectName(QStringLiteral("cmdSave"));

    auto* amounts = new QFormLayout;
    amounts->addRow(QStringLiteral("بارکد"), txtBarcode);
    amounts->addRow(QStringLiteral("تخفيف"), txtDiscount);
    amounts->addRow(QStringLiteral("دريافتي"), txtReceived);
    amounts->addRow(QStringLiteral("جمع"), lblSum);
    auto* buttons = new QHBoxLayout;
    buttons->addWidget(cmdDelRow);
    buttons->addWidget(cmdSave);
    buttons->addStretch();
    auto* layout = new QVBoxLayout(this);
    layout->addLayout(amounts);
    layout->addWidget(Grid1, 1);
    layout->addLayout(buttons);

    connect(txtBarcode, &QLineEdit::returnPressed, this, &frmSaleUpdate::FindBarcode);
    connect(Grid1, &QTableWidget::cellChanged, this, &frmSaleUpdate::cellChanged);
    connect(txtDiscount, &QLineEdit::textEdited, this, &frmSaleUpdate::showTotals);
    connect(cmdDelRow, &QPushButton::clicked, this, &frmSaleUpdate::cmdDelRow_Click);
    connect(cmdSave, &QPushButton::clicked, this, &frmSaleUpdate::cmdSave_Click);
}

frmSaleUpdate::~frmSaleUpdate() = default;

qint64 frmSaleUpdate::Code() const {
    return m_document ? m_document->header.code : 0;
}

qint64 frmSaleUpdate::DocumentHID() const {
    return m_document ? m_document->header.documentHId.value_or(0) : 0;
}

int frmSaleUpdate::CompanyId() const {
    return m_document ? m_document->header.companyId.value_or(0) : 0;
}

int frmSaleUpdate::mode() const {
    return m_document ? m_document->header.transType : 0;
}

bool frmSaleUpdate::frmSaleUdateSetup(qint64 code, const QString& companyName,
                                      const QString& companyNo) {
    m_document = m_editor->load(code);
    m_companyName = companyName;
    m_companyNo = companyNo;
    if (!m_document) {
        return false;
    }
    txtDiscount->setText(amountText(m_document->header.discount));
    txtReceived->setText(amountText(m_document->received));
    fillGrid();
    return true;
}

void frmSaleUpdate::fillGrid() {
    m_filling = true;
    Grid1->setRowCount(0);
    Grid1->setRowCount(static_cast<int>(m_document->lines.size()));
    for (int i = 0; i < m_document->lines.size(); ++i) {
        const SaleEditLine& l = m_document->lines.at(i);
        const QStringList cells{l.barcode,
                                l.name,
                                amountText(l.qty),
                                amountText(l.mFee),
                                amountText(l.discount),
                                amountText(l.fee),
                                amountText(l.price)};
        for (int c = 0; c < ColCount; ++c) {
            auto* item = new QTableWidgetItem(cells.at(c));
            if (c != ColQty && c != ColMFee && c != ColDiscount) {
                item->setFlags(item->flags() & ~Qt::ItemIsEditable);
            }
            Grid1->setItem(i, c, item);
        }
    }
    m_filling = false;
    showTotals();
}

void frmSaleUpdate::cellChanged(int row, int column) {
    if (m_filling || !m_document || row >= m_document->lines.size()) {
        return;
    }
    SaleEditLine& l = m_document->lines[row];
    const double value = amountOf(Grid1->item(row, column)->text());
    if (column == ColQty) {
        l.qty = value;
    } else if (column == ColMFee) {
        l.mFee = value;
    } else if (column == ColDiscount) {
        l.discount = value;
    } else {
        return;
    }
    l.recompute();
    // Only the computed cells are written: the edited item stays as it is.
    m_filling = true;
    Grid1->item(row, ColFee)->setText(amountText(l.fee));
    Grid1->item(row, ColPrice)->setText(amountText(l.price));
    m_filling = false;
    showTotals();
}

void frmSaleUpdate::showTotals() {
    if (m_document) {
        m_document->header.discount = amountOf(txtDiscount->text());
        lblSum->setText(amountText(m_document->payable()));
    }
}

void frmSaleUpdate::readGrid() {
    showTotals();
    if (m_document) {
        m_document->received = amountOf(txtReceived->text());
    }
}

bool frmSaleUpdate::FindBarcode() {
    m_barcode = txtBarcode->text().trimmed();
    if (!m_document || m_barcode.isEmpty()) {
        return false;
    }
    const std::optional<GoodsArticle> article =
        GoodsRepository(m_context.database(), m_context.clock(), m_context.user().id)
            .find(m_barcode);
    if (!article) {
        return false;
    }
    SaleEditLine line;
    line.barcode = article->barcode;
    line.name = article->name;
    line.qty = 1;
    line.mFee = article->cost;
    line.taxValue = article->taxValue;
    line.recompute();
    m_document->lines << line;
    txtBarcode->clear();
    fillGrid();
    return true;
}

bool frmSaleUpdate::cmdDelRow_Click() {
    const int row = Grid1->currentRow();
    if (!m_document || row < 0 || row >= m_document->lines.size()) {
        return false;
    }
    m_document->lines.removeAt(row);
    fillGrid();
    return true;
}

bool frmSaleUpdate::cmdSave_Click() {
    if (!m_document) {
        return false;
    }
    readGrid();
    if (m_editor->save(*m_document) != SaleEdit::Refusal::None) {
        return false;
    }
    return frmSaleUdateSetup(m_document->header.code, m_companyName, m_companyNo);
}

}  // namespace sandogh
