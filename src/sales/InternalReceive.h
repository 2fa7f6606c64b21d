#pragma once

#include <QString>
#include <optional>

#include "sales/TransferBatch.h"

namespace sandogh {

class Clock;
class Database;
class MessageService;

// Receiving internal sale invoices from the centre (frmReceiveFactor) without its widgets.
// The file must be called RptFactors.txt, be whole and unchanged (TransferFile) and name
// only articles this shop has. Each invoice not received before becomes an internal
// receipt (TransType 1) from the centre row, dated the day it is received, its Atf the
// centre's invoice number and its Base the reference of the invoice (sending shop, key,
// date); Stock rises by its quantities. Everything is written in one transaction under the
// desks' lock, or nothing is.
class InternalReceive {
public:
    enum class Outcome {
        Received,
        NoFile,
        BadName,
        Garbled,
        UnknownGoods,
        AlreadyReceived,
        Failed
    };
    struct Desk {
        int userId = 0;
        int stationId = 0;
    };

    static QString fileFilter();
    // fileFilter() in the form of Qt's file dialogs: "All (*.txt)".
    static QString dialogFilter();
    static QString badNameText();
    static QString noFileText();
    static QString unknownGoodsText();
    static QString garbledText();
    static QString alreadyReceivedText();
    static QString doneText();
    // The sender as the screen shows it.
    static QString senderName();
    // The reference an invoice is kept under: shop, key and date, so that a later fiscal
    // year's invoice of the same key is another invoice.
    static QString referenceOf(const QString& shopId, const TransferInvoice& invoice);

    InternalReceive(Database& database, MessageService& messages, const Clock& clock, Desk desk);

    // Reads and checks the file without writing: the name, the layout, the articles. Nothing
    // (with the message shown and outcome set) when it is refused.
    std::optional<TransferBatch> open(const QString& path, Outcome* outcome = nullptr);
    // Brings the batch's invoices not received before into this shop.
    Outcome receive(const TransferBatch& batch);
    // open() then receive().
    Outcome receive(const QString& path);

    // What the last receive wrote and skipped.
    int receivedCount() const { return m_received; }
    int skippedCount() const { return m_skipped; }
    // The reason the last refused file was refused, in English (for the command line).
    const QString& problem() const { return m_problem; }

private:
    Outcome refuse(Outcome outcome, const QString& text, Outcome* out);

    Database& m_database;
    MessageService& m_messages;
    const Clock& m_clock;
    Desk m_desk;
    int m_received = 0;
    int m_skipped = 0;
    QString m_problem;
};

}  // namespace sandogh
