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

// The words of a command line written as one text, split at its blanks.
inline QStringList words(const char* text) {
    return QString::fromUtf8(text).split(u' ', Qt::SkipEmptyParts);
}

}  // namespace sandogh
