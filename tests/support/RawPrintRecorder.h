#pragma once

#include <QByteArray>
#include <QList>
#include <QPair>
#include <QString>

#include "devices/RawPrinter.h"

namespace sandogh::test {

// Keeps the raw jobs it is sent; refuses them all when there is "no default printer".
class RawPrintRecorder final : public RawPrinter {
public:
    bool printRaw(const QString& jobName, const QByteArray& bytes) override {
        if (!hasPrinter) {
            return false;
        }
        jobs.append({jobName, bytes});
        return true;
    }
    bool hasPrinter = true;
    QList<QPair<QString, QByteArray>> jobs;
};

}  // namespace sandogh::test
