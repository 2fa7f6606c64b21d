#include "sales/CustomerSearch.h"

#include "data/Database.h"
#include "data/repositories/SaleCustomersQuery.h"

namespace sandogh {

namespace {

const QString kModule = QStringLiteral("frmSale");

}  // namespace

CustomerSearch::CustomerSearch(Database& database) : m_database(database) {}

int CustomerSearch::search(Mode mode, const QString& text) {
    clear();
    Session session = m_database.session(kModule, QStringLiteral("txtAccountSearch_KeyDown"));
    const std::optional<QList<SaleCustomer>> found =
        SaleCustomersQuery::search(session, mode, text);
    if (!found) {
        return 0;
    }
    m_results = *found;
    m_current = m_results.isEmpty() ? -1 : 0;
    return static_cast<int>(m_results.size());
}

SaleCustomer CustomerSearch::current() const {
    return m_current >= 0 ? m_results.at(m_current) : SaleCustomer{};
}

bool CustomerSearch::next() {
    return setCurrentIndex(m_current + 1);
}

bool CustomerSearch::previous() {
    return m_current > 0 && setCurrentIndex(m_current - 1);
}

bool CustomerSearch::setCurrentIndex(int index) {
    if (index < 0 || index >= m_results.size() || index == m_current) {
        return false;
    }
    m_current = index;
    return true;
}

void CustomerSearch::clear() {
    m_results.clear();
    m_current = -1;
}

SaleCustomer CustomerSearch::byCounter(int counter) {
    Session session = m_database.session(kModule, QStringLiteral("SelectCustomer"));
    return SaleCustomersQuery::byCounter(session, counter);
}

}  // namespace sandogh
