#pragma once

#include <QtGlobal>
#include <atomic>

namespace sandogh {

// Statements this process sent to its databases: every run of a statement, every
// statement prepared, every BEGIN, COMMIT and ROLLBACK. On a server each is one round
// trip; tests and benchmarks read the difference across one operation.
class RoundTrips {
public:
    static quint64 count() { return counter().load(std::memory_order_relaxed); }
    static void add() { counter().fetch_add(1, std::memory_order_relaxed); }

private:
    static std::atomic<quint64>& counter() {
        static std::atomic<quint64> value{0};
        return value;
    }
};

}  // namespace sandogh
