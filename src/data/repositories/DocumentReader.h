#pragma once

#include <QList>
#include <QString>
#include <optional>

namespace sandogh {

class Session;

// Stored documents read back for the sale screen: a saved document (Whs_QTYDocH/D), a
// pre-invoice (tblPreFactorH/D) and a branch's request (RequestH/D, in the linked database
// when one is named). Each line is joined to Goods for its name, tax and kind.
class DocumentReader {
public:
    struct Line {
        QString barcode;
        QString name;
        double quantity = 0;
        double unitPrice = 0;
        double taxPercent = 0;
        int goodsKind = 0;
        bool inGoods = false;  // the barcode is in Goods
        // Saved documents only.
        double lineDiscount = 0;
        int sellerId = 0;
        QString seller;
    };
    struct Document {
        qint64 code = 0;  // Whs_QTYDocH.Code or RequestH.Code
        double discount = 0;
        QString base;
        QString note;
        int companyId = 0;
        QList<Line> lines;
    };

    // Each gives nothing when the header is not there, it has no lines, or a statement failed.

    // The newest saved document of the kind and number (and date, when given); DocType must
    // be docType, or NULL without one.
    static std::optional<Document> savedDocument(Session& session, int transType,
                                                 const QString& docNo, const QString& docDate,
                                                 std::optional<int> docType);
    // The newest pre-invoice header of the code and its lines.
    static std::optional<Document> preInvoice(Session& session, qint64 code);
    // The newest request of the number (of the branch, when not 0), priced at the goods' cost.
    static std::optional<Document> branchRequest(Session& session, const QString& docNo,
                                                 int branchCode, int requestDocType,
                                                 const QString& linkedDatabase);
};

}  // namespace sandogh
