#pragma once

#include <QString>

namespace sandogh {

class ReportTable;

// A report table as CSV: UTF-8 with a byte order mark (spreadsheets then read Persian
// right), a header row of the column titles, numbers without separators, text quoted
// when it holds a comma, a quote or a line break.
class ReportCsv {
public:
    static QByteArray text(const ReportTable& table);
    // False when the file cannot be written.
    static bool write(const ReportTable& table, const QString& path);
};

}  // namespace sandogh
