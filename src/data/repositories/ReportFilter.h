#pragma once

#include <QString>
#include <optional>

namespace sandogh {

// What a shop report covers: a range of Jalali dates (inclusive, "1404/01/05") and, when
// set, one cash desk (StationID), shift (ShiftCode), user (UserID) or goods group
// (Goods.Spec_Group). The goods group narrows the reports by article only: a document
// header has no group.
struct ReportFilter {
    QString from;
    QString to;
    std::optional<int> stationId;
    std::optional<int> shiftCode;
    std::optional<int> userId;
    std::optional<int> goodsGroup;
};

}  // namespace sandogh
