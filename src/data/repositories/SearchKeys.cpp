#include "data/repositories/SearchKeys.h"

#include "data/repositories/GoodsSearchQuery.h"

namespace sandogh {

QString SearchKeys::party(const QString& name, const QString& family) {
    return GoodsSearchQuery::searchKey(name + QLatin1Char(' ') + family);
}

QString SearchKeys::base(const QString& base) {
    return GoodsSearchQuery::searchKey(base);
}

}  // namespace sandogh
