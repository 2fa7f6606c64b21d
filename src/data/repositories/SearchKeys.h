#pragma once

#include <QString>

namespace sandogh {

// The search forms the lists find rows by, written beside the text they fold in the same
// statement that writes the text: a party's name and family (Types.NameKey) and a
// document's Base (Whs_QTYDocH.BaseKey). Both are folded as the typed text is
// (GoodsSearchQuery::searchKey: Persian letter forms, ASCII digits, no zero-width
// non-joiner, lower case), so that a word typed either way is found; the texts themselves
// are kept as typed.
class SearchKeys {
public:
    // Name and family as the saved sales list shows them: "name family".
    static QString party(const QString& name, const QString& family);
    static QString base(const QString& base);
};

}  // namespace sandogh
