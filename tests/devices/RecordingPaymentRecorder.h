#pragma once

#include <QList>

#include "devices/PosPaymentRecorder.h"

namespace sandogh::test {

// Keeps the approved payments it is handed.
class RecordingPaymentRecorder final : public PosPaymentRecorder {
public:
    Result record(const PosPayment& payment) override {
        payments.append(payment);
        return result;
    }

    Result result = Result::Recorded;
    QList<PosPayment> payments;
};

}  // namespace sandogh::test
