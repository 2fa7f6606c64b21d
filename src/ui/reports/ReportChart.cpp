#include "ui/reports/ReportChart.h"

#include <QBarCategoryAxis>
#include <QBarSeries>
#include <QBarSet>
#include <QChart>
#include <QLineSeries>
#include <QValueAxis>
#include <algorithm>

#include "reports/ReportTable.h"

namespace sandogh {

QChart* ReportChart::make(const ReportTable& t) {
    if (t.chart == ReportTable::ChartKind::None || t.chartValues.isEmpty()) {
        return nullptr;
    }
    auto* chart = new QChart;
    chart->setTitle(t.title + QStringLiteral("  ") + t.range);
    chart->legend()->hide();
    chart->setLocalizeNumbers(false);
    auto* categories = new QBarCategoryAxis;
    categories->append(t.chartLabels);
    categories->setLabelsAngle(t.chartLabels.size() > 12 ? -90 : 0);
    auto* values = new QValueAxis;
    // Whole amounts; the printed page shows them with separators.
    values->setLabelFormat(QStringLiteral("%.0f"));
    const double high = *std::max_element(t.chartValues.begin(), t.chartValues.end());
    const double low = *std::min_element(t.chartValues.begin(), t.chartValues.end());
    values->setRange(std::min(0.0, low), std::max(high, 1.0));
    values->applyNiceNumbers();
    chart->addAxis(categories, Qt::AlignBottom);
    chart->addAxis(values, Qt::AlignRight);
    if (t.chart == ReportTable::ChartKind::Bars) {
        auto* set = new QBarSet(t.chartSeries);
        for (const double v : t.chartValues) {
            *set << v;
        }
        auto* series = new QBarSeries;
        series->append(set);
        chart->addSeries(series);
        series->attachAxis(categories);
        series->attachAxis(values);
    } else {
        auto* series = new QLineSeries;
        series->setName(t.chartSeries);
        series->setPointsVisible(true);
        for (int i = 0; i < t.chartValues.size(); ++i) {
            series->append(i, t.chartValues.at(i));
        }
        chart->addSeries(series);
        series->attachAxis(categories);
        series->attachAxis(values);
    }
    return chart;
}

}  // namespace sandogh
