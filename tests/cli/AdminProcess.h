#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

namespace sandogh {

// Runs the built sandogh-admin with some words and collects what it did.
class AdminProcess {
public:
    struct Result {
        bool started = false;
        int exitCode = -1;
        QByteArray out;
        QByteArray err;
        // stdout as UTF-8 text.
        QString outText() const { return QString::fromUtf8(out); }
    };

    static QString binaryPath();
    static Result run(const QStringList& args);
};

}  // namespace sandogh
