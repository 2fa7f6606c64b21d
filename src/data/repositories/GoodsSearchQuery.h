#pragma once

#include <QList>
#include <QString>
#include <QStringList>

namespace sandogh {

class Database;
class Session;

// The goods search of the till: the active articles whose barcode or structured code
// (ComplexCode) starts with the typed text, whose Spec_Code is the typed text,
// or whose name holds every typed word anywhere, as people type them (TextHelpers::
// searchKey on both sides, through the NameKey column). Code matches come first, then
// names in name order, at most a screenful.
//
// A word of three characters or more is found through the name's word index (an FTS5
// trigram table on SQLite, a pg_trgm index on PostgreSQL), so a rare word in the middle
// of a name is found at once in a million articles; shorter words only narrow the rows.
class GoodsSearchQuery {
public:
    static constexpr int kRows = 50;

    struct Row {
        int id = 0;
        QString barcode;
        QString specCode;
        QString complexCode;
        QString name;
        double cost = 0;
        double stock = 0;
    };

    struct Result {
        bool ok = false;  // false when a statement failed (it has been reported)
        QList<Row> rows;
    };

    explicit GoodsSearchQuery(Database& database);

    Result find(const QString& typed, int rows = kRows);

    // The form the name search compares: TextHelpers::searchKey, in lower case. The goods
    // save writes it into NameKey.
    static QString searchKey(const QString& text);
    // The statement of the name search for these (folded) words, as find() runs it.
    QString nameSql(const QStringList& words, int rows) const;

private:
    bool findCodes(Session& session, const QString& code, int rows, QList<Row>& out);
    bool findNames(Session& session, const QStringList& words, int rows, QList<Row>& out);

    Database& m_database;
};

}  // namespace sandogh
