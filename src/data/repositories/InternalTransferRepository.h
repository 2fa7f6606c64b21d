#pragma once

#include <QList>
#include <QString>
#include <QStringList>
#include <optional>

namespace sandogh {

class Session;

// The statements of the branch transfer on the internal documents. The centre sends its
// internal sale invoices (TransType 2); one is marked sent by Atf = "1", the value the
// older program set one document at a time. The branch keeps each received invoice as an
// internal receipt (TransType 1, party the centre row) whose Base holds the sending shop's
// reference of the invoice, so that an invoice is received once. Every call runs on the
// caller's session.
class InternalTransferRepository {
public:
    // Atf of an internal sale that has been written to a transfer file.
    static constexpr const char* kSentMark = "1";

    struct Invoice {
        qint64 code = 0;
        QString docNo;
        QString docDate;
        double docSum = 0;
        double discount = 0;
        QString note;
        bool sent = false;
    };
    struct Line {
        qint64 code = 0;  // the invoice's key
        QString barcode;
        double qty = 0;
        double fee = 0;
        double price = 0;
    };

    // The internal sale invoices of one branch in key order; nothing when the statement
    // failed.
    static std::optional<QList<Invoice>> invoices(Session& session, int branchId);
    // The invoice with this key when it is an internal sale of the branch.
    static std::optional<Invoice> invoice(Session& session, int branchId, qint64 code,
                                          bool& failed);
    // The lines of an internal document in line order; nothing when the statement failed.
    static std::optional<QList<Line>> lines(Session& session, qint64 code);
    static bool markSent(Session& session, qint64 code);

    // The barcodes that no article has, each once; nothing when a statement failed.
    static std::optional<QStringList> missingGoods(Session& session, const QStringList& barcodes);
    // Whether an internal receipt with this reference exists; nothing when the statement
    // failed.
    static std::optional<bool> received(Session& session, const QString& reference);
};

}  // namespace sandogh
