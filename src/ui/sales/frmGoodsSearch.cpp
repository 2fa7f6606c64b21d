#include "ui/sales/frmGoodsSearch.h"

#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QTableWidget>
#include <QVBoxLayout>
#include <algorithm>

#include "common/AmountText.h"
#include "ui/sales/SaleDialogLook.h"

namespace sandogh {

namespace {

enum Column { kBarcode, kName, kPrice, kStock, kCodes, kColumnCount };

QTableWidgetItem* cell(const QString& text, bool amount = false) {
    auto* item = new QTableWidgetItem(text);
    if (amount) {
        // Amounts line up on their last digit.
        item->setTextAlignment(Qt::AlignRight | Qt::AlignAbsolute | Qt::AlignVCenter);
    }
    return item;
}

}  // namespace

frmGoodsSearch::frmGoodsSearch(Database& database, QWidget* parent)
    : QDialog(parent)
    , txtSearch(new QLineEdit(this))
    , grdGoods(new QTableWidget(0, kColumnCount, this))
    , lblStatus(new QLabel(this))
    , m_database(database) {
    setObjectName(QStringLiteral("frmGoodsSearch"));
    setWindowTitle(QStringLiteral("جستجوی کالا"));
    setModal(true);
    setLayoutDirection(Qt::RightToLeft);
    resize(820, 520);

    auto* caption = new QLabel(QStringLiteral("نام، بارکد، کد فروش یا کد ساختاری:"), this);
    txtSearch->setObjectName(QStringLiteral("txtSearch"));
    txtSearch->setFont(SaleDialogLook::entryFont(font()));
    caption->setBuddy(txtSearch);
    grdGoods->setObjectName(QStringLiteral("grdGoods"));
    grdGoods->setHorizontalHeaderLabels({QStringLiteral("بارکد"), QStringLiteral("نام کالا"),
                                         QStringLiteral("قیمت"), QStringLiteral("موجودی"),
                                         QStringLiteral("کد فروش / ساختاری")});
    grdGoods->setSelectionBehavior(QAbstractItemView::SelectRows);
    grdGoods->setSelectionMode(QAbstractItemView::SingleSelection);
    grdGoods->setEditTriggers(QAbstractItemView::NoEditTriggers);
    grdGoods->setFocusPolicy(Qt::NoFocus);
    grdGoods->verticalHeader()->hide();
    grdGoods->horizontalHeader()->setSectionResizeMode(kName, QHeaderView::Stretch);
    lblStatus->setObjectName(QStringLiteral("lblStatus"));

    connect(txtSearch, &QLineEdit::textEdited, this, &frmGoodsSearch::search);
    connect(grdGoods, &QTableWidget::cellDoubleClicked, this, [this] { choose(); });
    txtSearch->installEventFilter(this);

    auto* layout = new QVBoxLayout(this);
    layout->addWidget(caption);
    layout->addWidget(txtSearch);
    layout->addWidget(grdGoods, 1);
    layout->addWidget(lblStatus);
}

void frmGoodsSearch::search(const QString& typed) {
    const GoodsSearchQuery::Result found = GoodsSearchQuery(m_database).find(typed);
    m_rows = found.rows;
    grdGoods->setRowCount(0);
    grdGoods->setRowCount(static_cast<int>(m_rows.size()));
    for (int r = 0; r < m_rows.size(); ++r) {
        const GoodsSearchQuery::Row& row = m_rows.at(r);
        grdGoods->setItem(r, kBarcode, cell(row.barcode));
        grdGoods->setItem(r, kName, cell(row.name));
        grdGoods->setItem(r, kPrice,
                          cell(QString::fromStdString(AmountText::formatWhole(row.cost)), true));
        grdGoods->setItem(
            r, kStock, cell(QString::fromStdString(AmountText::formatDecimals(row.stock)), true));
        QString codes = row.specCode;
        if (!row.complexCode.isEmpty()) {
            codes += (codes.isEmpty() ? QString() : QStringLiteral(" / ")) + row.complexCode;
        }
        grdGoods->setItem(r, kCodes, cell(codes));
    }
    if (!m_rows.isEmpty()) {
        grdGoods->setCurrentCell(0, kName);
    }
    if (!found.ok) {
        lblStatus->setText(QStringLiteral("جستجو انجام نشد."));
    } else if (typed.trimmed().isEmpty()) {
        lblStatus->clear();
    } else if (m_rows.isEmpty()) {
        lblStatus->setText(QStringLiteral("کالایی یافت نشد."));
    } else {
        lblStatus->setText(QStringLiteral("%1 کالا؛ با بالا و پایین انتخاب کنید و Enter بزنید.")
                               .arg(m_rows.size()));
    }
}

QString frmGoodsSearch::chosenBarcode() const {
    const int row = grdGoods->currentRow();
    return row >= 0 && row < m_rows.size() ? m_rows.at(row).barcode : QString();
}

void frmGoodsSearch::moveRow(int step) {
    if (m_rows.isEmpty()) {
        return;
    }
    const int row =
        std::clamp(grdGoods->currentRow() + step, 0, static_cast<int>(m_rows.size()) - 1);
    grdGoods->setCurrentCell(row, kName);
}

void frmGoodsSearch::choose() {
    if (!chosenBarcode().isEmpty()) {
        accept();
    }
}

bool frmGoodsSearch::eventFilter(QObject* watched, QEvent* event) {
    if (watched == txtSearch && event->type() == QEvent::KeyPress) {
        auto* key = static_cast<QKeyEvent*>(event);
        switch (key->key()) {
            case Qt::Key_Up:
                moveRow(-1);
                return true;
            case Qt::Key_Down:
                moveRow(1);
                return true;
            case Qt::Key_PageUp:
                moveRow(-10);
                return true;
            case Qt::Key_PageDown:
                moveRow(10);
                return true;
            case Qt::Key_Return:
            case Qt::Key_Enter:
                choose();
                return true;
            default:
                break;
        }
    }
    return QDialog::eventFilter(watched, event);
}

QString frmGoodsSearch::chooseGoods() {
    txtSearch->clear();
    search(QString());
    txtSearch->setFocus();
    if (exec() != QDialog::Accepted) {
        return {};
    }
    return chosenBarcode();
}

}  // namespace sandogh
