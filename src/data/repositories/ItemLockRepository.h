#pragma once

#include <QString>
#include <optional>

namespace sandogh {

class Session;

// The reservations of goods (ItemLock).
class ItemLockRepository {
public:
    // The locked quantity of an article (rows with IsLock 1): nothing inside when it has no
    // lock row; nullopt when the read failed.
    static std::optional<std::optional<double>> lockedQuantity(Session& session,
                                                               const QString& barcode);
};

}  // namespace sandogh
