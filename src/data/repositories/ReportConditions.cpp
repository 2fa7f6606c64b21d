#include "data/repositories/ReportConditions.h"

namespace sandogh {

QString ReportConditions::headers(const ReportFilter& filter, SqlBinds& binds) {
    QString sql = QStringLiteral(" AND H.DocDate >= :from AND H.DocDate <= :to");
    binds.append({QStringLiteral(":from"), filter.from});
    binds.append({QStringLiteral(":to"), filter.to});
    if (filter.stationId) {
        sql += QStringLiteral(" AND H.StationID = :station");
        binds.append({QStringLiteral(":station"), *filter.stationId});
    }
    if (filter.shiftCode) {
        sql += QStringLiteral(" AND H.ShiftCode = :shift");
        binds.append({QStringLiteral(":shift"), *filter.shiftCode});
    }
    if (filter.userId) {
        sql += QStringLiteral(" AND H.UserID = :user");
        binds.append({QStringLiteral(":user"), *filter.userId});
    }
    return sql;
}

QString ReportConditions::goodsGroup(const ReportFilter& filter, SqlBinds& binds) {
    if (!filter.goodsGroup) {
        return {};
    }
    binds.append({QStringLiteral(":goodsGroup"), *filter.goodsGroup});
    return QStringLiteral(" AND G.Spec_Group = :goodsGroup");
}

QString ReportConditions::goodsGroupWhere(const ReportFilter& filter, SqlBinds& binds) {
    const QString condition = goodsGroup(filter, binds);
    return condition.isEmpty()
               ? condition
               : QStringLiteral(" WHERE") + condition.mid(QStringLiteral(" AND").size());
}

}  // namespace sandogh
