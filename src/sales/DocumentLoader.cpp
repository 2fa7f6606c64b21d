#include "sales/DocumentLoader.h"

#include "data/Database.h"
#include "data/repositories/DocumentReader.h"

namespace sandogh {

namespace {

const QString kModule = QStringLiteral("frmSale");

// The document as the sale screen takes it: lines priced and totalled, an article that is
// not in Goods marked as such (its stock is not checked).
std::optional<LoadedDocument> taken(const std::optional<DocumentReader::Document>& read,
                                    LoadedDocument::Source source) {
    if (!read) {
        return std::nullopt;
    }
    LoadedDocument doc;
    doc.source = source;
    doc.documentCode = read->code;
    doc.discount = read->discount;
    doc.base = read->base;
    doc.note = read->note;
    doc.companyId = read->companyId;
    for (const DocumentReader::Line& r : read->lines) {
        SaleLine l;
        l.barcode = r.barcode;
        l.name = r.name;
        l.quantity = r.quantity;
        l.unitPrice = r.unitPrice;
        l.taxPercent = r.taxPercent;
        l.goodsKind = r.goodsKind;
        if (!r.inGoods) {
            l.goodsKind = SaleLine::kNotFoundKind;
            l.stockFlag = -1;
        }
        l.lineDiscount = r.lineDiscount;
        l.sellerId = r.sellerId;
        l.seller = r.seller;
        l.recompute();
        doc.lines << l;
    }
    return doc;
}

}  // namespace

DocumentLoader::DocumentLoader(Database& database) : m_database(database) {}

std::optional<LoadedDocument> DocumentLoader::loadSavedDocument(int transType, const QString& docNo,
                                                                const QString& docDate,
                                                                std::optional<int> docType) {
    Session session = m_database.session(kModule, QStringLiteral("LoadSavedDocument"));
    return taken(DocumentReader::savedDocument(session, transType, docNo, docDate, docType),
                 LoadedDocument::Source::SavedDocument);
}

std::optional<LoadedDocument> DocumentLoader::loadPreInvoice(qint64 code) {
    Session session = m_database.session(kModule, QStringLiteral("LoadPreInvoice"));
    std::optional<LoadedDocument> doc =
        taken(DocumentReader::preInvoice(session, code), LoadedDocument::Source::PreInvoice);
    if (doc) {
        doc->documentCode = 0;
        doc->preInvoiceCode = code;
    }
    return doc;
}

std::optional<LoadedDocument> DocumentLoader::loadBranchRequest(const QString& docNo,
                                                                int branchCode,
                                                                const QString& linkedDatabase) {
    Session session = m_database.session(kModule, QStringLiteral("LoadBranchRequest"));
    return taken(
        DocumentReader::branchRequest(session, docNo, branchCode, kRequestDocType, linkedDatabase),
        LoadedDocument::Source::BranchRequest);
}

}  // namespace sandogh
