#pragma once

#include <QString>
#include <memory>

#include "purchase/PurchaseCheck.h"
#include "purchase/PurchaseHeader.h"
#include "purchase/PurchaseLinesModel.h"
#include "purchase/PurchaseTotals.h"

namespace sandogh {

class Clock;
class Database;
class MessageService;

// The purchase screen without its widgets: a purchase (TransType 1) or a purchase return
// (4), its header fields and lines, the barcode box's rule, the totals, numbering and the
// checks before saving. PurchaseSaver writes it.
class PurchaseSession {
public:
    // The edges are not owned and must outlive the session.
    PurchaseSession(Database& database, MessageService& messages, const Clock& clock);
    ~PurchaseSession();

    void setUser(int userId);
    int userId() const;

    // Clears the form for a new purchase or purchase return: no lines, today's date and a
    // proposed number.
    void newDocument(bool isReturn);
    bool isReturn() const;
    int transType() const;

    PurchaseHeader& header();
    const PurchaseHeader& header() const;
    PurchaseLinesModel& lines();
    const PurchaseLinesModel& lines() const;
    PurchaseTotals totals() const;

    // The key and number a new document would get now (1 for the first of an empty
    // database); reads them again. The number is put into the header unless one is typed.
    void refreshNumbers();
    qint64 proposedCode() const;
    QString proposedDocNo() const;
    // Whether the header's number is still the proposed one: the save then takes the next
    // number of its own transaction instead.
    bool docNoIsProposed() const;

    // The barcode box: an unknown barcode shows its message and adds nothing; a known one
    // adds a line of one with the article's last purchase terms. False when nothing was
    // added (unknown, or the look-up failed).
    bool addBarcode(const QString& typed);

    // Replaces the lines and header fields with those of a pre-invoice, or of an ordinary
    // document of a type and number. False when there is none (the form is unchanged).
    bool loadPreInvoice(qint64 code);
    bool loadDocument(int transType, const QString& docNo);

    // The four checks, then the number's repeat: the first that refuses shows its message.
    PurchaseCheck check();

private:
    struct Private;
    std::unique_ptr<Private> d;
};

}  // namespace sandogh
