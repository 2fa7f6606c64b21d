#pragma once

#include <QList>
#include <QString>
#include <memory>
#include <optional>

#include "data/repositories/CenterBranch.h"
#include "data/repositories/InternalPrices.h"

namespace sandogh {

class Clock;
class Database;
class MachineSettings;
class MessageService;
class SaleSession;

// An internal sale (frmSaleInter without its widgets): goods handed to one of the shop's
// branches. The barcode box, quantities, lines and totals are the sale's own (entry(), a
// SaleSession whose lines are priced by InternalPricing); beside them stand the branch in
// place of a customer, the invoice number and, for a return, the number of the invoice it
// returns.
class InternalSaleSession {
public:
    // The edges are not owned and must outlive the session. The price mode, its date limit
    // and the branch kind are read from the settings once, here.
    InternalSaleSession(Database& database, const MachineSettings& settings,
                        MessageService& messages, const Clock& clock);
    ~InternalSaleSession();

    SaleSession& entry();
    const SaleSession& entry() const;

    // The branches the screen offers (tblCenterBranches of branchKind()); nothing on failure.
    std::optional<QList<CenterBranch>> branches();
    int branchKind() const;
    int branchId() const;
    QString branchName() const;
    void setBranch(const CenterBranch& branch);
    // Looks the branch up by ID; false when there is none.
    bool selectBranch(int id);

    InternalPrices::Mode priceMode() const;
    void setPriceMode(InternalPrices::Mode mode);
    QString priceDateLimit() const;
    void setPriceDateLimit(const QString& jalaliDate);
    // The stock of the article rung up last.
    double lastStock() const;

    // The invoice number: a proposal (taken again under the desks' lock on saving) or typed.
    QString docNo() const;
    bool docNoTyped() const;
    void setDocNo(const QString& docNo, bool typed);
    // Proposes the next number of the document's kind; empty when the look-up failed.
    QString proposeDocNo();
    // A return: the number of the invoice it returns (Atf).
    QString returnedInvoice() const;
    void setReturnedInvoice(const QString& number);

    // frmSaleInterUpdate: a saved document brought in to be corrected (its branch, kind,
    // number, date and lines); saving then writes it again under its own key. False when it
    // cannot be read.
    bool loadDocument(qint64 code);
    // The key of the document being corrected; 0 for a new one.
    qint64 editedCode() const;

    // A new, empty internal sale; the branch stays chosen.
    void newSale();

private:
    struct Private;
    std::unique_ptr<Private> d;
};

}  // namespace sandogh
