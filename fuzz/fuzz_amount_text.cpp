// Amount text as typed, shown and sent by devices: read leniently and strictly, shown
// again. A strictly read amount is always usable and reads back to itself.

#include <cmath>

#include "FuzzInput.h"
#include "common/AmountText.h"

using namespace sandogh;

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    const std::string_view input = fuzz::view(data, size);
    const double lenient = AmountText::parse(input);
    (void)AmountText::formatWhole(lenient);
    (void)AmountText::formatDecimals(lenient);
    (void)AmountText::stripSeparators(input);
    (void)AmountText::refusal(input);
    const std::optional<double> strict = AmountText::parseStrict(input);
    if (strict) {
        if (!AmountText::isUsable(*strict)) {
            fuzz::broken();
        }
        const double back =
            AmountText::parse(AmountText::format(*strict, AmountText::kMaxDecimals));
        if (std::fabs(back - *strict) > std::fabs(*strict) * 1e-14 + 1e-15) {
            fuzz::broken();
        }
    }
    return 0;
}
