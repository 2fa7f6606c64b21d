#pragma once

#include "data/scales/ScaleItemValues.h"

namespace sandogh {

class Session;

// The Takin scales' goods (OnlineSales' Items), written on the caller's session so that a
// caller's transaction takes them in. Failures are not logged here: the caller shows the
// connection message.
class OnlineSalesItems {
public:
    // Items with this Code; -1 when the read failed.
    static qint64 countByCode(Session& session, qint64 plu);
    static bool update(Session& session, const ScaleItemValues& item);
    static bool insert(Session& session, const ScaleItemValues& item);
    static bool remove(Session& session, qint64 plu);
};

}  // namespace sandogh
