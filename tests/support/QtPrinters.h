#pragma once

// GoogleTest printers for the Qt value types the suites compare, so that a failed
// EXPECT_EQ shows the texts instead of their bytes. Qt's types live in the global
// namespace, so their printers do too.

#include <QByteArray>
#include <QString>
#include <QStringList>
#include <ostream>

inline void PrintTo(const QString& s, std::ostream* os) {
    *os << '"' << s.toStdString() << '"';
}

inline void PrintTo(const QByteArray& b, std::ostream* os) {
    *os << '"' << QString::fromUtf8(b.toPercentEncoding(" \"'*-:/;,.()[]=_%")).toStdString() << '"';
}

inline void PrintTo(const QStringList& list, std::ostream* os) {
    *os << '{';
    for (qsizetype i = 0; i < list.size(); ++i) {
        *os << (i > 0 ? ", " : "") << '"' << list.at(i).toStdString() << '"';
    }
    *os << '}';
}
