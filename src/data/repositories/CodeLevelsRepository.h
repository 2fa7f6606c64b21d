#pragma once

#include <QList>
#include <QString>
#include <array>

#include "data/repositories/CheckResult.h"

namespace sandogh {

class Database;

// The levels of the structured codes (Code_Parameters): goods levels numbered 501..509,
// account levels 201..210, each with its name, digit count and order; and the barcode
// proposed for a new article.
class CodeLevelsRepository {
public:
    enum class Family { Goods, Accounts };
    enum class SearchColumn { None, Name, NameEnglish };

    struct Level {
        int counter = 0;  // 0 for a level not saved yet
        int typeNo = 0;   // 0 on a new level: the next number of its family
        QString name;
        QString nameEnglish;
        int digitQty = 0;
        int parameterLevel = 0;  // 0 on a new level: the next order of its family
    };

    static constexpr int kGoodsLevels = 9;
    static constexpr int kFirstGoodsLevel = 501;
    static constexpr int kFirstAccountLevel = 201;
    static constexpr int kAccountLevels = 10;
    // The last number of each family: an article carries nine levels (Goods.LevelID1..9),
    // an account ten (Acc_Code.LevelID1..10).
    static constexpr int kLastGoodsLevel = kFirstGoodsLevel + kGoodsLevels - 1;
    static constexpr int kLastAccountLevel = kFirstAccountLevel + kAccountLevels - 1;

    explicit CodeLevelsRepository(Database& database);

    // The levels of a family by number, narrowed to those whose column contains text.
    QList<Level> list(Family family, SearchColumn column = SearchColumn::None,
                      const QString& text = {});
    // The next level number (501 / 201 for an empty family) and order (1 when empty);
    // 0 on failure.
    int nextTypeNo(Family family);
    int nextParameterLevel(Family family);
    // The family a level number belongs to (numbers above 300 are goods levels).
    static Family familyOf(int typeNo);

    // Writes a new level of a family or an edited one (family is then not used); passed
    // with the saved notice, or refused when the name is empty. A new level without a
    // number takes the next of its family inside its insert (two seats adding a level at
    // once get two numbers), one without an order the next order; both are set in level.
    // A new level is refused once its family has all its levels (509 / 210).
    CheckResult save(Level& level, Family family);
    // Before a delete: passed with the question when the level has no values, refused
    // otherwise (and when they cannot be counted).
    CheckResult canDelete(int typeNo);
    bool remove(int counter);

    // The digit count of a level (0 without a row).
    int digitCount(int typeNo);
    // The digit counts of the nine goods levels 501..509 at once.
    std::array<int, kGoodsLevels> goodsDigitCounts();
    // The digits of all levels numbered below typeNo, for placing its code in a composed
    // code. Counted over every level below the number as the goods form has always read
    // it, so for a goods level the account levels are included.
    int digitsBelow(int typeNo);

    // The barcode proposed for a new article: the barcode of the newest article (largest
    // ID, not the largest barcode) read as a number, plus one, as digit text of any length.
    // "1" when there are no goods; empty on failure.
    QString proposedBarcode();

private:
    Database& m_database;
};

}  // namespace sandogh
