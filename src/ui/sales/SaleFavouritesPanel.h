#pragma once

#include <QFrame>
#include <QList>

#include "sales/FavouriteGoods.h"

class QTabBar;
class QTableWidget;

namespace sandogh {

// The favourite goods beside the grid: a tab per favourites tab that holds goods, and the
// grid dgGoods of the chosen tab (barcode, name, price). Choosing a cell (a click, or a
// double click when the desk asks for it) names that article as if it had been scanned.
// The user's order of the grid's columns is kept in the settings whenever a column is
// moved, and put back when the panel opens.
class SaleFavouritesPanel : public QFrame {
    Q_OBJECT

public:
    // The favourites tabs looked at, numbered from 1.
    static constexpr int kTabCount = 6;
    enum Column { ColBarcode = 0, ColName = 1, ColCost = 2, ColumnCount = 3 };

    SaleFavouritesPanel(FavouriteGoods& favourites, bool chooseOnDoubleClick,
                        QWidget* parent = nullptr);

    // Whether any tab holds goods; the screen leaves an empty panel out.
    bool hasGoods() const { return !m_tabs.isEmpty(); }
    // The tab numbers shown, in order.
    QList<int> tabs() const { return m_tabs; }
    void showTab(int tabIndex);

    // The column order as kept: the logical columns in the order they are shown,
    // comma-separated ("1,0,2"); parse gives nothing for a text that is not such an order.
    QString columnOrderText() const;
    static QList<int> parseColumnOrder(const QString& text);
    void applyColumnOrder(const QList<int>& order);

signals:
    void goodsChosen(const QString& barcode);

private:
    QTabBar* tabFavourites;
    QTableWidget* dgGoods;

    void loadTabs();
    void chooseRow(int row);
    void onSectionMoved();

    FavouriteGoods& m_favourites;
    QList<int> m_tabs;
    QList<QList<FavouriteGoods::Item>> m_goods;
    bool m_restoring = false;
};

}  // namespace sandogh
