#pragma once

#include <QString>
#include <QStringList>

namespace sandogh {

class Database;

// btnCustomerDetail: the customer's name, number of purchases, account balance and net
// sales, from the customer's documents (PartyBalance).
class CustomerSummary {
public:
    struct Figures {
        QString name;
        qint64 purchaseCount = 0;
        // What the customer owes: sales (with the opening Credit) less received amounts and
        // returns; negative when the customer is in credit.
        double balance = 0;
        // Sales less returns.
        double netSales = 0;
    };

    explicit CustomerSummary(Database& database);

    Figures figures(int counter, const QString& name);
    // The four lines as shown: "نام مشتري : " and name, then the count, balance and net
    // sales, amounts "##,###".
    static QStringList lines(const Figures& figures);

private:
    Database& m_database;
};

}  // namespace sandogh
