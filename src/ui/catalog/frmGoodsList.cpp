#include "ui/catalog/frmGoodsList.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTableView>
#include <QVBoxLayout>

#include "data/repositories/GoodsMessages.h"
#include "settings/MessageService.h"
#include "ui/catalog/CatalogCaptions.h"
#include "ui/catalog/GoodsListModel.h"
#include "ui/catalog/GridSetup.h"
#include "ui/catalog/ResultMessage.h"
#include "ui/catalog/frmGood.h"

namespace sandogh {

namespace {

using Column = GoodsListQuery::SearchColumn;

// The search choices in the order of the grid's first columns.
constexpr Column kSearchColumns[] = {Column::Barcode, Column::SpecCode, Column::Name};

}  // namespace

frmGoodsList::frmGoodsList(Database& database, MessageService& messages, const Clock& clock,
                           int userId, GoodsSavedHook* hook, QWidget* parent)
    : QWidget(parent)
    , m_database(database)
    , m_messages(messages)
    , m_clock(clock)
    , m_userId(userId)
    , m_hook(hook)
    , m_repository(database, clock, userId, hook)
    , m_model(new GoodsListModel(database, this))
    , txtSearch(new QLineEdit(this))
    , cboSearchColumn(new QComboBox(this))
    , grdGoods(new QTableView(this))
    , cmdNew(new QPushButton(catalogcaptions::kNew, this))
    , cmdEdit(new QPushButton(catalogcaptions::kEdit, this))
    , cmdDeactivate(new QPushButton(catalogcaptions::kDeactivate, this))
    , cmdDelete(new QPushButton(catalogcaptions::kDelete, this))
    , cmdExit(new QPushButton(catalogcaptions::kExit, this)) {
    using namespace catalogcaptions;
    setObjectName(QStringLiteral("frmGoodsList"));
    setLayoutDirection(Qt::RightToLeft);
    setWindowTitle(kGoodsListTitle);
    txtSearch->setObjectName(QStringLiteral("txtSearch"));
    cboSearchColumn->setObjectName(QStringLiteral("cboSearchColumn"));
    grdGoods->setObjectName(QStringLiteral("grdGoods"));
    cmdNew->setObjectName(QStringLiteral("cmdNew"));
    cmdEdit->setObjectName(QStringLiteral("cmdEdit"));
    cmdDeactivate->setObjectName(QStringLiteral("cmdDeactivate"));
    cmdDelete->setObjectName(QStringLiteral("cmdDelete"));
    cmdExit->setObjectName(QStringLiteral("cmdExit"));
    cboSearchColumn->addItems({kBarcode, kSpecCode, kGoodsName});
    cboSearchColumn->setCurrentIndex(2);

    grdGoods->setModel(m_model);
    grdGoods->setSelectionBehavior(QAbstractItemView::SelectRows);
    grdGoods->setSelectionMode(QAbstractItemView::SingleSelection);
    grdGoods->setEditTriggers(QAbstractItemView::NoEditTriggers);
    grdGoods->setAlternatingRowColors(true);
    grdGoods->verticalHeader()->setVisible(false);
    // Rows of one height: the grid never measures rows it has not shown.
    grdGoods->verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    grdGoods->horizontalHeader()->setStretchLastSection(true);
    grdGoods->horizontalHeader()->setMinimumSectionSize(40);
    grdGoods->setColumnWidth(GoodsListModel::Barcode, 130);
    grdGoods->setColumnWidth(GoodsListModel::SpecCode, 80);
    grdGoods->setColumnWidth(GoodsListModel::Name, 230);
    grdGoods->setColumnWidth(GoodsListModel::EnName, 130);
    grdGoods->setColumnWidth(GoodsListModel::Unit, 70);
    grdGoods->setColumnWidth(GoodsListModel::Cost, 100);
    grdGoods->setColumnWidth(GoodsListModel::Stock, 80);

    auto* search = new QHBoxLayout;
    search->addWidget(new QLabel(kSearch, this));
    search->addWidget(txtSearch, 1);
    search->addWidget(new QLabel(kSearchIn, this));
    search->addWidget(cboSearchColumn);
    auto* buttons = new QHBoxLayout;
    buttons->addWidget(cmdNew);
    buttons->addWidget(cmdEdit);
    buttons->addWidget(cmdDeactivate);
    buttons->addWidget(cmdDelete);
    buttons->addStretch(1);
    buttons->addWidget(cmdExit);
    auto* layout = new QVBoxLayout(this);
    layout->addLayout(search);
    layout->addWidget(grdGoods, 1);
    layout->addLayout(buttons);
    resize(980, 600);

    connect(txtSearch, &QLineEdit::textChanged, this, &frmGoodsList::runSearch);
    connect(cboSearchColumn, &QComboBox::currentIndexChanged, this, &frmGoodsList::runSearch);
    connect(cmdNew, &QPushButton::clicked, this, [this] { openArticle({}); });
    connect(cmdEdit, &QPushButton::clicked, this, [this] {
        if (const QString barcode = currentBarcode(); !barcode.isEmpty()) {
            openArticle(barcode);
        }
    });
    connect(grdGoods, &QTableView::doubleClicked, this, [this] {
        if (const QString barcode = currentBarcode(); !barcode.isEmpty()) {
            openArticle(barcode);
        }
    });
    connect(cmdDeactivate, &QPushButton::clicked, this, &frmGoodsList::deactivateCurrent);
    connect(cmdDelete, &QPushButton::clicked, this, &frmGoodsList::deleteCurrent);
    connect(cmdExit, &QPushButton::clicked, this, &QWidget::close);
    GridSetup::selectRow(grdGoods, 0);
}

void frmGoodsList::runSearch() {
    const int index = cboSearchColumn->currentIndex();
    const Column column =
        index >= 0 && index < int(std::size(kSearchColumns)) ? kSearchColumns[index] : Column::Name;
    m_model->search(column, txtSearch->text());
    GridSetup::selectRow(grdGoods, 0);
}

void frmGoodsList::refreshKeeping(const QString& barcode) {
    m_model->refresh();
    if (barcode.isEmpty() || !selectBarcode(barcode)) {
        GridSetup::selectRow(grdGoods, 0);
    }
}

QString frmGoodsList::currentBarcode() const {
    const int row = GridSetup::selectedRow(grdGoods);
    return row >= 0 && row < m_model->rowCount() ? m_model->row(row).barcode : QString();
}

bool frmGoodsList::selectBarcode(const QString& barcode) {
    const int row = m_model->rowOf(barcode);
    if (row < 0) {
        return false;
    }
    GridSetup::selectRow(grdGoods, row);
    return true;
}

frmGood* frmGoodsList::openArticle(const QString& barcode) {
    auto* screen = new frmGood(m_database, m_messages, m_clock, m_userId, m_hook, barcode, this);
    screen->setWindowFlag(Qt::Window);
    screen->setAttribute(Qt::WA_DeleteOnClose);
    connect(screen, &frmGood::saved, this, &frmGoodsList::refreshKeeping);
    connect(screen, &frmGood::deleted, this, [this] { refreshKeeping({}); });
    screen->show();
    return screen;
}

void frmGoodsList::deactivateCurrent() {
    const QString barcode = currentBarcode();
    if (barcode.isEmpty() ||
        !m_messages.show(goodsmessages::kDeactivateConfirm, MessageStyle::QuestionYesNo)) {
        return;
    }
    if (m_repository.setActive(barcode, false)) {
        refreshKeeping(barcode);
    }
}

void frmGoodsList::deleteCurrent() {
    const QString barcode = currentBarcode();
    if (barcode.isEmpty()) {
        return;
    }
    const CheckResult allowed = m_repository.canDelete(barcode);
    if (!allowed.ok) {
        ResultMessage::show(m_messages, allowed);
        if (m_messages.show(goodsmessages::kDeactivateQuestion, MessageStyle::QuestionYesNo) &&
            m_repository.setActive(barcode, false)) {
            refreshKeeping(barcode);
        }
        return;
    }
    if (!m_messages.show(allowed.message, MessageStyle::QuestionOkCancel)) {
        return;
    }
    const CheckResult removed = m_repository.remove(barcode);
    ResultMessage::show(m_messages, removed);
    if (removed.ok) {
        refreshKeeping({});
    }
}

}  // namespace sandogh
