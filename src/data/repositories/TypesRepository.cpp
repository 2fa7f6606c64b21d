#include "data/repositories/TypesRepository.h"

#include <QLocale>

#include "data/Database.h"
#include "data/Dialect.h"
#include "data/SqlQuery.h"
#include "data/Transaction.h"
#include "data/procedures/ReturningInsert.h"
#include "data/procedures/TypesProcedures.h"
#include "data/repositories/ListMessages.h"
#include "data/repositories/TypedSearch.h"

namespace sandogh {

namespace {

const QString kModule = QStringLiteral("TypesRepository");

// " AND <column> LIKE :pattern" for the searched column, compared in search form; the
// pattern is bound.
QString searchCondition(const Dialect& dialect, TypesRepository::SearchColumn column,
                        const QString& prefix) {
    QString searched;
    switch (column) {
        case TypesRepository::SearchColumn::Code:
            searched = QStringLiteral("Code");
            break;
        case TypesRepository::SearchColumn::Name:
            searched = QStringLiteral("Name");
            break;
        case TypesRepository::SearchColumn::NameEng:
            searched = QStringLiteral("NameEng");
            break;
        case TypesRepository::SearchColumn::Note:
            searched = QStringLiteral("Note");
            break;
        case TypesRepository::SearchColumn::None:
            return {};
    }
    return QStringLiteral(" AND ") +
           TypedSearch::condition(dialect,
                                  QStringLiteral("COALESCE(%1%2, '')").arg(prefix, searched),
                                  QStringLiteral(":pattern"));
}

void bindSearch(SqlBinds& binds, TypesRepository::SearchColumn column, const QString& text) {
    if (column != TypesRepository::SearchColumn::None) {
        binds.append({QStringLiteral(":pattern"), TypedSearch::contains(text)});
    }
}

bool isAccountLevel(int typeNo) {
    return typeNo >= 201 && typeNo <= 210;
}

bool isGoodsLevel(int typeNo) {
    return typeNo >= 501 && typeNo <= 509;
}

}  // namespace

TypesRepository::TypesRepository(Database& database, MessageService* messages)
    : m_database(database), m_messages(messages) {}

bool TypesRepository::isCodeLevel(int typeNo) {
    return isAccountLevel(typeNo) || isGoodsLevel(typeNo);
}

QList<TypesRepository::Value> TypesRepository::readValues(Session& session, const QString& sql,
                                                          const SqlBinds& binds) {
    QList<Value> values;
    SqlQuery q(session, sql);
    for (const auto& [name, value] : binds) {
        q.bindValue(name, value);
    }
    if (!q.exec()) {
        return values;
    }
    const int columns = q.columnCount();
    while (q.next()) {
        Value v;
        v.counter = q.integer(0);
        if (columns == 2) {
            v.name = q.text(1);
        } else {
            v.code = q.text(1);
            v.name = q.text(2);
            v.nameEng = columns > 3 ? q.text(3) : QString();
            v.note = columns > 4 ? q.text(4) : QString();
        }
        values << v;
    }
    return values;
}

QList<TypesRepository::Value> TypesRepository::list(int typeNo, SearchColumn column,
                                                    const QString& text) {
    Session s = m_database.session(kModule, QStringLiteral("list"));
    SqlBinds binds{{QStringLiteral(":typeNo"), typeNo}};
    bindSearch(binds, column, text);
    QList<Value> values =
        readValues(s,
                   QStringLiteral("SELECT Counter, COALESCE(Code, ''), COALESCE(Name, ''), "
                                  "COALESCE(NameEng, ''), COALESCE(Note, '') FROM Types "
                                  "WHERE TypeNo = :typeNo") +
                       searchCondition(s.dialect(), column, {}) + QStringLiteral(" ORDER BY Code"),
                   binds);
    for (Value& v : values) {
        v.typeNo = typeNo;
    }
    return values;
}

QList<TypesRepository::Value> TypesRepository::picker(int typeNo, int parentCounter,
                                                      SearchColumn column, const QString& text) {
    Session s = m_database.session(kModule, QStringLiteral("picker"));
    if (column == SearchColumn::NameEng || column == SearchColumn::Note) {
        column = SearchColumn::None;  // the picker searches by code or name only
    }
    SqlBinds binds{{QStringLiteral(":typeNo"), typeNo}};
    bindSearch(binds, column, text);
    bool underParent = false;
    if (parentCounter > 0) {
        const QVariant links =
            s.scalar(QStringLiteral("SELECT COUNT(*) FROM TypesLink WHERE Link = :parent"),
                     {{QStringLiteral(":parent"), parentCounter}});
        if (!links.isValid()) {
            return {};
        }
        underParent = links.toLongLong() > 0;
    }
    QList<Value> values;
    if (underParent) {
        binds.append({QStringLiteral(":parent"), parentCounter});
        values = readValues(s,
                            QStringLiteral("SELECT T.Counter, COALESCE(T.Code, ''), "
                                           "COALESCE(T.Name, '') FROM Types T INNER JOIN "
                                           "TypesLink TL ON T.Counter = TL.Counter "
                                           "WHERE T.TypeNo = :typeNo AND TL.Link = :parent") +
                                searchCondition(s.dialect(), column, QStringLiteral("T.")) +
                                QStringLiteral(" ORDER BY T.Code, T.Counter"),
                            binds);
    } else {
        values = readValues(s,
                            QStringLiteral("SELECT Counter, COALESCE(Code, ''), COALESCE(Name, '') "
                                           "FROM Types WHERE TypeNo = :typeNo") +
                                searchCondition(s.dialect(), column, {}) +
                                QStringLiteral(" ORDER BY Code, Counter"),
                            binds);
    }
    for (Value& v : values) {
        v.typeNo = typeNo;
    }
    return values;
}

QList<TypesRepository::Value> TypesRepository::units() {
    Session s = m_database.session(kModule, QStringLiteral("units"));
    QList<Value> values = readValues(s,
                                     QStringLiteral("SELECT Counter, COALESCE(Name, '') FROM Types "
                                                    "WHERE TypeNo = :typeNo "
                                                    "ORDER BY COALESCE(Name, '')"),
                                     {{QStringLiteral(":typeNo"), kUnits}});
    for (Value& v : values) {
        v.typeNo = kUnits;
    }
    return values;
}

int TypesRepository::newCounter(int typeNo) {
    Session s = m_database.session(kModule, QStringLiteral("newCounter"));
    return procedures::sp_Types_GetNewCounter(s, typeNo);
}

qint64 TypesRepository::newPartyCode() {
    Session s = m_database.session(kModule, QStringLiteral("newPartyCode"));
    // NULLIF: a party saved without a code takes no part (SQL Server reads '' as 0, which
    // does not change the maximum either; PostgreSQL cannot convert it).
    const QVariant next = s.scalar(
        QStringLiteral("SELECT COALESCE(MAX(CAST(NULLIF(REPLACE(Code, '-', ''), '') AS BIGINT)), "
                       "0) + 1 FROM Types WHERE (TypeNo = :persons OR TypeNo = :companies)"),
        {{QStringLiteral(":persons"), kPersons}, {QStringLiteral(":companies"), kCompanies}});
    return next.isValid() ? next.toLongLong() : 0;
}

int TypesRepository::levelDigitCount(int typeNo) {
    Session s = m_database.session(kModule, QStringLiteral("levelDigitCount"));
    return int(s.scalarInt64(
        QStringLiteral("SELECT COALESCE(DigitQty, 0) FROM Code_Parameters WHERE TypeNo = :typeNo"),
        {{QStringLiteral(":typeNo"), typeNo}}));
}

CheckResult TypesRepository::check(const Value& value) {
    using namespace listmessages;
    if (value.name.trimmed().isEmpty()) {
        return CheckResult::refused(kEnterName, kNoticeTitle);
    }
    if (value.code.trimmed().isEmpty()) {
        return CheckResult::refused(kEnterCode, kNoticeTitle);
    }
    if (isCodeLevel(value.typeNo)) {
        // A level without a digit count (no row, or 0) holds its values to no length.
        const int digits = levelDigitCount(value.typeNo);
        if (digits > 0 && value.code.size() != digits) {
            return CheckResult::refused(kCodeMustBe + QString::number(digits) + kDigitsOrLetters);
        }
    }
    Session s = m_database.session(kModule, QStringLiteral("check"));
    const QVariant count = s.scalar(
        QStringLiteral("SELECT COUNT(*) FROM Types WHERE TypeNo = :typeNo AND Code = :code "
                       "AND Counter <> :counter"),
        {{QStringLiteral(":typeNo"), value.typeNo},
         {QStringLiteral(":code"), value.code},
         {QStringLiteral(":counter"), value.counter}});
    if (!count.isValid()) {
        return CheckResult::failed();
    }
    if (count.toLongLong() > 0) {
        return CheckResult::refused(kRepeatedCode);
    }
    return CheckResult::passed();
}

CheckResult TypesRepository::save(Value& value, const QList<int>& parents) {
    CheckResult checked = check(value);
    if (!checked.ok) {
        return checked;
    }
    Session s = m_database.session(kModule, QStringLiteral("save"));
    Transaction tx(s);
    if (!tx.isActive()) {
        return CheckResult::failed();
    }
    int counter = value.counter;
    if (counter > 0) {
        const bool updated = s.exec(
            QStringLiteral("UPDATE Types SET Name = :name, NameEng = :nameEng, Code = :code, "
                           "Note = :note WHERE Counter = :counter"),
            {{QStringLiteral(":name"), value.name},
             {QStringLiteral(":nameEng"), value.nameEng},
             {QStringLiteral(":code"), value.code},
             {QStringLiteral(":note"), value.note},
             {QStringLiteral(":counter"), counter}});
        if (!updated || !s.exec(QStringLiteral("DELETE FROM TypesLink WHERE Counter = :counter"),
                                {{QStringLiteral(":counter"), counter}})) {
            return CheckResult::failed();
        }
    } else {
        // The counter (sp_Types_GetNewCounter's largest plus one) is taken by the insert.
        counter = int(procedures::ReturningInsert::allocate(
            s, QStringLiteral("Types"), QStringLiteral("Counter"),
            {{QStringLiteral("TypeNo"), value.typeNo},
             {QStringLiteral("Name"), value.name},
             {QStringLiteral("NameEng"), value.nameEng},
             {QStringLiteral("Code"), value.code},
             {QStringLiteral("Note"), value.note}}));
        if (counter <= 0) {
            return CheckResult::failed();
        }
    }
    for (const int parent : parents) {
        if (!s.exec(
                QStringLiteral("INSERT INTO TypesLink (Counter, Link) VALUES (:counter, :link)"),
                {{QStringLiteral(":counter"), counter}, {QStringLiteral(":link"), parent}})) {
            return CheckResult::failed();
        }
    }
    if (!tx.commit()) {
        return CheckResult::failed();
    }
    value.counter = counter;
    return CheckResult::passed();
}

QList<TypesRepository::ParentOption> TypesRepository::parentOptions(int parentTypeNo, int counter) {
    Session s = m_database.session(kModule, QStringLiteral("parentOptions"));
    QList<ParentOption> options;
    SqlQuery q(s, QStringLiteral("SELECT Counter, Code, Name FROM Types WHERE TypeNo = :typeNo "
                                 "ORDER BY Name"));
    q.bind(QStringLiteral(":typeNo"), parentTypeNo);
    if (!q.exec()) {
        return options;
    }
    while (q.next()) {
        options << ParentOption{q.integer(0), q.text(1), q.text(2), false};
    }
    if (counter <= 0) {
        return options;
    }
    for (ParentOption& option : options) {
        option.linked =
            s.scalarInt64(QStringLiteral("SELECT COUNT(*) FROM TypesLink WHERE Counter = :counter "
                                         "AND Link = :link"),
                          {{QStringLiteral(":counter"), counter},
                           {QStringLiteral(":link"), option.counter}}) > 0;
    }
    return options;
}

int TypesRepository::useCount(int typeNo, int counter) {
    QString sql;
    if (isAccountLevel(typeNo)) {
        sql = QStringLiteral("SELECT COUNT(*) FROM Acc_Code WHERE LevelID%1 = :counter")
                  .arg(typeNo - 200);
    } else if (isGoodsLevel(typeNo) && typeNo != kUndeletableGoodsLevel) {
        sql = QStringLiteral(
                  "SELECT COUNT(G.ID) FROM Goods G INNER JOIN Types T "
                  "ON G.LevelID%1 = T.Counter WHERE T.Counter = :counter")
                  .arg(typeNo - 500);
    } else if (typeNo == kUndeletableGoodsLevel) {
        return -1;
    } else {
        return 0;  // other lists are not counted
    }
    Session s = m_database.session(kModule, QStringLiteral("useCount"));
    const QVariant count = s.scalar(sql, {{QStringLiteral(":counter"), counter}});
    return count.isValid() ? int(count.toLongLong()) : -1;
}

CheckResult TypesRepository::canDelete(int typeNo, int counter) {
    using namespace listmessages;
    if (typeNo == kUndeletableGoodsLevel && m_messages != nullptr) {
        m_messages->show(Database::connectionFailureMessage(), MessageStyle::CriticalPlain);
    }
    const int uses = useCount(typeNo, counter);
    if (uses != 0) {
        return CheckResult::refused(twoLines(kCannotDelete, kTiedToGoods));
    }
    return CheckResult::passed(kDeleteQuestion);
}

bool TypesRepository::remove(int counter) {
    Session s = m_database.session(kModule, QStringLiteral("remove"));
    Transaction tx(s);
    const SqlBinds binds{{QStringLiteral(":counter"), counter}};
    return tx.isActive() &&
           s.exec(QStringLiteral("DELETE FROM Types WHERE Counter = :counter"), binds) &&
           s.exec(QStringLiteral("DELETE FROM TypesLink WHERE Counter = :counter"), binds) &&
           tx.commit();
}

bool TypesRepository::saveSingle(int typeNo, const QStringList& columns, const QStringList& values,
                                 const QString& routine) {
    Session s = m_database.session(kModule, routine);
    Transaction tx(s);
    if (!tx.isActive()) {
        return false;
    }
    const QVariant count =
        s.scalar(QStringLiteral("SELECT COUNT(Counter) FROM Types WHERE TypeNo = :typeNo"),
                 {{QStringLiteral(":typeNo"), typeNo}});
    if (!count.isValid()) {
        return false;
    }
    if (count.toLongLong() == 0) {
        procedures::ColumnValues row{{QStringLiteral("TypeNo"), typeNo}};
        for (qsizetype i = 0; i < columns.size(); ++i) {
            row.append({columns.at(i), values.at(i)});
        }
        if (procedures::ReturningInsert::allocate(s, QStringLiteral("Types"),
                                                  QStringLiteral("Counter"), row) <= 0) {
            return false;
        }
    } else {
        QStringList assignments;
        SqlBinds binds{{QStringLiteral(":typeNo"), typeNo}};
        for (qsizetype i = 0; i < columns.size(); ++i) {
            assignments << QStringLiteral("%1 = :%1").arg(columns.at(i));
            binds.append({QLatin1Char(':') + columns.at(i), values.at(i)});
        }
        if (!s.exec(QStringLiteral("UPDATE Types SET %1 WHERE TypeNo = :typeNo")
                        .arg(assignments.join(QStringLiteral(", "))),
                    binds)) {
            return false;
        }
    }
    return tx.commit();
}

QString TypesRepository::singleCode(int typeNo) {
    Session s = m_database.session(kModule, QStringLiteral("singleCode"));
    return s.scalarText(
        QStringLiteral("SELECT COALESCE(Code, '') FROM Types WHERE TypeNo = :typeNo"),
        {{QStringLiteral(":typeNo"), typeNo}});
}

bool TypesRepository::saveSingleCode(const QString& code, int typeNo) {
    return saveSingle(typeNo, {QStringLiteral("Code")}, {code}, QStringLiteral("saveSingleCode"));
}

QString TypesRepository::singleName(int typeNo) {
    Session s = m_database.session(kModule, QStringLiteral("singleName"));
    return s.scalarText(
        QStringLiteral("SELECT COALESCE(Name, '') FROM Types WHERE TypeNo = :typeNo"),
        {{QStringLiteral(":typeNo"), typeNo}});
}

bool TypesRepository::saveSingleName(const QString& name, int typeNo) {
    return saveSingle(typeNo, {QStringLiteral("Name")}, {name}, QStringLiteral("saveSingleName"));
}

TypesRepository::ClubFigures TypesRepository::clubFigures() {
    Session s = m_database.session(kModule, QStringLiteral("clubFigures"));
    SqlQuery q(s, QStringLiteral("SELECT COALESCE(Value1, '0'), COALESCE(Value2, '0') FROM Types "
                                 "WHERE TypeNo = :typeNo"));
    q.bind(QStringLiteral(":typeNo"), kClubFigures);
    ClubFigures figures;
    if (q.exec() && q.next()) {
        // Amounts may have been typed with thousands separators.
        figures.purchaseFactor = q.text(0).remove(QLatin1Char(',')).trimmed().toDouble();
        figures.rebateAmount = q.text(1).remove(QLatin1Char(',')).trimmed().toDouble();
    }
    return figures;
}

bool TypesRepository::saveClubFigures(const ClubFigures& figures) {
    return saveSingle(kClubFigures, {QStringLiteral("Value1"), QStringLiteral("Value2")},
                      {QString::number(figures.purchaseFactor, 'f', QLocale::FloatingPointShortest),
                       QString::number(figures.rebateAmount, 'f', QLocale::FloatingPointShortest)},
                      QStringLiteral("saveClubFigures"));
}

GiftsTaken TypesRepository::giftsOfActiveParty(Session& session, int counter) {
    GiftsTaken taken;
    SqlQuery q(
        session,
        QStringLiteral("SELECT COALESCE(DiscountTakenTotal,0), COALESCE(LastDiscountTakenDate,'') "
                       "FROM Types WHERE (TypeNo = :customers OR TypeNo = :suppliers) AND "
                       "COALESCE(Active,0) = :active AND Counter = :counter"));
    q.bind(QStringLiteral(":customers"), kPersons)
        .bind(QStringLiteral(":suppliers"), kCompanies)
        .bind(QStringLiteral(":active"), 1)
        .bind(QStringLiteral(":counter"), counter);
    if (q.exec() && q.next()) {
        taken.found = true;
        taken.total = q.number(0);
        taken.lastDate = q.text(1).trimmed();
    }
    return taken;
}

std::optional<GiftsTaken> TypesRepository::giftsOfRow(Session& session, int counter) {
    SqlQuery q(session, QStringLiteral("SELECT COALESCE(DiscountTakenTotal,0), "
                                       "COALESCE(LastDiscountTakenDate,'') FROM Types WHERE "
                                       "Counter = :counter"));
    q.bind(QStringLiteral(":counter"), counter);
    if (!q.exec()) {
        return std::nullopt;
    }
    GiftsTaken taken;
    if (q.next()) {
        taken.found = true;
        taken.total = q.number(0);
        taken.lastDate = q.text(1).trimmed();
    }
    return taken;
}

}  // namespace sandogh
