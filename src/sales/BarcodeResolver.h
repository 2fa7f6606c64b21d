#pragma once

#include <QString>

#include "sales/EntryOutcome.h"

namespace sandogh {

class Clock;
class Database;
class SaleSession;
struct SaleOptions;

// Turns the barcode box's text into lines of a sale, by the first rule that matches:
//  1. apostrophes are removed;
//  2. 10 characters with the card reader on: a card number for SaleActions::cardLookup;
//  3. 8 characters starting with the scale prefix, MizanNet tickets on: a weighed ticket;
//  4. 18 characters, OnlineSales tickets on: a weighed ticket;
//  5. "//" and a number: the saved sale of that number (TransType 2, the newest of that
//     number), loaded whole; also in return mode, where it is the sale being returned;
//  6. quick entry: 4 characters or more are an active article's barcode, else the first
//     active article with that Spec_Code; shorter texts are a quantity for the
//     last line. With quick entry off every text is looked up as a barcode.
// Ticket lines whose article is not in Goods are left out; kilograms are taken from
// grams for goods of Type 1. Lines are priced and merged by the sale (addGoods).
class BarcodeResolver {
public:
    static constexpr int kCardLength = 10;
    static constexpr int kShortestBarcode = 4;

    BarcodeResolver(SaleSession& sale, Database& database, const Clock& clock);

    EntryOutcome resolve(const QString& text, const SaleOptions& options);

private:
    void card(const QString& text, EntryOutcome& outcome);
    void mizanTicket(const QString& text, EntryOutcome& outcome);
    void onlineSalesTicket(const QString& text, EntryOutcome& outcome);
    void document(const QString& text, EntryOutcome& outcome);
    void goods(const QString& text, EntryOutcome& outcome);
    void quantity(const QString& text, EntryOutcome& outcome);

    SaleSession& m_sale;
    Database& m_database;
    const Clock& m_clock;
};

}  // namespace sandogh
