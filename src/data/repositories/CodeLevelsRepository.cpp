#include "data/repositories/CodeLevelsRepository.h"

#include "data/Database.h"
#include "data/Dialect.h"
#include "data/SqlQuery.h"
#include "data/procedures/KeyConflictRetry.h"
#include "data/procedures/ReturningInsert.h"
#include "data/repositories/DigitText.h"
#include "data/repositories/ListMessages.h"
#include "data/repositories/TypedSearch.h"

namespace sandogh {

namespace {

const QString kModule = QStringLiteral("CodeLevelsRepository");

// The families are told apart by TypeNo against 300.
QString familyCondition(CodeLevelsRepository::Family family) {
    return family == CodeLevelsRepository::Family::Goods ? QStringLiteral("TypeNo > 300")
                                                         : QStringLiteral("TypeNo < 300");
}

}  // namespace

CodeLevelsRepository::CodeLevelsRepository(Database& database) : m_database(database) {}

CodeLevelsRepository::Family CodeLevelsRepository::familyOf(int typeNo) {
    return typeNo > 300 ? Family::Goods : Family::Accounts;
}

QList<CodeLevelsRepository::Level> CodeLevelsRepository::list(Family family, SearchColumn column,
                                                              const QString& text) {
    Session s = m_database.session(kModule, QStringLiteral("list"));
    QString sql = QStringLiteral(
                      "SELECT Counter, COALESCE(TypeNo, 0), COALESCE(Name, ''), "
                      "COALESCE(NameEnglish, ''), COALESCE(DigitQty, 0), "
                      "COALESCE(ParameterLevel, 0) FROM Code_Parameters WHERE ") +
                  familyCondition(family);
    if (column == SearchColumn::Name) {
        sql += QStringLiteral(" AND ") +
               TypedSearch::condition(s.dialect(), QStringLiteral("COALESCE(Name, '')"),
                                      QStringLiteral(":pattern"));
    } else if (column == SearchColumn::NameEnglish) {
        sql += QStringLiteral(" AND ") +
               TypedSearch::condition(s.dialect(), QStringLiteral("COALESCE(NameEnglish, '')"),
                                      QStringLiteral(":pattern"));
    }
    sql += QStringLiteral(" ORDER BY TypeNo");
    SqlQuery q(s, sql);
    if (column != SearchColumn::None) {
        q.bind(QStringLiteral(":pattern"), TypedSearch::contains(text));
    }
    QList<Level> levels;
    if (!q.exec()) {
        return levels;
    }
    while (q.next()) {
        levels << Level{q.integer(0), q.integer(1), q.text(2),
                        q.text(3),    q.integer(4), q.integer(5)};
    }
    return levels;
}

int CodeLevelsRepository::nextTypeNo(Family family) {
    Session s = m_database.session(kModule, QStringLiteral("nextTypeNo"));
    const QVariant last =
        s.scalar(family == Family::Goods
                     ? QStringLiteral("SELECT COALESCE(MAX(TypeNo), 500) FROM Code_Parameters "
                                      "WHERE TypeNo > 300")
                     : QStringLiteral("SELECT COALESCE(MAX(TypeNo), 200) FROM Code_Parameters "
                                      "WHERE TypeNo < 300"));
    return last.isValid() ? last.toInt() + 1 : 0;
}

int CodeLevelsRepository::nextParameterLevel(Family family) {
    Session s = m_database.session(kModule, QStringLiteral("nextParameterLevel"));
    const QVariant last =
        s.scalar(QStringLiteral("SELECT COALESCE(MAX(ParameterLevel), 0) FROM Code_Parameters "
                                "WHERE ") +
                 familyCondition(family));
    return last.isValid() ? last.toInt() + 1 : 0;
}

CheckResult CodeLevelsRepository::save(Level& level, Family family) {
    using namespace listmessages;
    if (level.name.trimmed().isEmpty()) {
        return CheckResult::refused(kEnterName, kNoticeTitle);
    }
    if (level.counter > 0) {
        Session s = m_database.session(kModule, QStringLiteral("save"));
        const bool updated =
            s.exec(QStringLiteral(
                       "UPDATE Code_Parameters SET Name = :name, NameEnglish = :nameEnglish, "
                       "DigitQty = :digitQty, ParameterLevel = :level WHERE Counter = :counter"),
                   {{QStringLiteral(":name"), level.name},
                    {QStringLiteral(":nameEnglish"), level.nameEnglish},
                    {QStringLiteral(":digitQty"), level.digitQty},
                    {QStringLiteral(":level"), level.parameterLevel},
                    {QStringLiteral(":counter"), level.counter}});
        return updated ? CheckResult::passed(kSaved, kNoticeTitle) : CheckResult::failed();
    }
    const int last = family == Family::Goods ? kLastGoodsLevel : kLastAccountLevel;
    const int number = level.typeNo > 0 ? level.typeNo : nextTypeNo(family);
    if (number <= 0) {
        return CheckResult::failed();
    }
    if (number > last) {
        return CheckResult::refused(kAllLevelsDefined);
    }
    if (level.parameterLevel <= 0) {
        level.parameterLevel = nextParameterLevel(family);
        if (level.parameterLevel <= 0) {
            return CheckResult::failed();
        }
    }
    Session s = m_database.session(kModule, QStringLiteral("save"));
    const procedures::ColumnValues values{
        {QStringLiteral("Name"), level.name},
        {QStringLiteral("NameEnglish"), level.nameEnglish},
        {QStringLiteral("DigitQty"), level.digitQty},
        {QStringLiteral("ParameterLevel"), level.parameterLevel},
    };
    const QString head = QStringLiteral(
        "INSERT INTO Code_Parameters (TypeNo, Name, NameEnglish, DigitQty, ParameterLevel)");
    qint64 counter = 0;
    if (level.typeNo > 0) {
        procedures::ColumnValues numbered{{QStringLiteral("TypeNo"), level.typeNo}};
        numbered << values;
        counter = procedures::ReturningInsert::insert(s, QStringLiteral("Code_Parameters"),
                                                      numbered, QStringLiteral("Counter"));
    } else {
        // "Select Isnull(Max(TypeNo),500) From Code_Parameters where TypeNo > 300" plus one
        // (200 and < 300 for accounts), inside the insert.
        const QString source =
            family == Family::Goods
                ? QStringLiteral(
                      "SELECT COALESCE(MAX(TypeNo), 500) + 1, :Name, :NameEnglish, "
                      ":DigitQty, :ParameterLevel FROM Code_Parameters WHERE TypeNo > 300")
                : QStringLiteral(
                      "SELECT COALESCE(MAX(TypeNo), 200) + 1, :Name, :NameEnglish, "
                      ":DigitQty, :ParameterLevel FROM Code_Parameters WHERE TypeNo < 300");
        const QString sql = procedures::ReturningInsert::statement(s.backend(), head, source,
                                                                   QStringLiteral("Counter"));
        counter = procedures::KeyConflictRetry::run(s, [&](DbError& error) {
            return procedures::ReturningInsert::run(s, sql, values, error);
        });
        if (counter > 0) {
            level.typeNo = int(s.scalarInt64(
                QStringLiteral("SELECT TypeNo FROM Code_Parameters WHERE Counter = :counter"),
                {{QStringLiteral(":counter"), counter}}));
        }
    }
    if (counter <= 0) {
        return CheckResult::failed();
    }
    level.counter = int(counter);
    return CheckResult::passed(kSaved, kNoticeTitle);
}

CheckResult CodeLevelsRepository::canDelete(int typeNo) {
    using namespace listmessages;
    Session s = m_database.session(kModule, QStringLiteral("canDelete"));
    const QVariant values =
        s.scalar(QStringLiteral("SELECT COUNT(*) FROM Types WHERE TypeNo = :typeNo"),
                 {{QStringLiteral(":typeNo"), typeNo}});
    if (!values.isValid() || values.toLongLong() > 0) {
        return CheckResult::refused(twoLines(kCannotDelete, kDefinitionsMade));
    }
    return CheckResult::passed(kDeleteQuestion);
}

bool CodeLevelsRepository::remove(int counter) {
    Session s = m_database.session(kModule, QStringLiteral("remove"));
    return s.exec(QStringLiteral("DELETE FROM Code_Parameters WHERE Counter = :counter"),
                  {{QStringLiteral(":counter"), counter}});
}

int CodeLevelsRepository::digitCount(int typeNo) {
    Session s = m_database.session(kModule, QStringLiteral("digitCount"));
    return int(s.scalarInt64(
        QStringLiteral("SELECT COALESCE(DigitQty, 0) FROM Code_Parameters WHERE TypeNo = :typeNo"),
        {{QStringLiteral(":typeNo"), typeNo}}));
}

std::array<int, CodeLevelsRepository::kGoodsLevels> CodeLevelsRepository::goodsDigitCounts() {
    std::array<int, kGoodsLevels> counts{};
    Session s = m_database.session(kModule, QStringLiteral("goodsDigitCounts"));
    for (int i = 0; i < kGoodsLevels; ++i) {
        counts[size_t(i)] = int(s.scalarInt64(
            QStringLiteral(
                "SELECT COALESCE(DigitQty, 0) FROM Code_Parameters WHERE TypeNo = :typeNo"),
            {{QStringLiteral(":typeNo"), kFirstGoodsLevel + i}}));
    }
    return counts;
}

int CodeLevelsRepository::digitsBelow(int typeNo) {
    Session s = m_database.session(kModule, QStringLiteral("digitsBelow"));
    return int(s.scalarInt64(
        QStringLiteral(
            "SELECT COALESCE(SUM(DigitQty), 0) FROM Code_Parameters WHERE TypeNo < :typeNo"),
        {{QStringLiteral(":typeNo"), typeNo}}));
}

QString CodeLevelsRepository::proposedBarcode() {
    Session s = m_database.session(kModule, QStringLiteral("proposedBarcode"));
    SqlQuery q(s, QStringLiteral("SELECT COALESCE(EAN_Code, '0') AS NewBarcode FROM Goods "
                                 "WHERE ID = (SELECT MAX(ID) FROM Goods)"));
    if (!q.exec()) {
        return {};
    }
    return DigitText::plusOne(q.next() ? q.text(0) : QStringLiteral("0"));
}

}  // namespace sandogh
