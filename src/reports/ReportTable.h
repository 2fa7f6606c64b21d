#pragma once

#include <QList>
#include <QString>
#include <QVariant>

namespace sandogh {

// A report as rows and columns, with the chart drawn from it: what the screen shows, the
// CSV file holds and the PDF page prints. Cells keep numbers as numbers; amounts are
// formatted with separators only when shown.
class ReportTable {
public:
    enum class ChartKind { None, Bars, Line };

    struct Column {
        QString title;
        bool amount = false;  // a number shown "##,###"
    };

    QString title;
    QString range;  // "1404/01/01 - 1404/01/31"
    QList<Column> columns;
    QList<QVariantList> rows;
    // The chart: one value per label, both from the rows.
    ChartKind chart = ChartKind::None;
    QString chartSeries;
    QStringList chartLabels;
    QList<double> chartValues;

    // A cell as shown: amounts with separators, other numbers plain.
    QString cellText(int row, int column) const;
    static QString amountText(double value);
};

}  // namespace sandogh
