#pragma once

#include "RawPrinter.h"

namespace sandogh {

// The platform's print spooler: CUPS where it is available, the Windows
// spooler on Windows. Elsewhere there is no default printer.
class SpoolerRawPrinter final : public RawPrinter {
public:
    bool printRaw(const QString& jobName, const QByteArray& bytes) override;

    // The default printer's name, empty when there is none.
    static QString defaultPrinter();
};

}  // namespace sandogh
