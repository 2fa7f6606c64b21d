#pragma once

#include <QString>

namespace sandogh {

// Which pair of stock document tables a saved-document screen works on: the ordinary
// documents (Whs_QTYDocH / Whs_QTYDocD, the party a customer or supplier of Types) or the
// internal ones handed to the shop's branches (Whs_QTYDocHInternal / Whs_QTYDocDInternal,
// the party a row of tblCenterBranches). The table names are fixed identifiers chosen
// here, never from input.
enum class DocumentFamily { Ordinary, Internal };

inline QString headerTableOf(DocumentFamily family) {
    return family == DocumentFamily::Internal ? QStringLiteral("Whs_QTYDocHInternal")
                                              : QStringLiteral("Whs_QTYDocH");
}

inline QString linesTableOf(DocumentFamily family) {
    return family == DocumentFamily::Internal ? QStringLiteral("Whs_QTYDocDInternal")
                                              : QStringLiteral("Whs_QTYDocD");
}

}  // namespace sandogh
