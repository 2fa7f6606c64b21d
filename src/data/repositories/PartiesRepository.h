#pragma once

#include <QList>
#include <QString>
#include <optional>

#include "data/repositories/CheckResult.h"
#include "data/repositories/Party.h"

namespace sandogh {

class Database;

// Customers and suppliers: the party rows of the parameter table (TypeNo 10 and 11),
// with their customer group and their ledger in the chart of accounts.
class PartiesRepository {
public:
    enum class SearchColumn { None, Code, Name, Family, Telephone };

    // An entry of a pick list: a customer group or a ledger.
    struct Choice {
        int id = 0;  // tblCustomerGroup.Code or tblAccountingGroup.ID
        QString code;
        QString name;
    };

    explicit PartiesRepository(Database& database);

    // The parties of a kind by code, narrowed to those whose column holds the text (the
    // telephone search looks at both numbers); inactive ones only when asked for.
    QList<Party> list(int typeNo, SearchColumn column = SearchColumn::None,
                      const QString& text = {}, bool withInactive = true);
    std::optional<Party> find(int counter);
    // The next code of the run persons and companies share, as text; empty on failure.
    QString newCode();

    // The save checks, in order: name, code given, code of digits and dashes, code not
    // held by another party (dashes ignored), birthday a real day, credit not negative.
    CheckResult check(const Party& party);
    // Checks, then writes the row; a new party gets its Counter (set in party).
    CheckResult save(Party& party);

    // Before a delete: passed with the question when no document, payment, gift card or
    // car names the party; refused with the message that offers deactivation otherwise.
    CheckResult canDelete(int counter);
    // Deletes the party, refused as canDelete() refuses.
    CheckResult remove(int counter);
    bool setActive(int counter, bool active);

    // The customer groups by code, and the ledgers of the chart of accounts by code.
    QList<Choice> customerGroups();
    QList<Choice> accountingGroups();

    // Whether a code is digits with dashes between them.
    static bool isPartyCode(const QString& code);

private:
    Database& m_database;
};

}  // namespace sandogh
