#pragma once

#include <QString>
#include <QStringList>

namespace sandogh {

class Database;

// btnCalculateHesab: the gift cards a customer has received (their number and the total
// charged) and the loyalty gifts taken with the date of the last one.
class CustomerCardSummary {
public:
    struct Figures {
        qint64 cards = 0;
        double cardsTotal = 0;
        double gifts = 0;  // DiscountTakenTotal
        QString lastGift;  // LastDiscountTakenDate; empty when none
        bool ok = true;    // false when a statement failed
    };

    explicit CustomerCardSummary(Database& database);

    Figures figures(int customer);
    // The four lines as shown, amounts "##,###".
    static QStringList lines(const Figures& figures);

private:
    Database& m_database;
};

}  // namespace sandogh
