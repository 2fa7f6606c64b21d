#pragma once

#include "data/scales/ScaleItemValues.h"

namespace sandogh {

class Session;

// The Mizan scales' goods (MizanNet's MizanNetItem), written on the caller's session.
// Failures are not logged here: the caller shows the connection message.
class MizanNetItems {
public:
    // Items whose PluNo is the barcode's value; -1 when the read failed.
    static qint64 countByBarcodeValue(Session& session, qint64 barcodeValue);
    // Items whose PluNo is the PLU; -1 when the read failed.
    static qint64 countByPlu(Session& session, qint64 plu);
    static bool update(Session& session, const ScaleItemValues& item);
    static bool insert(Session& session, const ScaleItemValues& item);
};

}  // namespace sandogh
