// Date conversions per second: the grids of documents convert many dates.
#include <benchmark/benchmark.h>

#include <string>
#include <vector>

#include "common/JalaliCalendar.h"

using sandogh::DaySerial;
using sandogh::JalaliCalendar;

namespace {

// Every day of the Jalali years 1380..1420, the years documents really carry.
std::vector<DaySerial> documentDays() {
    std::vector<DaySerial> days;
    for (DaySerial s = JalaliCalendar::yearStart(1380) + 1; s <= JalaliCalendar::yearStart(1421);
         ++s) {
        days.push_back(s);
    }
    return days;
}

void BM_SerialToJalaliText(benchmark::State& state) {
    const std::vector<DaySerial> days = documentDays();
    std::size_t i = 0;
    for (auto _ : state) {
        std::string text = JalaliCalendar::toJalaliText(days[i]);
        benchmark::DoNotOptimize(text);
        i = i + 1 == days.size() ? 0 : i + 1;
    }
    state.SetItemsProcessed(state.iterations());
}
BENCHMARK(BM_SerialToJalaliText);

void BM_JalaliTextToSerial(benchmark::State& state) {
    std::vector<std::string> texts;
    for (const DaySerial s : documentDays()) {
        texts.push_back(JalaliCalendar::toJalaliText(s));
    }
    std::size_t i = 0;
    for (auto _ : state) {
        auto serial = JalaliCalendar::toSerial(std::string_view(texts[i]));
        benchmark::DoNotOptimize(serial);
        i = i + 1 == texts.size() ? 0 : i + 1;
    }
    state.SetItemsProcessed(state.iterations());
}
BENCHMARK(BM_JalaliTextToSerial);

// The far end of the table: the upward search walks the most years.
void BM_SerialToJalaliTextLastYear(benchmark::State& state) {
    const DaySerial day = JalaliCalendar::yearStart(JalaliCalendar::kLastYear) + 100;
    for (auto _ : state) {
        std::string text = JalaliCalendar::toJalaliText(day);
        benchmark::DoNotOptimize(text);
    }
    state.SetItemsProcessed(state.iterations());
}
BENCHMARK(BM_SerialToJalaliTextLastYear);

void BM_AddDays(benchmark::State& state) {
    int k = 0;
    for (auto _ : state) {
        std::string text = JalaliCalendar::addDays("1404/01/05", k);
        benchmark::DoNotOptimize(text);
        k = (k + 1) % 1000;
    }
    state.SetItemsProcessed(state.iterations());
}
BENCHMARK(BM_AddDays);

}  // namespace

BENCHMARK_MAIN();
