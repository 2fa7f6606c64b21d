#pragma once

// GoogleTest printers for the Qt value types and the data layer's enums the suites
// compare, so that a failed EXPECT_EQ shows texts and names instead of bytes. Qt's types
// live in the global namespace, so their printers do too.
//
// Every test that compares one of these types must include this header (BackendTest.h
// does): a printer seen by some files of a test program and not by others is two
// different definitions of the same template.

#include <QByteArray>
#include <QString>
#include <QStringList>
#include <ostream>

#include "data/Backend.h"
#include "data/DbError.h"

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

namespace sandogh {

inline void PrintTo(Backend backend, std::ostream* os) {
    *os << backendName(backend).toStdString();
}

inline void PrintTo(DbErrorKind kind, std::ostream* os) {
    static const char* const names[] = {"None",       "ConnectionLost", "KeyConflict",
                                        "ForeignKey", "Busy",           "Permission",
                                        "DiskFull",   "Damaged",        "Other"};
    *os << names[static_cast<int>(kind)];
}

}  // namespace sandogh
