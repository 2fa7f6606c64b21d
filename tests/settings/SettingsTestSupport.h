#pragma once

#include <optional>

#include <QByteArray>
#include <QFile>
#include <QString>
#include <QtGlobal>

namespace sandogh::testing {

// Sets an environment variable for the life of the object and puts the old value back.
class ScopedEnv {
public:
    ScopedEnv(const char* name, const QString& value) : name_(name) {
        if (qEnvironmentVariableIsSet(name)) {
            old_ = qgetenv(name);
        }
        qputenv(name, value.toLocal8Bit());
    }
    ScopedEnv(const char* name, std::nullopt_t) : name_(name) {
        if (qEnvironmentVariableIsSet(name)) {
            old_ = qgetenv(name);
        }
        qunsetenv(name);
    }
    ~ScopedEnv() {
        if (old_) {
            qputenv(name_, *old_);
        } else {
            qunsetenv(name_);
        }
    }
    ScopedEnv(const ScopedEnv&) = delete;
    ScopedEnv& operator=(const ScopedEnv&) = delete;

private:
    const char* name_;
    std::optional<QByteArray> old_;
};

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
