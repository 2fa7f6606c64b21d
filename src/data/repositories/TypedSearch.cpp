#include "data/repositories/TypedSearch.h"

#include "data/Dialect.h"
#include "data/repositories/GoodsListQuery.h"
#include "data/repositories/GoodsSearchQuery.h"

namespace sandogh {

QString TypedSearch::condition(const Dialect& dialect, const QString& column,
                               const QString& parameter) {
    return dialect.searchKeyExpression(column) + QStringLiteral(" LIKE ") + parameter +
           QStringLiteral(" ESCAPE '\\'");
}

QString TypedSearch::contains(const QString& typed) {
    return QLatin1Char('%') +
           GoodsListQuery::escapeLike(GoodsSearchQuery::searchKey(typed.trimmed())) +
           QLatin1Char('%');
}

}  // namespace sandogh
