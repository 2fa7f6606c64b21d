#pragma once

#include <QAbstractTableModel>
#include <QList>

#include "data/repositories/SaleListQuery.h"
#include "sales/SaleList.h"

namespace sandogh {

class Database;

// The rows of frmSaleList's grid, read a page at a time as the grid scrolls
// (canFetchMore/fetchMore): a choice of a million documents opens with its first page
// and never reads them all. Columns follow SaleList::columnNames(). The internal family
// (frmSaleInterList) reads the internal documents, the branch in the customer's column.
class SaleListModel : public QAbstractTableModel {
    Q_OBJECT
public:
    enum Column {
        DocNo,
        DocDate,
        CustomerName,
        DocSum,
        Base,
        VoucherCode,
        Code,
        DocumentHID,
        CustomerCounter,
        ColumnCount
    };

    explicit SaleListModel(Database& database, QObject* parent = nullptr);
    SaleListModel(Database& database, DocumentFamily family, QObject* parent = nullptr);

    // Starts again with the first page of a choice and filter.
    void load(SaleList::Choice choice, const SaleListQuery::Filter& filter);
    SaleList::Choice choice() const { return m_choice; }
    DocumentFamily family() const { return m_family; }
    const SaleListQuery::Filter& filter() const { return m_filter; }
    const SaleListQuery::Row& row(int index) const { return m_rows.at(index); }

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation,
                        int role = Qt::DisplayRole) const override;
    bool canFetchMore(const QModelIndex& parent = {}) const override;
    void fetchMore(const QModelIndex& parent = {}) override;

private:
    Database& m_database;
    DocumentFamily m_family = DocumentFamily::Ordinary;
    SaleList::Choice m_choice = SaleList::Choice::Last500;
    SaleListQuery::Filter m_filter;
    QList<SaleListQuery::Row> m_rows;
    SaleListQuery::Position m_position;
    bool m_atEnd = true;
};

}  // namespace sandogh
