#include "reports/ShopReports.h"

#include <QHash>
#include <QMap>
#include <algorithm>
#include <stdexcept>

#include "common/JalaliCalendar.h"
#include "data/repositories/SalesReportQueries.h"
#include "data/repositories/StockReportQueries.h"

namespace sandogh {

namespace {

using namespace reportfigures;

constexpr int kSale = 2;

// Quantity-weighted, a zero total quantity dividing by one as the average purchase price does.
double unitCost(const reportrows::PurchaseCost& c) {
    return c.landedValue / (c.quantity == 0 ? 1 : c.quantity);
}

QHash<QString, double> unitCosts(const QList<reportrows::PurchaseCost>& costs) {
    QHash<QString, double> byBarcode;
    for (const reportrows::PurchaseCost& c : costs) {
        byBarcode.insert(c.barcode, unitCost(c));
    }
    return byBarcode;
}

// Whether asOf lies fewer days after the first day of its year than before today. A shop
// database holds one fiscal year, so its first documents are near that day.
bool nearerTheYearStart(const QString& asOf, const QString& today) {
    const auto day = JalaliCalendar::toSerial(asOf.toStdString());
    const auto now = JalaliCalendar::toSerial(today.toStdString());
    const auto first = JalaliCalendar::toSerial(asOf.left(4).toStdString() + "/01/01");
    return day && now && first && *day - *first < *now - *day;
}

}  // namespace

ShopReports::ShopReports(Session& session) : m_session(session) {}

QStringList ShopReports::datesOf(const QString& from, const QString& to) {
    QStringList dates;
    if (!JalaliCalendar::isValidDateText(from.toStdString()) ||
        !JalaliCalendar::isValidDateText(to.toStdString()) || to < from) {
        return dates;
    }
    try {
        for (std::string day = from.toStdString(); QString::fromStdString(day) <= to;
             day = JalaliCalendar::addDays(day, 1)) {
            dates << QString::fromStdString(day);
        }
    } catch (const std::exception&) {
        // The end of the calendar's tables: the dates so far.
    }
    return dates;
}

std::optional<QList<Period>> ShopReports::days(const ReportFilter& filter) {
    const auto rows = SalesReportQueries::days(m_session, filter);
    if (!rows) {
        return std::nullopt;
    }
    QMap<QString, Period> byDate;
    for (const QString& date : datesOf(filter.from, filter.to)) {
        byDate.insert(date, Period{date});
    }
    for (const reportrows::DayKind& r : *rows) {
        Period& p = byDate[r.date];
        p.label = r.date;
        if (r.transType == kSale) {
            p.salesCount += r.count;
            p.salesAmount += r.amount;
            p.salesReceived += r.received;
        } else {
            p.returnsCount += r.count;
            p.returnsAmount += r.amount;
            p.returnsReceived += r.received;
        }
    }
    return byDate.values();
}

QList<Period> ShopReports::months(const QList<Period>& days) {
    QList<Period> months;
    for (const Period& d : days) {
        const QString month = d.label.left(d.label.lastIndexOf(QLatin1Char('/')));
        if (months.isEmpty() || months.last().label != month) {
            months.append(Period{month});
        }
        Period& m = months.last();
        m.salesCount += d.salesCount;
        m.salesAmount += d.salesAmount;
        m.salesReceived += d.salesReceived;
        m.returnsCount += d.returnsCount;
        m.returnsAmount += d.returnsAmount;
        m.returnsReceived += d.returnsReceived;
    }
    return months;
}

std::optional<QList<Article>> ShopReports::articles(const ReportFilter& filter, bool withCost) {
    const auto sold = SalesReportQueries::articles(m_session, filter);
    if (!sold) {
        return std::nullopt;
    }
    QHash<QString, double> cost;
    if (withCost) {
        const auto costs = StockReportQueries::purchaseCosts(m_session, filter.to);
        if (!costs) {
            return std::nullopt;
        }
        cost = unitCosts(*costs);
    }
    QList<Article> articles;
    articles.reserve(sold->size());
    for (const reportrows::ArticleSales& s : *sold) {
        articles.append({s.barcode, s.name, s.quantity, s.amount, cost.value(s.barcode)});
    }
    return articles;
}

std::optional<QList<StockLine>> ShopReports::stock(const QString& asOf, const QString& today,
                                                   std::optional<int> goodsGroup) {
    const auto onHand = StockReportQueries::onHand(m_session, goodsGroup);
    if (!onHand) {
        return std::nullopt;
    }
    // The stock on a past day is the stock now less what moved after it, or (the same
    // while Stock is repaired) the sum of what moved up to it: whichever reads fewer days.
    const bool upTo = asOf < today && nearerTheYearStart(asOf, today);
    QHash<QString, double> moved;
    if (asOf < today) {
        const auto rows = upTo ? StockReportQueries::movedUpTo(m_session, asOf)
                               : StockReportQueries::movedAfter(m_session, asOf);
        if (!rows) {
            return std::nullopt;
        }
        for (const reportrows::ArticleStock& m : *rows) {
            moved[m.barcode] += m.quantity;
        }
    }
    const auto costs = StockReportQueries::purchaseCosts(m_session, asOf);
    if (!costs) {
        return std::nullopt;
    }
    const QHash<QString, double> cost = unitCosts(*costs);
    QList<StockLine> lines;
    lines.reserve(onHand->size());
    for (const reportrows::ArticleStock& a : *onHand) {
        const double quantity = upTo ? moved.value(a.barcode) : a.quantity - moved.value(a.barcode);
        lines.append({a.barcode, a.name, quantity, cost.value(a.barcode)});
    }
    std::sort(lines.begin(), lines.end(),
              [](const StockLine& a, const StockLine& b) { return a.barcode < b.barcode; });
    return lines;
}

std::optional<Payments> ShopReports::payments(const ReportFilter& filter) {
    const auto dayRows = SalesReportQueries::days(m_session, filter);
    const auto shares = SalesReportQueries::accountShares(m_session, filter);
    const auto gift = SalesReportQueries::giftCards(m_session, filter);
    const auto cheque = SalesReportQueries::cheques(m_session, filter);
    if (!dayRows || !shares || !gift || !cheque) {
        return std::nullopt;
    }
    Payments p;
    for (const reportrows::DayKind& r : *dayRows) {
        p.received += r.transType == kSale ? r.received : -r.received;
    }
    QMap<QString, double> terminals;
    double cashAccounts = 0;
    for (const reportrows::AccountShare& s : *shares) {
        if (!s.posId.isEmpty()) {
            terminals[s.posId] += s.amount;
        } else if (s.customer) {
            p.customerAccount += s.amount;
        } else {
            cashAccounts += s.amount;
        }
    }
    for (auto it = terminals.cbegin(); it != terminals.cend(); ++it) {
        if (it.value() != 0) {
            p.terminals.append({it.key(), it.value()});
        }
    }
    // The gift card's part and cheques are posted to the cash box or the account chosen
    // for the sale: what is left there is cash.
    p.giftCard = *gift;
    p.cheque = *cheque;
    p.cash = cashAccounts - p.giftCard - p.cheque;
    return p;
}

std::optional<QList<Desk>> ShopReports::desks(const ReportFilter& filter) {
    const auto rows = SalesReportQueries::desks(m_session, filter);
    if (!rows) {
        return std::nullopt;
    }
    QMap<QPair<int, int>, Desk> byDesk;
    for (const reportrows::DeskShiftKind& r : *rows) {
        Desk& d = byDesk[{r.stationId, r.shiftCode}];
        d.stationId = r.stationId;
        d.stationName = r.stationName;
        d.shiftCode = r.shiftCode;
        d.shiftName = r.shiftName;
        if (r.transType == kSale) {
            d.salesCount += r.count;
            d.salesAmount += r.amount;
            d.cash += r.received;
        } else {
            d.returnsCount += r.count;
            d.salesAmount -= r.amount;
            d.cash -= r.received;
        }
    }
    return byDesk.values();
}

}  // namespace sandogh
