#pragma once

#include <QStringList>

#include "data/Session.h"

namespace sandogh {

// The placeholders of an "IN (...)" list and its values bound to them: names is
// ":b0, :b1, ..." for the values in order (prefix "b"), binds the same names with the values.
struct SqlInList {
    QString names;
    SqlBinds binds;

    static SqlInList of(const QStringList& values, const QString& prefix = QStringLiteral("b")) {
        SqlInList list;
        QStringList names;
        for (qsizetype i = 0; i < values.size(); ++i) {
            names << QLatin1Char(':') + prefix + QString::number(i);
            list.binds.append({names.last(), values.at(i)});
        }
        list.names = names.join(QStringLiteral(", "));
        return list;
    }
};

}  // namespace sandogh
