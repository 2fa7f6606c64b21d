#pragma once

#include <QString>

class QPainter;
class QRectF;

namespace sandogh {

class ReportTable;

// A report on A4 landscape pages as a PDF: the title and range at the top right, the
// chart (bars or a line, the labels under the axis, amounts with separators beside it)
// and the table, right to left, continued on as many pages as it needs. Persian is shaped
// by Qt's text layout in a Persian-capable font.
class ReportPdf {
public:
    // False when the file cannot be written.
    static bool write(const ReportTable& table, const QString& path);
    // The chart alone in a rectangle of a painter (the PDF's first page uses it).
    static void paintChart(QPainter& painter, const QRectF& area, const ReportTable& table);
};

}  // namespace sandogh
