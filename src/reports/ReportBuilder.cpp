#include "reports/ReportBuilder.h"

#include <algorithm>

#include "reports/ShopReports.h"

namespace sandogh {

namespace {

using namespace reportfigures;
using Column = ReportTable::Column;

const QString kDate = QStringLiteral("تاریخ");
const QString kMonth = QStringLiteral("ماه");
const QString kBarcode = QStringLiteral("بارکد");
const QString kName = QStringLiteral("نام کالا");
const QString kQuantity = QStringLiteral("تعداد");
const QString kAmount = QStringLiteral("مبلغ");

void periods(ReportTable& t, const QList<Period>& list, bool byDay) {
    t.columns = {Column{byDay ? kDate : kMonth},
                 Column{QStringLiteral("تعداد فروش")},
                 Column{QStringLiteral("مبلغ فروش"), true},
                 Column{QStringLiteral("دریافتی فروش"), true},
                 Column{QStringLiteral("تعداد برگشتی")},
                 Column{QStringLiteral("مبلغ برگشتی"), true},
                 Column{QStringLiteral("پرداختی برگشتی"), true},
                 Column{QStringLiteral("فروش خالص"), true}};
    t.chart = byDay ? ReportTable::ChartKind::Bars : ReportTable::ChartKind::Line;
    t.chartSeries = QStringLiteral("فروش خالص");
    for (const Period& p : list) {
        t.rows.append({p.label, p.salesCount, p.salesAmount, p.salesReceived, p.returnsCount,
                       p.returnsAmount, p.returnsReceived, p.netAmount()});
        t.chartLabels << p.label;
        t.chartValues << p.netAmount();
    }
}

void sellers(ReportTable& t, QList<Article> list, bool byQuantity, bool best) {
    std::stable_sort(list.begin(), list.end(), [&](const Article& a, const Article& b) {
        const double x = byQuantity ? a.quantity : a.amount;
        const double y = byQuantity ? b.quantity : b.amount;
        return best ? x > y : x < y;
    });
    t.columns = {Column{kBarcode}, Column{kName}, Column{kQuantity}, Column{kAmount, true}};
    t.chart = ReportTable::ChartKind::Bars;
    t.chartSeries = byQuantity ? kQuantity : kAmount;
    for (const Article& a : list) {
        t.rows.append({a.barcode, a.name, a.quantity, a.amount});
        if (t.chartLabels.size() < ReportBuilder::kChartArticles) {
            t.chartLabels << (a.name.isEmpty() ? a.barcode : a.name);
            t.chartValues << (byQuantity ? a.quantity : a.amount);
        }
    }
}

void profit(ReportTable& t, QList<Article> list) {
    std::stable_sort(list.begin(), list.end(),
                     [](const Article& a, const Article& b) { return a.profit() > b.profit(); });
    t.columns = {Column{kBarcode},
                 Column{kName},
                 Column{kQuantity},
                 Column{QStringLiteral("فروش خالص"), true},
                 Column{QStringLiteral("بهای تمام‌شده واحد"), true},
                 Column{QStringLiteral("بهای تمام‌شده"), true},
                 Column{QStringLiteral("سود"), true}};
    t.chart = ReportTable::ChartKind::Bars;
    t.chartSeries = QStringLiteral("سود");
    double total = 0;
    for (const Article& a : list) {
        t.rows.append({a.barcode, a.name, a.quantity, a.amount, a.unitCost, a.cost(), a.profit()});
        total += a.profit();
        if (t.chartLabels.size() < ReportBuilder::kChartArticles) {
            t.chartLabels << (a.name.isEmpty() ? a.barcode : a.name);
            t.chartValues << a.profit();
        }
    }
    t.rows.append(
        {QStringLiteral("جمع"), QString(), QVariant(), QVariant(), QVariant(), QVariant(), total});
}

void stock(ReportTable& t, const QList<StockLine>& lines) {
    t.columns = {Column{kBarcode}, Column{kName}, Column{QStringLiteral("موجودی")},
                 Column{QStringLiteral("بهای واحد"), true}, Column{QStringLiteral("ارزش"), true}};
    double quantity = 0;
    double value = 0;
    for (const StockLine& l : lines) {
        t.rows.append({l.barcode, l.name, l.quantity, l.unitCost, l.value()});
        quantity += l.quantity;
        value += l.value();
    }
    t.rows.append({QStringLiteral("جمع"), QString(), quantity, QVariant(), value});
}

void payments(ReportTable& t, const Payments& p) {
    t.columns = {Column{QStringLiteral("نوع دریافت")}, Column{kAmount, true}};
    t.chart = ReportTable::ChartKind::Bars;
    t.chartSeries = kAmount;
    const auto add = [&](const QString& kind, double amount) {
        t.rows.append({kind, amount});
        t.chartLabels << kind;
        t.chartValues << amount;
    };
    add(QStringLiteral("نقد"), p.cash);
    for (const auto& [pos, amount] : p.terminals) {
        add(QStringLiteral("پوز ") + pos, amount);
    }
    add(QStringLiteral("کارت هدیه"), p.giftCard);
    add(QStringLiteral("چک"), p.cheque);
    t.rows.append({QStringLiteral("جمع دریافتی"), p.received});
    t.rows.append({QStringLiteral("به حساب مشتری (نسیه)"), p.customerAccount});
}

void desks(ReportTable& t, const QList<Desk>& list) {
    t.columns = {
        Column{QStringLiteral("صندوق")},           Column{QStringLiteral("شیفت")},
        Column{QStringLiteral("تعداد فروش")},      Column{QStringLiteral("تعداد برگشتی")},
        Column{QStringLiteral("فروش خالص"), true}, Column{QStringLiteral("نقدینگی"), true}};
    t.chart = ReportTable::ChartKind::Bars;
    t.chartSeries = QStringLiteral("نقدینگی");
    for (const Desk& d : list) {
        const QString desk = d.stationName.isEmpty() ? QString::number(d.stationId) : d.stationName;
        const QString shift = d.shiftName.isEmpty() ? QString::number(d.shiftCode) : d.shiftName;
        t.rows.append({desk, shift, d.salesCount, d.returnsCount, d.salesAmount, d.cash});
        t.chartLabels << desk + QStringLiteral(" / ") + shift;
        t.chartValues << d.cash;
    }
}

}  // namespace

std::optional<ReportTable> ReportBuilder::build(Session& session, ReportKind kind,
                                                const ReportFilter& filter, const QString& today) {
    ShopReports reports(session);
    ReportTable t;
    t.title = ReportKinds::title(kind);
    t.range = filter.from + QStringLiteral(" - ") + filter.to;
    switch (kind) {
        case ReportKind::SalesByDay:
        case ReportKind::SalesByMonth: {
            const auto days = reports.days(filter);
            if (!days) {
                return std::nullopt;
            }
            const bool byDay = kind == ReportKind::SalesByDay;
            periods(t, byDay ? *days : ShopReports::months(*days), byDay);
            break;
        }
        case ReportKind::BestByQuantity:
        case ReportKind::BestByAmount:
        case ReportKind::WorstByQuantity:
        case ReportKind::WorstByAmount:
        case ReportKind::Profit: {
            // Only the profit needs the purchases behind the articles.
            const auto articles = reports.articles(filter, kind == ReportKind::Profit);
            if (!articles) {
                return std::nullopt;
            }
            if (kind == ReportKind::Profit) {
                profit(t, *articles);
            } else {
                sellers(t, *articles,
                        kind == ReportKind::BestByQuantity || kind == ReportKind::WorstByQuantity,
                        kind == ReportKind::BestByQuantity || kind == ReportKind::BestByAmount);
            }
            break;
        }
        case ReportKind::Stock: {
            const auto lines = reports.stock(filter.to, today, filter.goodsGroup);
            if (!lines) {
                return std::nullopt;
            }
            t.range = filter.to;
            stock(t, *lines);
            break;
        }
        case ReportKind::Payments: {
            const auto p = reports.payments(filter);
            if (!p) {
                return std::nullopt;
            }
            payments(t, *p);
            break;
        }
        case ReportKind::Desks: {
            const auto list = reports.desks(filter);
            if (!list) {
                return std::nullopt;
            }
            desks(t, *list);
            break;
        }
    }
    return t;
}

}  // namespace sandogh
