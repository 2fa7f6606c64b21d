#include "data/repositories/GoodsRepository.h"

#include <cmath>

#include "data/Database.h"
#include "data/JalaliDay.h"
#include "data/SqlQuery.h"
#include "data/Transaction.h"
#include "data/procedures/ReturningInsert.h"
#include "data/repositories/CodeLevelsRepository.h"
#include "data/repositories/GoodsMessages.h"
#include "data/repositories/GoodsSavedHook.h"
#include "data/repositories/GoodsSearchQuery.h"
#include "settings/Clock.h"

namespace sandogh {

namespace {

const QString kModule = QStringLiteral("GoodsRepository");
constexpr int kFirstGoodsLevel = CodeLevelsRepository::kFirstGoodsLevel;

// The Jalali date and the time of a moment, as the price history keeps it.
QString jalaliDateTime(const QDateTime& moment) {
    return JalaliDay::dateText(moment.date()) + QLatin1Char(' ') +
           moment.time().toString(QStringLiteral("HH:mm:ss"));
}

// The columns an article writes, bound to ":" + the column's name.
procedures::ColumnValues articleColumns(const GoodsArticle& a) {
    const int kind = a.weighed ? 1 : 0;
    procedures::ColumnValues values{
        {QStringLiteral("Spec_Code"), a.specCode},
        {QStringLiteral("Name"), a.name},
        // The search form of the name: the goods searches compare it.
        {QStringLiteral("NameKey"), GoodsSearchQuery::searchKey(a.name)},
        {QStringLiteral("C_In_Paket"), a.inPacket},
        {QStringLiteral("G_Min"), a.minimum},
        {QStringLiteral("G_Max"), a.maximum},
        {QStringLiteral("Note"), a.note},
        {QStringLiteral("Cost"), a.cost},
        {QStringLiteral("Cost2"), a.cost2},
        {QStringLiteral("ComplexCode"), a.complexCode},
    };
    for (int i = 0; i < GoodsArticle::kLevels; ++i) {
        values.append({QStringLiteral("LevelID%1").arg(i + 1), a.levels.at(i)});
    }
    values << procedures::ColumnValues{
        {QStringLiteral("Unit"), a.unit},
        // Type 1: the weighed tickets read the weight in grams.
        {QStringLiteral("Type"), kind},
        {QStringLiteral("AQIS"), a.askQuantity ? 1 : 0},
        {QStringLiteral("ArticlePrice"), a.articlePrice},
        {QStringLiteral("TaxValue"), a.taxValue},
        {QStringLiteral("ISFavorite"), a.favourite ? 1 : 0},
        {QStringLiteral("FavoriteTab"), a.favoriteTab},
        {QStringLiteral("GType"), kind},
        {QStringLiteral("EnName"), a.enName},
        {QStringLiteral("StockNo1"), a.stockNo1},
        {QStringLiteral("StockNo2"), a.stockNo2},
        {QStringLiteral("ISActive"), a.active ? 1 : 0},
    };
    return values;
}

SqlBinds bindsOf(const procedures::ColumnValues& values) {
    SqlBinds binds;
    for (const auto& [column, value] : values) {
        binds.append({QLatin1Char(':') + column, value});
    }
    return binds;
}

bool samePrice(double a, double b) {
    return std::abs(a - b) < 1e-9;
}

}  // namespace

GoodsRepository::GoodsRepository(Database& database, const Clock& clock, int userId,
                                 GoodsSavedHook* hook)
    : m_database(database), m_clock(clock), m_userId(userId), m_hook(hook) {}

QString GoodsRepository::cleanBarcode(const QString& typed) {
    QString barcode = typed;
    barcode.remove(QLatin1Char('\''));
    return barcode.trimmed();
}

std::optional<GoodsArticle> GoodsRepository::find(const QString& barcode) {
    Session s = m_database.session(kModule, QStringLiteral("find"));
    QString sql = QStringLiteral(
        "SELECT ID, EAN_Code, COALESCE(Spec_Code, ''), COALESCE(Name, ''), "
        "COALESCE(EnName, ''), COALESCE(Cost, 0), COALESCE(Cost2, 0), "
        "COALESCE(ArticlePrice, 0), COALESCE(TaxValue, 0), COALESCE(Unit, 0), "
        "COALESCE(GType, 0), COALESCE(ISFavorite, 0), COALESCE(FavoriteTab, 0), "
        "COALESCE(AQIS, 0), COALESCE(ComplexCode, ''), COALESCE(StockNo1, ''), "
        "COALESCE(StockNo2, ''), COALESCE(ISActive, 0), COALESCE(Note, ''), "
        "COALESCE(C_In_Paket, 0), COALESCE(G_Min, 0), COALESCE(G_Max, 0)");
    for (int i = 1; i <= GoodsArticle::kLevels; ++i) {
        sql += QStringLiteral(", COALESCE(LevelID%1, 0)").arg(i);
    }
    sql += QStringLiteral(" FROM Goods WHERE EAN_Code = :barcode");
    SqlQuery q(s, sql);
    q.bind(QStringLiteral(":barcode"), cleanBarcode(barcode));
    if (!q.exec() || !q.next()) {
        return std::nullopt;
    }
    GoodsArticle a;
    a.id = q.integer(0);
    a.barcode = q.text(1);
    a.specCode = q.text(2);
    a.name = q.text(3);
    a.enName = q.text(4);
    a.cost = q.number(5);
    a.cost2 = q.number(6);
    a.articlePrice = q.number(7);
    a.taxValue = q.number(8);
    a.unit = q.integer(9);
    a.weighed = q.integer(10) == 1;
    a.favourite = q.integer(11) == 1;
    a.favoriteTab = q.integer(12);
    a.askQuantity = q.integer(13) == 1;
    a.complexCode = q.text(14);
    a.stockNo1 = q.text(15);
    a.stockNo2 = q.text(16);
    a.active = q.integer(17) == 1;
    a.note = q.text(18);
    a.inPacket = q.number(19);
    a.minimum = q.number(20);
    a.maximum = q.number(21);
    for (int i = 0; i < GoodsArticle::kLevels; ++i) {
        a.levels[static_cast<std::size_t>(i)] = q.integer(22 + i);
    }
    return a;
}

QString GoodsRepository::proposedBarcode() {
    return CodeLevelsRepository(m_database).proposedBarcode();
}

std::array<GoodsRepository::LevelValue, GoodsArticle::kLevels> GoodsRepository::levelValues(
    const std::array<int, GoodsArticle::kLevels>& levels) {
    std::array<LevelValue, GoodsArticle::kLevels> values{};
    Session s = m_database.session(kModule, QStringLiteral("levelValues"));
    for (int i = 0; i < GoodsArticle::kLevels; ++i) {
        const int counter = levels.at(static_cast<std::size_t>(i));
        if (counter <= 0) {
            continue;
        }
        SqlQuery q(s, QStringLiteral("SELECT COALESCE(Code, ''), COALESCE(Name, '') FROM Types "
                                     "WHERE Counter = :counter AND TypeNo = :typeNo"));
        q.bind(QStringLiteral(":counter"), counter);
        q.bind(QStringLiteral(":typeNo"), kFirstGoodsLevel + i);
        if (q.exec() && q.next()) {
            values[static_cast<std::size_t>(i)] = {counter, q.text(0), q.text(1)};
        }
    }
    return values;
}

QString GoodsRepository::composeComplexCode(const std::array<QString, GoodsArticle::kLevels>& codes,
                                            const std::array<int, GoodsArticle::kLevels>& digits) {
    int last = -1;
    for (int i = 0; i < GoodsArticle::kLevels; ++i) {
        if (!codes.at(static_cast<std::size_t>(i)).isEmpty()) {
            last = i;
        }
    }
    QString composed;
    for (int i = 0; i <= last; ++i) {
        const QString& code = codes.at(static_cast<std::size_t>(i));
        composed += code.isEmpty()
                        ? QString(digits.at(static_cast<std::size_t>(i)), QLatin1Char('0'))
                        : code;
    }
    return composed;
}

QString GoodsRepository::composeComplexCode(const std::array<int, GoodsArticle::kLevels>& levels) {
    const auto values = levelValues(levels);
    std::array<QString, GoodsArticle::kLevels> codes;
    for (int i = 0; i < GoodsArticle::kLevels; ++i) {
        codes[static_cast<std::size_t>(i)] = values.at(static_cast<std::size_t>(i)).code;
    }
    return composeComplexCode(codes, CodeLevelsRepository(m_database).goodsDigitCounts());
}

CheckResult GoodsRepository::check(const GoodsArticle& article) {
    using namespace goodsmessages;
    const QString barcode = cleanBarcode(article.barcode);
    if (barcode.isEmpty()) {
        return CheckResult::refused(kEnterBarcode, listmessages::kNoticeTitle);
    }
    if (article.name.trimmed().isEmpty()) {
        return CheckResult::refused(listmessages::kEnterName, listmessages::kNoticeTitle);
    }
    if (article.isNew()) {
        Session s = m_database.session(kModule, QStringLiteral("check"));
        const QVariant count =
            s.scalar(QStringLiteral("SELECT COUNT(*) FROM Goods WHERE EAN_Code = :barcode"),
                     {{QStringLiteral(":barcode"), barcode}});
        if (!count.isValid()) {
            return CheckResult::failed();
        }
        if (count.toLongLong() > 0) {
            return CheckResult::refused(kBarcodeTaken);
        }
    }
    return CheckResult::passed();
}

bool GoodsRepository::insertArticle(Session& session, GoodsArticle& article) {
    procedures::ColumnValues values{{QStringLiteral("EAN_Code"), article.barcode}};
    values << articleColumns(article);
    // Rows made here are told apart from those carried in from elsewhere.
    values.append({QStringLiteral("SyncInsert"), 1});
    const qint64 id = procedures::ReturningInsert::insert(session, QStringLiteral("Goods"), values,
                                                          QStringLiteral("ID"));
    if (id <= 0) {
        return false;
    }
    article.id = int(id);
    // The stock row of the article; one left behind by an earlier article of the same
    // barcode is kept (the stock repair owns its quantities).
    return session.exec(QStringLiteral("INSERT INTO Stock (Barcode, Import, Export, Stock, Branch) "
                                       "SELECT :barcode, 0, 0, 0, 1 WHERE NOT EXISTS "
                                       "(SELECT 1 FROM Stock WHERE Barcode = :existing)"),
                        {{QStringLiteral(":barcode"), article.barcode},
                         {QStringLiteral(":existing"), article.barcode}});
}

bool GoodsRepository::updateArticle(Session& session, GoodsArticle& article, bool& priceChanged,
                                    bool& missing) {
    SqlQuery old(session,
                 QStringLiteral("SELECT COALESCE(Cost, 0), EAN_Code FROM Goods WHERE ID = :id"));
    old.bind(QStringLiteral(":id"), article.id);
    if (!old.exec()) {
        return false;
    }
    if (!old.next()) {
        missing = true;  // an article deleted meanwhile is not made again
        return false;
    }
    priceChanged = !samePrice(old.number(0), article.cost);
    // Documents know the article by its barcode: an edit keeps it.
    article.barcode = old.text(1);
    const procedures::ColumnValues values = articleColumns(article);
    QStringList assignments;
    for (const auto& [column, value] : values) {
        assignments << column + QStringLiteral(" = :") + column;
    }
    SqlBinds binds = bindsOf(values);
    binds.append({QStringLiteral(":id"), article.id});
    return session.exec(QStringLiteral("UPDATE Goods SET %1 WHERE ID = :id")
                            .arg(assignments.join(QStringLiteral(", "))),
                        binds);
}

bool GoodsRepository::recordPrice(Session& session, const GoodsArticle& article) {
    return session.exec(QStringLiteral("INSERT INTO Price_History (EAN_CODE, UserID, DateTime, "
                                       "Price) VALUES (:barcode, :userId, :moment, :price)"),
                        {{QStringLiteral(":barcode"), article.barcode},
                         {QStringLiteral(":userId"), m_userId},
                         {QStringLiteral(":moment"), jalaliDateTime(m_clock.now())},
                         {QStringLiteral(":price"), article.cost}});
}

CheckResult GoodsRepository::save(GoodsArticle& article) {
    article.barcode = cleanBarcode(article.barcode);
    article.specCode = article.specCode.trimmed();
    CheckResult checked = check(article);
    if (!checked.ok) {
        return checked;
    }
    // Only values that belong to their level are kept.
    const auto values = levelValues(article.levels);
    for (int i = 0; i < GoodsArticle::kLevels; ++i) {
        article.levels[static_cast<std::size_t>(i)] =
            values.at(static_cast<std::size_t>(i)).counter;
    }
    article.complexCode = composeComplexCode(article.levels);

    Session s = m_database.session(kModule, QStringLiteral("save"));
    Transaction tx(s);
    if (!tx.isActive()) {
        return CheckResult::failed();
    }
    const bool isNew = article.isNew();
    bool priceChanged = true;
    bool missing = false;
    const bool written =
        isNew ? insertArticle(s, article) : updateArticle(s, article, priceChanged, missing);
    if (!written || (priceChanged && !recordPrice(s, article))) {
        tx.rollback();
        if (isNew) {
            article.id = 0;
        }
        return missing ? CheckResult::refused(goodsmessages::kArticleNotFound)
                       : CheckResult::failed();
    }
    if (!tx.commit()) {
        if (isNew) {
            article.id = 0;
        }
        return CheckResult::failed();
    }
    if (m_hook != nullptr) {
        m_hook->goodsSaved(s, article);
    }
    return CheckResult::passed(listmessages::kSaved, listmessages::kNoticeTitle);
}

int GoodsRepository::documentLineCount(const QString& barcode) {
    Session s = m_database.session(kModule, QStringLiteral("documentLineCount"));
    const QVariant count = s.scalar(
        QStringLiteral("SELECT (SELECT COUNT(*) FROM Whs_QTYDocD WHERE EAN_Code = :ordinary) + "
                       "(SELECT COUNT(*) FROM Whs_QTYDocDInternal WHERE EAN_Code = :internal)"),
        {{QStringLiteral(":ordinary"), cleanBarcode(barcode)},
         {QStringLiteral(":internal"), cleanBarcode(barcode)}});
    return count.isValid() ? int(count.toLongLong()) : -1;
}

CheckResult GoodsRepository::canDelete(const QString& barcode) {
    if (documentLineCount(barcode) != 0) {
        return CheckResult::refused(goodsmessages::inDocumentsRefusal());
    }
    return CheckResult::passed(listmessages::kDeleteQuestion);
}

CheckResult GoodsRepository::remove(const QString& typedBarcode) {
    const QString barcode = cleanBarcode(typedBarcode);
    const std::optional<GoodsArticle> article = find(barcode);
    if (!article) {
        return CheckResult::refused(goodsmessages::kArticleNotFound);
    }
    Session s = m_database.session(kModule, QStringLiteral("remove"));
    Transaction tx(s);
    if (!tx.isActive()) {
        return CheckResult::failed();
    }
    // Counted again inside the transaction: a sale saved since the question counts too.
    const QVariant lines = s.scalar(
        QStringLiteral("SELECT (SELECT COUNT(*) FROM Whs_QTYDocD WHERE EAN_Code = :ordinary) + "
                       "(SELECT COUNT(*) FROM Whs_QTYDocDInternal WHERE EAN_Code = :internal)"),
        {{QStringLiteral(":ordinary"), barcode}, {QStringLiteral(":internal"), barcode}});
    if (!lines.isValid()) {
        tx.rollback();
        return CheckResult::failed();
    }
    if (lines.toLongLong() > 0) {
        tx.rollback();
        return CheckResult::refused(goodsmessages::inDocumentsRefusal());
    }
    const QString set = s.dialect().quote(QStringLiteral("Set"));
    const QStringList statements{
        QStringLiteral("DELETE FROM Stock WHERE Barcode = :barcode"),
        QStringLiteral("DELETE FROM tblRelatedCode WHERE Ean_Code = :barcode"),
        QStringLiteral("DELETE FROM SetItem WHERE Ean_Code = :barcode"),
        // A set article takes its member list with it.
        QStringLiteral("DELETE FROM SetItem WHERE SetId IN (SELECT Id FROM %1 "
                       "WHERE Ean_Code = :barcode)")
            .arg(set),
        QStringLiteral("DELETE FROM %1 WHERE Ean_Code = :barcode").arg(set),
        QStringLiteral("DELETE FROM ItemLock WHERE Ean_Code = :barcode"),
        QStringLiteral("DELETE FROM Price_History WHERE EAN_CODE = :barcode"),
        QStringLiteral("DELETE FROM BarcodeWarehouse WHERE EanCode = :barcode"),
        QStringLiteral("DELETE FROM DiscountD WHERE Ean_Code = :barcode"),
        QStringLiteral("DELETE FROM Goods WHERE EAN_Code = :barcode"),
    };
    for (const QString& sql : statements) {
        if (!s.exec(sql, {{QStringLiteral(":barcode"), barcode}})) {
            tx.rollback();
            return CheckResult::failed();
        }
    }
    if (!tx.commit()) {
        return CheckResult::failed();
    }
    if (m_hook != nullptr) {
        m_hook->goodsDeleted(s, *article);
    }
    return CheckResult::passed();
}

bool GoodsRepository::setActive(const QString& barcode, bool active) {
    Session s = m_database.session(kModule, QStringLiteral("setActive"));
    SqlQuery q(s, QStringLiteral("UPDATE Goods SET ISActive = :active WHERE EAN_Code = :barcode"));
    q.bind(QStringLiteral(":active"), active ? 1 : 0);
    q.bind(QStringLiteral(":barcode"), cleanBarcode(barcode));
    return q.exec() && q.rowsAffected() != 0;
}

double GoodsRepository::latestPrice(const QString& barcode) {
    Session s = m_database.session(kModule, QStringLiteral("latestPrice"));
    return s.scalarNumber(QStringLiteral("SELECT ") + s.dialect().top(1) +
                              QStringLiteral("COALESCE(Price, 0) FROM Price_History "
                                             "WHERE EAN_CODE = :barcode ORDER BY Id DESC") +
                              s.dialect().limit(1),
                          {{QStringLiteral(":barcode"), cleanBarcode(barcode)}});
}

int GoodsRepository::priceChangeCount(const QString& barcode) {
    Session s = m_database.session(kModule, QStringLiteral("priceChangeCount"));
    return int(s.scalarInt64(
        QStringLiteral("SELECT COUNT(*) FROM Price_History WHERE EAN_CODE = :barcode"),
        {{QStringLiteral(":barcode"), cleanBarcode(barcode)}}));
}

}  // namespace sandogh
