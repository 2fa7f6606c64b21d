#pragma once

#include <QList>
#include <QString>
#include <optional>

#include "data/Session.h"

namespace sandogh {

class Database;

// What the purchase screen reads and writes besides the shared stock document and voucher
// procedures: the article of a scanned barcode with its last purchase terms, the documents a
// purchase may be started from, the repeat checks of a supplier's invoice number, and the
// two statements the save runs on its own transaction (earlier lines removed, pending serial
// numbers handed over).
class PurchaseDocuments {
public:
    // An article as a new purchase line proposes it: the MFee, Discount and TaxValue of its
    // newest ordinary purchase line (by line ID; 0 when it was never bought), its unit's name
    // and its sale price for display.
    struct Article {
        QString barcode;
        QString name;
        double stock = 0;
        double mFee = 0;
        double discount = 0;
        double taxValue = 0;
        QString unitName;
        double cost = 0;
    };

    // A document a purchase is filled from: lines and the header fields it carries.
    struct SourceLine {
        QString barcode;
        QString name;
        double qty = 0;
        double mFee = 0;
        double discount = 0;
        double taxValue = 0;
    };
    struct Source {
        int companyId = 0;
        double discount = 0;
        double sarbar = 0;
        QString note;
        QString base;
        QList<SourceLine> lines;
    };

    // The pickers of the form: active warehouses, payment kinds, and the accounts a purchase
    // may be booked on ("code - name"), each by its key. A failed look-up leaves its list
    // empty (reported).
    struct Item {
        int key = 0;
        QString name;
    };
    struct Lists {
        QList<Item> warehouses;
        QList<Item> paymentKinds;
        QList<Item> accountingGroups;
    };

    explicit PurchaseDocuments(Database& database);

    Lists lists();

    // Whether an article has this barcode; nothing when the look-up failed.
    std::optional<bool> goodsExists(const QString& barcode);
    // The article in one statement; nothing when there is none or the look-up failed.
    std::optional<Article> article(const QString& barcode);

    // A pre-invoice by its Code (tblPreFactorH/D): list price from the pre-invoice's
    // price, no discount or tax. Nothing when it has no lines.
    std::optional<Source> preInvoice(qint64 code);
    // An ordinary document of a transaction type by its number, lines in their order.
    std::optional<Source> document(int transType, const QString& docNo);

    // How many ordinary documents of the type carry the number (compared trimmed): in all,
    // and those of one supplier. Nothing on failure.
    struct Repeats {
        qint64 all = 0;
        qint64 sameSupplier = 0;
    };
    std::optional<Repeats> repeats(int transType, const QString& docNo, int supplier);

    // Inside the caller's transaction: removes the lines of a document, and hands the serial
    // numbers still waiting under pendingCode to it.
    static bool deleteLines(Session& session, qint64 code);
    static bool handOverSerials(Session& session, qint64 code, qint64 pendingCode);

private:
    Database& m_database;
};

}  // namespace sandogh
