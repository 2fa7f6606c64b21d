#pragma once

#include <QList>
#include <QString>

#include "sales/SaleLine.h"

namespace sandogh {

// A document whose lines the document loader brings into the sale in one go.
struct LoadedDocument {
    enum class Source { SavedDocument, PreInvoice, BranchRequest };

    Source source = Source::SavedDocument;
    QList<SaleLine> lines;
    double discount = 0;  // the document discount
    QString base;         // Base of a saved document
    QString note;
    int companyId = 0;          // the customer of a saved document or pre-invoice, 0 for none
    qint64 preInvoiceCode = 0;  // tblPreFactorH.Code, closed when the sale is saved
    qint64 documentCode = 0;    // Whs_QTYDocH.Code of a saved document
};

}  // namespace sandogh
