#pragma once

#include <QList>
#include <QString>

#include "data/repositories/SaleDeleteRepository.h"
#include "sales/SaleAudit.h"

namespace sandogh {

class Clock;
class Database;
class MessageService;
class Session;

// Deleting saved documents (frmDeleteFactor, frmDeleteFactorGroup) without their widgets.
// A document is found by kind, number and date; one with movements (other payments on it,
// or source payments on its voucher) is refused; the rest is DelRoutine: its lines, its
// header, the stock of its articles repaired, one loyalty gift given back when its
// discount was a gift (whatever number of gifts the sale took), its gift card movements,
// the rows and header of its voucher, and the audit record of what was deleted. Each
// document is deleted in one transaction: a failure part way leaves it whole.
//
// frmDeleteFactorInternal (deleteInternal) is the same over the internal documents: found by
// kind and number only, no movements check, no voucher, gift or audit record; its lines,
// its header and the stock of its articles go in one transaction.
class SaleDelete {
public:
    enum class Outcome { Deleted, NotFound, HasMovements, NothingTicked, Failed };

    static QString notFoundText();
    static QString movementsText();
    static QString doneText();
    static QString nothingTickedText();
    // What frmDeleteFactorInternal reports after the delete.
    static QString internalDoneText();

    SaleDelete(Database& database, MessageService& messages, const Clock& clock,
               SaleAudit::Desk desk);

    // frmDeleteFactor: the look-up, the check, the delete and its message.
    Outcome deleteOne(int transType, const QString& docNo, const QString& docDate);
    // frmDeleteFactorGroup: each ticked document in turn, each in its own transaction; the
    // first with movements stops the rest with the movements message.
    Outcome deleteGroup(const QList<SaleDeleteRepository::ListRow>& ticked);
    // frmDeleteFactorInternal: the internal document of the kind (2 or 3) with this number
    // looked up, deleted, and the message shown.
    Outcome deleteInternal(int transType, const QString& docNo);

    // CanFactorDelete: false (with the message shown) when the document has movements or
    // the check could not be read.
    bool CanFactorDelete(Session& session, qint64 code, int transType, qint64 documentHId);
    // DelRoutine on the caller's transaction; false at the first failed step.
    bool DelRoutine(Session& session, const SaleDeleteRepository::Found& document);

private:
    Outcome deleteDocument(int transType, const SaleDeleteRepository::Found& document);

    Database& m_database;
    MessageService& m_messages;
    const Clock& m_clock;
    SaleAudit::Desk m_desk;
    bool m_hadMovements = false;  // what the last CanFactorDelete found
};

}  // namespace sandogh
