#pragma once

#include "PosPayment.h"

namespace sandogh {

// Where an approved terminal payment is recorded (sp_POS_Insert).
class PosPaymentRecorder {
public:
    enum class Result {
        Recorded,
        // The database could not be reached and nothing was written; the data layer
        // has shown the connection message, as it does for every routine.
        ConnectionBroken,
        Failed,  // reached, but the statement failed
    };

    virtual ~PosPaymentRecorder() = default;
    virtual Result record(const PosPayment& payment) = 0;
};

}  // namespace sandogh
