#pragma once

#include <QByteArray>
#include <QFile>
#include <QString>

namespace sandogh::testing {

// The whole text of a file, or empty text when it cannot be read.
inline QString fileText(const QString& path) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        return {};
    }
    return QString::fromUtf8(file.readAll());
}

inline bool writeFile(const QString& path, const QByteArray& bytes) {
    QFile file(path);
    return file.open(QIODevice::WriteOnly | QIODevice::Truncate) &&
           file.write(bytes) == bytes.size();
}

}  // namespace sandogh::testing
