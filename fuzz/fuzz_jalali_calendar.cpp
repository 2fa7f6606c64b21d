// The Jalali calendar: date texts as typed and stored, days moved, serials turned back.
// A text that reads as a date reads back to the same text.

#include <cstring>
#include <stdexcept>

#include "FuzzInput.h"
#include "common/JalaliCalendar.h"

using namespace sandogh;

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    const std::string_view input = fuzz::view(data, size);
    (void)JalaliCalendar::isValidDateText(input);
    if (const auto typed = JalaliCalendar::normalizeDateText(input)) {
        if (!JalaliCalendar::isValidDateText(*typed)) {
            fuzz::broken();
        }
    }
    if (const auto date = JalaliCalendar::parseDateText(input)) {
        const std::string shown = JalaliCalendar::formatDateText(*date);
        const auto serial = JalaliCalendar::toSerial(shown);
        if (!serial || JalaliCalendar::toJalaliText(*serial) != shown) {
            fuzz::broken();
        }
    }
    int days = 0;
    if (size >= sizeof days) {
        std::memcpy(&days, data, sizeof days);
    }
    try {
        (void)JalaliCalendar::addDays(input.substr(size >= sizeof days ? sizeof days : 0), days);
    } catch (const std::invalid_argument&) {
    } catch (const std::out_of_range&) {
    }
    try {
        (void)JalaliCalendar::monthEnd(input);
    } catch (const std::invalid_argument&) {
    }
    DaySerial serial = 0;
    if (size >= sizeof serial) {
        std::memcpy(&serial, data, sizeof serial);
        (void)JalaliCalendar::toJalaliDate(serial);
        try {
            (void)JalaliCalendar::toJalaliText(serial);
            (void)JalaliCalendar::weekdayName(serial);
        } catch (const std::out_of_range&) {
        }
    }
    return 0;
}
