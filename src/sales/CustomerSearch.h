#pragma once

#include <QList>
#include <QString>

#include "data/repositories/SaleCustomersQuery.h"
#include "sales/SaleCustomer.h"

namespace sandogh {

class Database;

// The customer search of txtAccountSearch: customers (Types rows of TypeNo 10 or 11) with
// their group, narrowed by telephone (Value2 or Value3), mobile, name and family, or code.
// Enter searches; the Up and Down keys move in the results instead (previous()/next()).
class CustomerSearch {
public:
    using Mode = SaleCustomersQuery::Mode;

    explicit CustomerSearch(Database& database);

    // Runs the search and moves to the first result; returns the number of results
    // (0 also when the look-up failed: the connection message has been shown).
    int search(Mode mode, const QString& text);
    const QList<SaleCustomer>& results() const { return m_results; }
    bool isEmpty() const { return m_results.isEmpty(); }
    // -1 without results.
    int currentIndex() const { return m_current; }
    // The current result; an invalid customer without results.
    SaleCustomer current() const;
    // Down: the next result, staying on the last; Up: the previous, staying on the first.
    // False when there was nowhere to move.
    bool next();
    bool previous();
    bool setCurrentIndex(int index);
    void clear();

    // One customer by Counter, with the same columns; invalid when there is none.
    SaleCustomer byCounter(int counter);

private:
    Database& m_database;
    QList<SaleCustomer> m_results;
    int m_current = -1;
};

}  // namespace sandogh
