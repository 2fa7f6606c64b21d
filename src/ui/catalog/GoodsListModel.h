#pragma once

#include <QAbstractTableModel>
#include <QList>
#include <memory>

#include "data/repositories/GoodsListQuery.h"

namespace sandogh {

class Database;

// The rows of the goods list, read a page at a time as the grid scrolls towards the end
// (canFetchMore/fetchMore): a catalogue of any size opens with its first page and is
// never counted. Columns: barcode, special code, name, Latin name, unit, sale
// price, stock and the active flag.
class GoodsListModel : public QAbstractTableModel {
    Q_OBJECT

public:
    enum Column { Barcode, SpecCode, Name, EnName, Unit, Cost, Stock, Active, ColumnCount };

    static constexpr int kPageRows = 200;

    explicit GoodsListModel(Database& database, QObject* parent = nullptr);

    // Starts the list again for a search (an empty text lists every article by barcode)
    // and reads its first page.
    void search(GoodsListQuery::SearchColumn column, const QString& text);
    // Reads the list again from its first page, with the search in force.
    void refresh();

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation,
                        int role = Qt::DisplayRole) const override;
    bool canFetchMore(const QModelIndex& parent) const override;
    void fetchMore(const QModelIndex& parent) override;

    const GoodsListQuery::Row& row(int index) const { return rows_.at(index); }
    // The row of a barcode among those read so far; -1 when not read (yet).
    int rowOf(const QString& barcode) const;
    // Pages read since the last search.
    int pagesRead() const { return pages_; }

private:
    Database& database_;
    std::unique_ptr<GoodsListQuery> query_;
    GoodsListQuery::SearchColumn column_ = GoodsListQuery::SearchColumn::None;
    QString text_;
    QList<GoodsListQuery::Row> rows_;
    GoodsListQuery::Position next_;
    bool atEnd_ = true;
    int pages_ = 0;
};

}  // namespace sandogh
