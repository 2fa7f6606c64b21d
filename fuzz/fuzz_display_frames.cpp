// The customer display's frames for any amount and greeting text.

#include "FuzzInput.h"
#include "devices/DisplayFrames.h"

using namespace sandogh;

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    const QString text = fuzz::text(data, size);
    const qsizetype split = text.size() / 2;
    (void)DisplayFrames::centre(text);
    (void)DisplayFrames::plainNumber(text);
    (void)DisplayFrames::priceDisplay(text);
    (void)DisplayFrames::lineDisplayAmount(text);
    (void)DisplayFrames::twoLineDisplay(text.left(split), text.mid(split));
    return 0;
}
