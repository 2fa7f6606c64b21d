#pragma once

#include <QString>

namespace sandogh {

class Database;

// The day's totals of one cash desk (Ctrl+T and the labels shown on opening while
// DisplayDailySale is on): the sum of DocSum and of ReceivedPrice of the day's sales
// (TransType 2) and, the same way, of its returns (TransType 3).
class DailyTotals {
public:
    struct Figures {
        double salesSum = 0;
        double salesReceived = 0;
        double returnsSum = 0;
        double returnsReceived = 0;
        bool ok = false;  // false when a look-up failed
    };

    explicit DailyTotals(Database& database);

    Figures read(int stationId, const QString& jalaliDate);

    // "فروش روزانه صندوق :" with the day's sales, and "مبلغ روزانه صندوق :" with the day's
    // received amount, "##,###".
    static QString salesLabel(const Figures& figures);
    static QString receivedLabel(const Figures& figures);

private:
    Database& m_database;
};

}  // namespace sandogh
