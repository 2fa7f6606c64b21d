#pragma once

#include <QString>

namespace sandogh {

// The scale service on the shop network that reports the weight on the scale.
struct WeightServiceConfig {
    // "host", "host:port" or a full "http://host:port" address.
    QString host;
    // Longest wait for an answer.
    int timeoutMs = 5000;
};

}  // namespace sandogh
