#pragma once

#include <QString>

namespace sandogh {

class Database;
class MachineSettings;
class Session;

// The shop's day in two lines, for the evening message: how many sales and returns the
// sale screen saved on a date (DocType NULL) and the money actually taken and paid back
// (ReceivedPrice, not DocSum). Every desk is counted, unlike the desk's own totals.
//
// The summary goes out once a day: the date it last went out is kept in this machine's
// settings (LastDateSendSMS).
class DailySummary {
public:
    struct Figures {
        qint64 salesCount = 0;
        double salesAmount = 0;
        qint64 returnsCount = 0;
        double returnsAmount = 0;
        bool ok = false;  // false when a look-up failed (it has been reported)
    };

    explicit DailySummary(Database& database);

    Figures read(const QString& jalaliDate);
    static Figures read(Session& session, const QString& jalaliDate);

    // Sales count and amount, a line break (CR LF), returns count and amount.
    static QString text(const Figures& figures);

    // True when the summary has not gone out on today (a Jalali date) yet.
    static bool isDue(const MachineSettings& settings, const QString& today);
    // Records that it went out today; false when the setting could not be written.
    static bool markSent(MachineSettings& settings, const QString& today);

private:
    Database& m_database;
};

}  // namespace sandogh
