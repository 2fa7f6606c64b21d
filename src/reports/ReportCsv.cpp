#include "reports/ReportCsv.h"

#include <QFile>
#include <QRegularExpression>
#include <QStringList>

#include "reports/ReportTable.h"

namespace sandogh {

namespace {

QString field(const QString& text) {
    if (!text.contains(QLatin1Char(',')) && !text.contains(QLatin1Char('"')) &&
        !text.contains(QLatin1Char('\n')) && !text.contains(QLatin1Char('\r'))) {
        return text;
    }
    QString quoted = text;
    quoted.replace(QLatin1Char('"'), QStringLiteral("\"\""));
    return QLatin1Char('"') + quoted + QLatin1Char('"');
}

QString cell(const QVariant& value) {
    if (value.typeId() == QMetaType::Double) {
        return QString::number(value.toDouble(), 'f', 2)
            .remove(QRegularExpression(QStringLiteral("\\.?0+$")));
    }
    return field(value.toString());
}

}  // namespace

QByteArray ReportCsv::text(const ReportTable& table) {
    QStringList lines;
    QStringList header;
    for (const ReportTable::Column& c : table.columns) {
        header << field(c.title);
    }
    lines << header.join(QLatin1Char(','));
    for (const QVariantList& row : table.rows) {
        QStringList cells;
        for (int c = 0; c < table.columns.size(); ++c) {
            cells << cell(row.value(c));
        }
        lines << cells.join(QLatin1Char(','));
    }
    return QByteArray("\xEF\xBB\xBF") + lines.join(QStringLiteral("\r\n")).toUtf8() + "\r\n";
}

bool ReportCsv::write(const ReportTable& table, const QString& path) {
    QFile file(path);
    return file.open(QIODevice::WriteOnly | QIODevice::Truncate) && file.write(text(table)) >= 0 &&
           file.flush();
}

}  // namespace sandogh
