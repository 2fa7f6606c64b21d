// Numbers in Persian words: any digit text, and any double the bytes make.

#include <cstring>
#include <stdexcept>

#include "FuzzInput.h"
#include "common/PersianWords.h"

using namespace sandogh;

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    try {
        (void)PersianWords::numberText(fuzz::view(data, size));
    } catch (const std::invalid_argument&) {
        // not digits: refused as documented
    }
    if (size >= sizeof(double)) {
        double value = 0;
        std::memcpy(&value, data, sizeof value);
        try {
            (void)PersianWords::number(value);
        } catch (const std::invalid_argument&) {
            // negative or NaN: refused as documented
        }
    }
    if (size >= sizeof(int)) {
        int value = 0;
        std::memcpy(&value, data, sizeof value);
        if (value >= 0 && value < 1000) {
            (void)PersianWords::group(value);
        }
    }
    return 0;
}
