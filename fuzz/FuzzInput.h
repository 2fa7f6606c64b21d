#pragma once

#include <QByteArray>
#include <QString>
#include <cstddef>
#include <cstdint>
#include <string_view>

namespace sandogh::fuzz {

// The fuzzer's bytes as the views the parsers take.
inline std::string_view view(const uint8_t* data, size_t size) {
    return {reinterpret_cast<const char*>(data), size};
}
inline QByteArray bytes(const uint8_t* data, size_t size) {
    return QByteArray(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size));
}
inline QString text(const uint8_t* data, size_t size) {
    return QString::fromUtf8(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size));
}

// A finding that no sanitizer would report: a broken promise of the code under test.
[[noreturn]] inline void broken() {
    __builtin_trap();
}

}  // namespace sandogh::fuzz
