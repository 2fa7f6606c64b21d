#pragma once

#include <QString>
#include <optional>

#include "sales/LoadedDocument.h"

namespace sandogh {

class Database;

// Fills the sale from an earlier paper: a saved stock document (Whs_QTYDocH/D) with its
// unit prices, tax, line discounts, document discount, Base and note; a pre-invoice
// (tblPreFactorH/D, names and kinds from Goods); or a branch request (RequestH/D of
// DocType 2, possibly in the linked database) priced at the goods' Cost. Nothing when
// the paper does not exist or has no lines, or the look-up failed (the connection
// message has been shown).
class DocumentLoader {
public:
    // DocType of a branch request.
    static constexpr int kRequestDocType = 2;

    explicit DocumentLoader(Database& database);

    // The document of this kind and number; docType empty for the sale screen's own
    // documents (DocType NULL), docDate empty for any date. Of several matches the newest
    // (largest Code) is taken.
    std::optional<LoadedDocument> loadSavedDocument(int transType, const QString& docNo,
                                                    const QString& docDate = {},
                                                    std::optional<int> docType = {});
    // The pre-invoice of tblPreFactorH.Code.
    std::optional<LoadedDocument> loadPreInvoice(qint64 code);
    // The branch request of this number (RequestH.DocNo, DocType 2); branchCode 0 for any
    // branch; linkedDatabase empty for the shop database itself.
    std::optional<LoadedDocument> loadBranchRequest(const QString& docNo, int branchCode = 0,
                                                    const QString& linkedDatabase = {});

private:
    Database& m_database;
};

}  // namespace sandogh
