#pragma once

#include <QList>
#include <QString>
#include <optional>

#include "data/Session.h"
#include "data/repositories/CheckResult.h"
#include "data/repositories/GiftsTaken.h"

namespace sandogh {

class Database;
class MessageService;

// The parameter table Types and its links TypesLink: the lists kept by TypeNo (units,
// customer grades, the values of the code levels), the party codes, and the single-valued
// shop settings. Back office screens (the list, its edit form and the picker) stay thin:
// checks and saves answer with the message to show.
class TypesRepository {
public:
    // The column a list is searched in (a substring of it).
    enum class SearchColumn { None, Code, Name, NameEng, Note };

    // A value of a list, as the list shows it and the edit form edits it.
    struct Value {
        int counter = 0;  // 0 for a value not saved yet
        int typeNo = 0;
        QString code;
        QString name;
        QString nameEng;
        QString note;
    };

    // A value of the parent list, ticked where the edited value hangs under it.
    struct ParentOption {
        int counter = 0;
        QString code;
        QString name;
        bool linked = false;
    };

    // The customer club figures of TypeNo 1009.
    struct ClubFigures {
        double purchaseFactor = 0;  // Value1
        double rebateAmount = 0;    // Value2
    };

    static constexpr int kPersons = 10;
    static constexpr int kCompanies = 11;
    static constexpr int kSingleCodeSetting = 25;  // held in Code
    static constexpr int kUnits = 61;
    static constexpr int kSingleNameSetting = 1005;  // held in Name
    static constexpr int kClubFigures = 1009;        // Value1 and Value2
    // Level 9 goods values are never deleted through the list: the use count of that level
    // could never be read, so the person has always seen the connection message followed by
    // the refusal, and articles rely on their level 9 values staying. The count is not run.
    static constexpr int kUndeletableGoodsLevel = 509;

    // messages shows the connection message of the level 9 refusal (may be null).
    explicit TypesRepository(Database& database, MessageService* messages = nullptr);

    // The values of a list ordered by code, narrowed to those whose column contains text.
    QList<Value> list(int typeNo, SearchColumn column = SearchColumn::None,
                      const QString& text = {});
    // The picker: the values of typeNo linked under parentCounter, or the whole list when
    // no parent is given (0) or the parent has no linked values at all. Searches by code
    // or name. The values carry counter, code and name.
    QList<Value> picker(int typeNo, int parentCounter = 0, SearchColumn column = SearchColumn::None,
                        const QString& text = {});
    // Units of measure (TypeNo 61) by name: counter and name.
    QList<Value> units();

    // sp_Types_GetNewCounter; 0 on failure.
    int newCounter(int typeNo);
    // The next party code: persons and companies share one run, dashes removed ("12-3"
    // counts as 123). 0 on failure.
    qint64 newPartyCode();

    // Whether the list holds the values of a code level (201..210, 501..509).
    static bool isCodeLevel(int typeNo);
    // The digit count every code of a level must have (0 without a level row).
    int levelDigitCount(int typeNo);

    // The checks of the edit form, in order: name, code, digit count of a code level,
    // repeat of the code in its list (the edited row itself excluded).
    CheckResult check(const Value& value);
    // Checks, then writes the value and replaces its links with parents, in one
    // transaction; a new value gets its counter (value.counter is set).
    CheckResult save(Value& value, const QList<int>& parents);
    // The values of the parent list by name, ticked where value counter hangs under them.
    QList<ParentOption> parentOptions(int parentTypeNo, int counter);

    // Before a delete: passed with the question to ask when nothing uses the value,
    // refused with the message otherwise (and when its uses cannot be counted).
    CheckResult canDelete(int typeNo, int counter);
    // Articles (501..508) or accounts (201..210) using a value; -1 when unknown.
    int useCount(int typeNo, int counter);
    // Deletes the value and all its links.
    bool remove(int counter);

    // Single-valued settings: read, and written (the row is made on first save).
    QString singleCode(int typeNo = kSingleCodeSetting);
    bool saveSingleCode(const QString& code, int typeNo = kSingleCodeSetting);
    QString singleName(int typeNo = kSingleNameSetting);
    bool saveSingleName(const QString& name, int typeNo = kSingleNameSetting);
    // The loyalty gifts of an active person or company row with this counter; not found
    // otherwise.
    static GiftsTaken giftsOfActiveParty(Session& session, int counter);
    // The loyalty gifts of the row with this counter, whatever its kind; nothing when the
    // statement failed.
    static std::optional<GiftsTaken> giftsOfRow(Session& session, int counter);

    ClubFigures clubFigures();
    bool saveClubFigures(const ClubFigures& figures);

private:
    QList<Value> readValues(Session& session, const QString& sql, const SqlBinds& binds);
    bool saveSingle(int typeNo, const QStringList& columns, const QStringList& values,
                    const QString& routine);

    Database& m_database;
    MessageService* m_messages;
};

}  // namespace sandogh
