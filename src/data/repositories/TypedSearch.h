#pragma once

#include <QString>

namespace sandogh {

class Dialect;

// How the back office lists compare a typed search word with a text column: both sides in
// their search form (Persian letters, ASCII digits, no zero-width non-joiner, lower case),
// so "چاي" finds "چای" and "۰۹۱۲" finds "0912". The stored text is never rewritten.
class TypedSearch {
public:
    // "<column in search form> LIKE <parameter> ESCAPE '\'" for a bound contains() pattern.
    static QString condition(const Dialect& dialect, const QString& column,
                             const QString& parameter);
    // The bound pattern: the typed text, trimmed, in search form, with LIKE's wildcards
    // escaped, between two "%".
    static QString contains(const QString& typed);
};

}  // namespace sandogh
