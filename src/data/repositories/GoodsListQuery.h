#pragma once

#include <QList>
#include <QString>

namespace sandogh {

class Database;

// The goods list read a page at a time, so that a catalogue of a million articles opens
// at once: each page continues after the last row of the page before it (keyset
// pagination) in the order of an indexed column, and nothing counts the whole table.
//
//   no search, or an empty text   every article by barcode
//   barcode                        barcodes starting with the text, by barcode
//   special code (Spec_Code)       Spec_Code starting with the text, by Spec_Code then ID
//   name                           names holding the text anywhere, as typed (NameKey),
//                                  by name then ID
//
// The prefix searches run as a range of the column's index; the name search walks the
// name index in order and stops when the page is full.
class GoodsListQuery {
public:
    enum class SearchColumn { None, Barcode, SpecCode, Name };

    struct Row {
        int id = 0;
        QString barcode;
        QString specCode;
        QString name;
        QString enName;
        QString unitName;
        double cost = 0;
        double stock = 0;  // Stock.Stock, 0 without a stock row
        bool active = true;
    };

    // Where the next page starts: after the row with this ordering key and ID.
    struct Position {
        bool atStart = true;
        QString key;
        int id = 0;
    };

    struct Page {
        bool ok = false;  // false when the statement failed (it has been reported)
        QList<Row> rows;
        Position next;       // after the last row of this page
        bool atEnd = false;  // no rows follow
    };

    explicit GoodsListQuery(Database& database, SearchColumn column = SearchColumn::None,
                            const QString& text = {});

    // The column the rows are ordered by; None for a search without text.
    SearchColumn effectiveColumn() const { return m_column; }

    // Up to `rows` rows after `after`.
    Page fetch(const Position& after, int rows);

    // The statement of a page, as fetch() runs it (for the plan checks of the tests).
    QString pageSql(bool atStart, int rows) const;

    // The smallest text above every text that starts with prefix: its last character
    // raised by one ("626" -> "627"). Empty for an empty prefix.
    static QString prefixUpperBound(const QString& prefix);
    // A LIKE pattern matching text literally, with "\" as the escape character.
    static QString escapeLike(const QString& text);

private:
    QString orderColumn() const;

    Database& m_database;
    SearchColumn m_column;
    QString m_text;
};

}  // namespace sandogh
