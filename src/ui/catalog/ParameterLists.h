#pragma once

#include <QList>
#include <QString>

namespace sandogh {

class Database;

// The lists of the parameter table a person keeps through the list screen: units of
// measure, the customer grade, job, interest and area lists, and the values of every
// goods and account code level defined in Code_Parameters.
class ParameterLists {
public:
    struct Entry {
        int typeNo = 0;
        QString title;
    };

    static constexpr int kUnits = 61;
    static constexpr int kCustomerGrades = 1010;
    static constexpr int kCustomerJobs = 1011;
    static constexpr int kCustomerInterests = 1012;
    static constexpr int kCustomerAreas = 1013;

    // Every list: the fixed ones first, then the goods levels and the account levels.
    static QList<Entry> all(Database& database);
    // The name of a list: a fixed list's own, a code level's name from its definition
    // (its number when it has none).
    static QString title(Database& database, int typeNo);
    // The lists with a fixed name (units and the customer lists).
    static QString fixedTitle(int typeNo);
};

}  // namespace sandogh
