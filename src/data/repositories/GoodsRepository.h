#pragma once

#include <QList>
#include <QString>
#include <array>
#include <optional>

#include "data/repositories/CheckResult.h"
#include "data/repositories/GoodsArticle.h"

namespace sandogh {

class Clock;
class Database;
class GoodsSavedHook;
class Session;

// The goods catalogue: reading, checking, saving, taking out of use and deleting an
// article with the rows that hang on its barcode. Every write runs in one transaction;
// the hook (the scales' export) is told after the commit.
class GoodsRepository {
public:
    // A chosen level value as the goods screen shows it.
    struct LevelValue {
        int counter = 0;
        QString code;
        QString name;
    };

    // userId is written with each price change; clock dates them; hook may be null.
    GoodsRepository(Database& database, const Clock& clock, int userId,
                    GoodsSavedHook* hook = nullptr);

    // The article of a barcode; nothing when there is none or the read failed.
    std::optional<GoodsArticle> find(const QString& barcode);
    // The barcode proposed for a new article: the newest article's plus one.
    QString proposedBarcode();

    // The code and name of each chosen level value (an empty value where none is chosen
    // or the counter is no value of its level).
    std::array<LevelValue, GoodsArticle::kLevels> levelValues(
        const std::array<int, GoodsArticle::kLevels>& levels);
    // ComplexCode of the chosen level values: their codes in level order, each in its
    // level's fixed width, without separator. A level left out before a chosen one is
    // held by zeros of its width, so that every code keeps its place; levels after the
    // last chosen one add nothing.
    QString composeComplexCode(const std::array<int, GoodsArticle::kLevels>& levels);
    static QString composeComplexCode(const std::array<QString, GoodsArticle::kLevels>& codes,
                                      const std::array<int, GoodsArticle::kLevels>& digits);

    // The save checks, in order: barcode given, name given, a new article's barcode not
    // in Goods yet.
    CheckResult check(const GoodsArticle& article);
    // Checks, then writes the article in one transaction: the Goods row; for a new
    // article its Stock row (branch 1); a Price_History row when the article is new or
    // its sale price changed. ComplexCode is composed from the levels and set in article,
    // as are a new article's id and its trimmed barcode; an edited article keeps the
    // barcode it has (documents know it by it). The hook follows the commit.
    CheckResult save(GoodsArticle& article);

    // Lines of documents (ordinary and internal) naming the barcode; -1 when unknown.
    int documentLineCount(const QString& barcode);
    // Before a delete: passed with the question when no document names the article;
    // refused with the message that offers deactivation otherwise (and when unknown).
    CheckResult canDelete(const QString& barcode);
    // Deletes the article and what hangs on its barcode alone (stock row, related-code
    // prices, set memberships, reservations, price history, warehouse places, campaign
    // prices) in one transaction; document lines are never touched, so an article that
    // documents name is refused as canDelete() refuses it. The hook follows the commit.
    CheckResult remove(const QString& barcode);
    // Puts an article in or out of use (ISActive). False when it failed.
    bool setActive(const QString& barcode, bool active);

    // The latest price recorded for a barcode (0 without history).
    double latestPrice(const QString& barcode);
    // How many Price_History rows a barcode has.
    int priceChangeCount(const QString& barcode);

    // The barcode as it is kept: trimmed, quotes removed.
    static QString cleanBarcode(const QString& typed);

private:
    bool insertArticle(Session& session, GoodsArticle& article);
    bool updateArticle(Session& session, GoodsArticle& article, bool& priceChanged, bool& missing);
    bool recordPrice(Session& session, const GoodsArticle& article);

    Database& m_database;
    const Clock& m_clock;
    int m_userId;
    GoodsSavedHook* m_hook;
};

}  // namespace sandogh
