#include "reports/ReportPdf.h"

#include <QFont>
#include <QPageLayout>
#include <QPageSize>
#include <QPainter>
#include <QPdfWriter>
#include <algorithm>
#include <cmath>

#include "reports/ReportTable.h"

namespace sandogh {

namespace {

// Debian's fonts-noto-core; Qt falls back to another font with Arabic script if it lacks.
const QString kFontFamily = QStringLiteral("Noto Sans Arabic");
constexpr int kResolution = 150;  // dots per inch of the page's coordinates
constexpr int kChartTicks = 5;
const QColor kBarColour(0x2e, 0x6d, 0xb4);

QFont font(int points, bool bold = false) {
    QFont f(kFontFamily);
    f.setPointSize(points);
    f.setBold(bold);
    return f;
}

// A nice step of the value axis: 1, 2 or 5 times a power of ten.
double niceStep(double span) {
    if (span <= 0) {
        return 1;
    }
    const double raw = span / kChartTicks;
    const double power = std::pow(10.0, std::floor(std::log10(raw)));
    for (const double m : {1.0, 2.0, 5.0, 10.0}) {
        if (raw <= m * power) {
            return m * power;
        }
    }
    return 10 * power;
}

void drawRtl(QPainter& p, const QRectF& r, const QString& text, Qt::Alignment align) {
    // Left and right mean the page's edges, whatever the direction of the text.
    QTextOption option(align | Qt::AlignAbsolute);
    option.setTextDirection(Qt::RightToLeft);
    option.setWrapMode(QTextOption::NoWrap);
    p.drawText(r, text, option);
}

}  // namespace

void ReportPdf::paintChart(QPainter& p, const QRectF& area, const ReportTable& t) {
    if (t.chart == ReportTable::ChartKind::None || t.chartValues.isEmpty()) {
        return;
    }
    const double maxValue =
        std::max(0.0, *std::max_element(t.chartValues.begin(), t.chartValues.end()));
    const double minValue =
        std::min(0.0, *std::min_element(t.chartValues.begin(), t.chartValues.end()));
    const double step = niceStep(maxValue - minValue);
    const double top = std::ceil(maxValue / step) * step;
    const double bottom = std::floor(minValue / step) * step;
    const double span = top - bottom == 0 ? 1 : top - bottom;

    p.save();
    p.setFont(font(8));
    const QFontMetricsF fm(p.font());
    const double axisWidth =
        fm.horizontalAdvance(ReportTable::amountText(-std::max(std::abs(top), std::abs(bottom)))) +
        12;
    const double labelHeight = fm.height() * (t.chartLabels.size() > 12 ? 5.5 : 2);
    // The value axis stands on the right, as a right-to-left reader starts there.
    const QRectF plot(area.left() + 4, area.top() + fm.height(), area.width() - axisWidth - 8,
                      area.height() - labelHeight - fm.height());
    const auto yOf = [&](double v) { return plot.bottom() - (v - bottom) / span * plot.height(); };

    p.setPen(QPen(Qt::lightGray, 1));
    for (double v = bottom; v <= top + step / 2; v += step) {
        const double y = yOf(v);
        p.drawLine(QPointF(plot.left(), y), QPointF(plot.right(), y));
        p.setPen(Qt::black);
        p.drawText(QRectF(plot.right() + 6, y - fm.height() / 2, axisWidth, fm.height()),
                   Qt::AlignLeft | Qt::AlignVCenter, ReportTable::amountText(v));
        p.setPen(QPen(Qt::lightGray, 1));
    }
    p.setPen(QPen(Qt::black, 1.5));
    p.drawLine(plot.bottomLeft(), plot.bottomRight());
    p.drawLine(plot.topRight(), plot.bottomRight());

    // The first label at the right, as the table's first row.
    const int n = int(t.chartValues.size());
    const double slot = plot.width() / n;
    const auto xOf = [&](int i) { return plot.right() - slot * (i + 0.5); };
    // Every label when they fit, otherwise every k-th.
    const int every = std::max(1, int(std::ceil(fm.height() * 1.2 / slot)));
    QPolygonF line;
    for (int i = 0; i < n; ++i) {
        const double v = t.chartValues.at(i);
        if (t.chart == ReportTable::ChartKind::Bars) {
            const double w = slot * 0.7;
            const QRectF bar(QPointF(xOf(i) - w / 2, yOf(std::max(v, 0.0))),
                             QPointF(xOf(i) + w / 2, yOf(std::min(v, 0.0))));
            p.fillRect(bar, kBarColour);
        } else {
            line << QPointF(xOf(i), yOf(v));
        }
        if (i % every == 0) {
            p.save();
            p.setPen(Qt::black);
            const QString label = t.chartLabels.value(i);
            if (t.chartLabels.size() > 12) {
                // Many labels stand upright under their bars.
                p.translate(xOf(i), plot.bottom() + 4);
                p.rotate(-90);
                drawRtl(p, QRectF(-labelHeight, -fm.height() / 2, labelHeight - 4, fm.height()),
                        label, Qt::AlignRight | Qt::AlignVCenter);
            } else {
                drawRtl(p, QRectF(xOf(i) - slot / 2, plot.bottom() + 4, slot, labelHeight - 4),
                        label, Qt::AlignHCenter | Qt::AlignTop);
            }
            p.restore();
        }
    }
    if (!line.isEmpty()) {
        p.setPen(QPen(kBarColour, 3));
        p.drawPolyline(line);
        p.setBrush(kBarColour);
        for (const QPointF& point : line) {
            p.drawEllipse(point, 4, 4);
        }
    }
    p.restore();
}

bool ReportPdf::write(const ReportTable& t, const QString& path) {
    QPdfWriter writer(path);
    writer.setResolution(kResolution);
    writer.setPageLayout(QPageLayout(QPageSize(QPageSize::A4), QPageLayout::Landscape,
                                     QMarginsF(12, 12, 12, 12), QPageLayout::Millimeter));
    writer.setTitle(t.title);
    QPainter p;
    if (!p.begin(&writer)) {
        return false;
    }
    const QRectF page(QPointF(0, 0), QSizeF(writer.width(), writer.height()));

    double y = 0;
    const auto heading = [&] {
        p.setFont(font(14, true));
        const double h = QFontMetricsF(p.font()).height() * 1.3;
        drawRtl(p, QRectF(0, 0, page.width(), h), t.title, Qt::AlignRight | Qt::AlignVCenter);
        p.setFont(font(10));
        drawRtl(p, QRectF(0, h, page.width(), h), t.range, Qt::AlignRight | Qt::AlignVCenter);
        y = h * 2 + 8;
    };
    heading();
    if (t.chart != ReportTable::ChartKind::None && !t.chartValues.isEmpty()) {
        const double height = page.height() * 0.55;
        paintChart(p, QRectF(0, y, page.width(), height), t);
        y += height + 16;
    }

    p.setFont(font(9));
    const QFontMetricsF fm(p.font());
    const double rowHeight = fm.height() * 1.4;
    const int columns = int(t.columns.size());
    const double width = page.width() / std::max(1, columns);
    // The first column at the right.
    const auto cellRect = [&](int c) {
        return QRectF(page.width() - (c + 1) * width, y, width, rowHeight);
    };
    const auto headerRow = [&] {
        p.save();
        p.setFont(font(9, true));
        for (int c = 0; c < columns; ++c) {
            p.fillRect(cellRect(c), QColor(0xe8, 0xee, 0xf6));
            drawRtl(p, cellRect(c).adjusted(4, 0, -4, 0), t.columns.at(c).title, Qt::AlignCenter);
        }
        p.restore();
        y += rowHeight;
    };
    headerRow();
    for (int r = 0; r < t.rows.size(); ++r) {
        if (y + rowHeight > page.height()) {
            writer.newPage();
            heading();
            headerRow();
        }
        for (int c = 0; c < columns; ++c) {
            const bool number =
                t.columns.at(c).amount || t.rows.at(r).value(c).typeId() != QMetaType::QString;
            // Numbers centred in their column, text from the right.
            const Qt::Alignment align =
                (number ? Qt::AlignHCenter : Qt::AlignRight) | Qt::AlignVCenter;
            drawRtl(p, cellRect(c).adjusted(4, 0, -4, 0), t.cellText(r, c), align);
        }
        p.setPen(QPen(Qt::lightGray, 0.5));
        p.drawLine(QPointF(0, y + rowHeight), QPointF(page.width(), y + rowHeight));
        p.setPen(Qt::black);
        y += rowHeight;
    }
    return p.end();
}

}  // namespace sandogh
