#include "ui/sales/SaleFavouritesPanel.h"

#include <QHeaderView>
#include <QSet>
#include <QTabBar>
#include <QTableWidget>
#include <QVBoxLayout>

#include "common/AmountText.h"

namespace sandogh {

SaleFavouritesPanel::SaleFavouritesPanel(FavouriteGoods& favourites, bool chooseOnDoubleClick,
                                         QWidget* parent)
    : QFrame(parent)
    , tabFavourites(new QTabBar(this))
    , dgGoods(new QTableWidget(0, ColumnCount, this))
    , m_favourites(favourites) {
    setObjectName(QStringLiteral("fraFavourites"));
    tabFavourites->setObjectName(QStringLiteral("tabFavourites"));
    tabFavourites->setExpanding(false);
    tabFavourites->setFocusPolicy(Qt::NoFocus);

    dgGoods->setObjectName(QStringLiteral("dgGoods"));
    dgGoods->setHorizontalHeaderLabels(
        {QStringLiteral("بارکد"), QStringLiteral("نام کالا"), QStringLiteral("قیمت")});
    dgGoods->setEditTriggers(QAbstractItemView::NoEditTriggers);
    dgGoods->setSelectionBehavior(QAbstractItemView::SelectRows);
    dgGoods->setSelectionMode(QAbstractItemView::SingleSelection);
    dgGoods->setFocusPolicy(Qt::NoFocus);
    dgGoods->setAlternatingRowColors(true);
    dgGoods->verticalHeader()->hide();
    QHeaderView* header = dgGoods->horizontalHeader();
    header->setSectionsMovable(true);
    header->setHighlightSections(false);
    header->setSectionResizeMode(ColName, QHeaderView::Stretch);
    header->resizeSection(ColBarcode, 110);
    header->resizeSection(ColCost, 90);

    connect(tabFavourites, &QTabBar::currentChanged, this, &SaleFavouritesPanel::showTab);
    connect(header, &QHeaderView::sectionMoved, this, &SaleFavouritesPanel::onSectionMoved);
    if (chooseOnDoubleClick) {
        connect(dgGoods, &QTableWidget::cellDoubleClicked, this,
                [this](int row, int) { chooseRow(row); });
    } else {
        connect(dgGoods, &QTableWidget::cellClicked, this,
                [this](int row, int) { chooseRow(row); });
    }

    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(tabFavourites);
    layout->addWidget(dgGoods);

    if (const QList<int> order = parseColumnOrder(m_favourites.columnOrder()); !order.isEmpty()) {
        applyColumnOrder(order);
    }
    loadTabs();
}

void SaleFavouritesPanel::loadTabs() {
    for (int tab = 1; tab <= kTabCount; ++tab) {
        const QList<FavouriteGoods::Item> goods = m_favourites.list(tab);
        if (goods.isEmpty()) {
            continue;
        }
        m_tabs << tab;
        m_goods << goods;
        tabFavourites->addTab(QString::number(tab));
    }
    if (!m_tabs.isEmpty()) {
        showTab(0);
    }
}

void SaleFavouritesPanel::showTab(int tabIndex) {
    if (tabIndex < 0 || tabIndex >= m_goods.size()) {
        return;
    }
    if (tabFavourites->currentIndex() != tabIndex) {
        tabFavourites->setCurrentIndex(tabIndex);  // comes back here
        return;
    }
    const QList<FavouriteGoods::Item>& goods = m_goods.at(tabIndex);
    dgGoods->setRowCount(static_cast<int>(goods.size()));
    for (int row = 0; row < goods.size(); ++row) {
        const FavouriteGoods::Item& item = goods.at(row);
        dgGoods->setItem(row, ColBarcode, new QTableWidgetItem(item.barcode));
        dgGoods->setItem(row, ColName, new QTableWidgetItem(item.name));
        auto* cost =
            new QTableWidgetItem(QString::fromStdString(AmountText::formatWhole(item.cost)));
        cost->setTextAlignment(Qt::AlignRight | Qt::AlignAbsolute | Qt::AlignVCenter);
        dgGoods->setItem(row, ColCost, cost);
    }
}

void SaleFavouritesPanel::chooseRow(int row) {
    const int tab = tabFavourites->currentIndex();
    if (tab < 0 || tab >= m_goods.size() || row < 0 || row >= m_goods.at(tab).size()) {
        return;
    }
    emit goodsChosen(m_goods.at(tab).at(row).barcode);
}

QString SaleFavouritesPanel::columnOrderText() const {
    const QHeaderView* header = dgGoods->horizontalHeader();
    QStringList order;
    for (int visual = 0; visual < ColumnCount; ++visual) {
        order << QString::number(header->logicalIndex(visual));
    }
    return order.join(u',');
}

QList<int> SaleFavouritesPanel::parseColumnOrder(const QString& text) {
    const QStringList parts = text.split(u',', Qt::SkipEmptyParts);
    if (parts.size() != ColumnCount) {
        return {};
    }
    QList<int> order;
    QSet<int> seen;
    for (const QString& part : parts) {
        bool ok = false;
        const int column = part.trimmed().toInt(&ok);
        if (!ok || column < 0 || column >= ColumnCount || seen.contains(column)) {
            return {};
        }
        seen.insert(column);
        order << column;
    }
    return order;
}

void SaleFavouritesPanel::applyColumnOrder(const QList<int>& order) {
    QHeaderView* header = dgGoods->horizontalHeader();
    m_restoring = true;
    for (int visual = 0; visual < order.size(); ++visual) {
        header->moveSection(header->visualIndex(order.at(visual)), visual);
    }
    m_restoring = false;
}

void SaleFavouritesPanel::onSectionMoved() {
    if (!m_restoring) {
        m_favourites.saveColumnOrder(columnOrderText());
    }
}

}  // namespace sandogh
