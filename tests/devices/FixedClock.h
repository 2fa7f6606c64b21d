#pragma once

#include "data/Clock.h"

namespace sandogh::test {

class FixedClock final : public Clock {
public:
    explicit FixedClock(QDateTime at) : m_at(std::move(at)) {}
    QDateTime now() const override { return m_at; }

private:
    QDateTime m_at;
};

}  // namespace sandogh::test
