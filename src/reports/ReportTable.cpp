#include "reports/ReportTable.h"

#include "common/AmountText.h"

namespace sandogh {

QString ReportTable::amountText(double value) {
    // Whole rials; a negative amount keeps its sign in front of the separators.
    const QString digits = QString::fromStdString(AmountText::formatWhole(std::abs(value)));
    return value < -0.5 ? QStringLiteral("-") + digits : digits;
}

QString ReportTable::cellText(int row, int column) const {
    const QVariant cell = rows.value(row).value(column);
    if (columns.value(column).amount) {
        return amountText(cell.toDouble());
    }
    if (cell.typeId() == QMetaType::Double) {
        return QString::number(cell.toDouble(), 'g', 12);
    }
    return cell.toString();
}

}  // namespace sandogh
