#pragma once

#include "data/scales/ScaleItemValues.h"

namespace sandogh {

class Session;

// The Sadr scales' goods (SADR_Item) and their keys (SADR_KeyAssignment), written on the
// caller's session. Failures are not logged here: the caller shows the connection message.
class SadrItems {
public:
    // Items whose ItemCode is the barcode's value; -1 when the read failed.
    static qint64 countByItemCode(Session& session, qint64 barcodeValue);
    // Updates the item and sets its key number to its PLU.
    static bool update(Session& session, const ScaleItemValues& item);
    // Inserts the item and its key, numbered as its PLU.
    static bool insert(Session& session, const ScaleItemValues& item);
};

}  // namespace sandogh
