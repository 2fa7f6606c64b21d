// Weighed tickets scanned into the barcode box.

#include <QDate>

#include "FuzzInput.h"
#include "sales/ScaleTicket.h"

using namespace sandogh;

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    const QString text = fuzz::text(data, size);
    const QString prefix = text.left(1);
    if (ScaleTicket::isMizanTicket(text, prefix)) {
        (void)ScaleTicket::mizanKey(text, QDate(2026, 11, 24));
    }
    (void)ScaleTicket::mizanKey(text, QDate());
    (void)ScaleTicket::onlineSalesReceipt(text);
    (void)ScaleTicket::onlineSalesScale(text);
    (void)ScaleTicket::onlineSalesDate(text);
    return 0;
}
