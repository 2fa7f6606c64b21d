#pragma once

#include <QList>
#include <QString>
#include <optional>

namespace sandogh {

class Session;

// The further prices of an article (tblRelatedCode).
class RelatedCodesRepository {
public:
    // The related prices of an article in the table's order.
    static std::optional<QList<double>> prices(Session& session, const QString& barcode);
};

}  // namespace sandogh
