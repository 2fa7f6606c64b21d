#pragma once

#include <QByteArray>
#include <QString>

namespace sandogh {

// A printer that takes bytes as they are, without a driver in between: the
// drawer kick goes to the receipt printer this way.
class RawPrinter {
public:
    virtual ~RawPrinter() = default;

    // Sends the bytes as one raw job under jobName to the default printer.
    // False when there is no default printer or it cannot be opened; what
    // happens to the job after that is not followed.
    virtual bool printRaw(const QString& jobName, const QByteArray& bytes) = 0;
};

}  // namespace sandogh
