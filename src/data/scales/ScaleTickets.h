#pragma once

#include <QList>
#include <QString>
#include <optional>

namespace sandogh {

class Session;

// The tickets the label scales keep in their own databases (MizanNet's MizanNetDetail,
// OnlineSales' Sales), read on the caller's session.
class ScaleTickets {
public:
    struct Line {
        QString code;  // MizanNet PluNo, or OnlineSales ItemCode, as text
        double quantity = 0;
    };

    // The lines of a MizanNet ticket by its key (weight, or the count when unweighed).
    static std::optional<QList<Line>> mizanLines(Session& session, const QString& key);
    // The lines of an OnlineSales ticket.
    static std::optional<QList<Line>> onlineSalesLines(Session& session, const QString& date,
                                                       int receipt, int scale);
};

}  // namespace sandogh
