#pragma once

#include <QString>

#include "sales/ReceiptData.h"

namespace sandogh {

class Database;
class MessageService;

// Reads a saved sale for its receipt: the header with its customer, payment, discount and
// overhead names, the lines with the articles' names, the shop heading and a sentence of
// the day picked at random. Each read is one data routine of the receipt.
class ReceiptReader {
public:
    enum class Status {
        Ok,
        NotFound,  // no Whs_QTYDocH row with that Code
        Failed,    // the database could not be read (the message has been shown)
    };

    // The currency word after the total in words.
    static const QString& rialWord();
    static const QString& tomanWord();
    // The reprint title.
    static const QString& reprintTitle();
    // The system's text for a document that is not there.
    static const QString& notFoundText();

    ReceiptReader(Database& database, MessageService& messages)
        : m_database(database), m_messages(messages) {}

    // Fills receipt from the sale Code = code. isRial picks the currency word.
    Status read(qint64 code, bool isRial, ReceiptData& receipt);
    // The same from the internal document Code = code: the branch stands as the party, and
    // there is no payment split, discount kind or overhead to show.
    Status readInternal(qint64 code, bool isRial, ReceiptData& receipt);

    // DocSum read again by Code; std::nullopt when there is no row, or when the read
    // failed (failed set, the connection message shown).
    std::optional<double> documentTotal(qint64 code, bool& failed);
    // "Description : Author" of a random sentence; empty when there is none.
    QString sentenceOfTheDay();
    // The total in words followed by a blank and the currency word.
    static QString totalInWords(double total, bool isRial);

private:
    Status readHeader(qint64 code, ReceiptData& receipt);
    bool readLines(qint64 code, ReceiptData& receipt);
    bool readCustomer(ReceiptData& receipt);
    void readShop(ReceiptData& receipt);

    Database& m_database;
    MessageService& m_messages;
};

}  // namespace sandogh
