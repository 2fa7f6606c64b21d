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

    const GoodsListQuery::Row& row(int index) const { return m_rows.at(index); }
    // The row of a barcode among those read so far; -1 when not read (yet).
    int rowOf(const QString& barcode) const;
    // Pages read since the last search.
    int pagesRead() const { return m_pages; }

private:
    Database& m_database;
    std::unique_ptr<GoodsListQuery> m_query;
    GoodsListQuery::SearchColumn m_column = GoodsListQuery::SearchColumn::None;
    QString m_text;
    QList<GoodsListQuery::Row> m_rows;
    GoodsListQuery::Position m_next;
    bool m_atEnd = true;
    int m_pages = 0;
};

}  // namespace sandogh
