#pragma once

#include <QString>
#include <QStringList>

#include "sales/GiftCardResult.h"

namespace sandogh {

class Database;
class MachineSettings;
class MessageService;
class Session;

// Takes a gift card for a sale (btnGiftCard, or a card number read into the barcode box):
// the card's password, expiry, monthly use limit and balance are checked in that order,
// then the discount that goes with it is found and its summary made. The card tables are
// the shop's own (tblGiftCard, tblGiftCardItem, owners in Types), or, with a central
// database configured, that database's GiftCard, GiftCardItem and CenterTypes.
//
//   GiftCardService cards(database, messages);
//   cards.setCentralDatabase(GiftCardService::centralDatabaseOf(settings));
//   GiftCardResult card = cards.lookUp(number, sale.total(), sale.todayJalali());
class GiftCardService {
public:
    // The year of the monthly use count. Card movements have always been counted against
    // this year's months, whatever the current year, and the shops' card limits are set
    // up for that count.
    static constexpr const char* kMonthlyCountYear = "1392";
    // Password tries before the card is refused.
    static constexpr int kPasswordTries = 3;

    GiftCardService(Database& database, MessageService& messages);

    // The central database holding the cards; empty (the default) for the shop's own.
    // On SQLite its file is attached to the shop database's connections.
    void setCentralDatabase(const QString& name);
    QString centralDatabase() const { return m_central; }
    // The central database of this desk's settings: LinkedServer/Database while
    // LinkedServer/ActiveLinkedSystem is on, otherwise empty.
    static QString centralDatabaseOf(const MachineSettings& settings);

    // The whole look-up for the screen: every check with its message, the summary shown
    // when the card is taken. invoiceTotal chooses the price break; today is the Jalali
    // date of the sale's day.
    GiftCardResult lookUp(qint64 cardNumber, double invoiceTotal, const QString& today);
    // The same without asking or showing anything: the figures of the card and the
    // outcome of the checks that need no password (for the saver and the summary).
    GiftCardResult read(qint64 cardNumber, double invoiceTotal, const QString& today);

    // The parts, each one statement (false/0 on failure, reported by the data layer).
    // The newest row's password; empty when the card has none.
    QString password(qint64 cardNumber);
    // Movements of the card key in the month (1..12) of the fixed count year.
    qint64 movementsInMonth(int cardKey, int month);
    // The price-break discount of an amount on a day: the highest active break in date
    // whose FactorAmount is not above the amount; 0 without one.
    double priceBreakDiscount(double amount, const QString& today);

    // The summary lines of a card's figures, between separator lines.
    static QStringList summaryLines(const GiftCardResult& card);
    // The contactless reader could not read a card.
    static void showReadFailure(MessageService& messages);

private:
    // Up to kPasswordTries prompts: Accepted, NoPassword (cancelled) or WrongPassword.
    GiftCardResult::Outcome askPassword(const QString& expected);
    GiftCardResult evaluate(qint64 cardNumber, double invoiceTotal, const QString& today,
                            bool interactive);

    Database& m_database;
    MessageService& m_messages;
    QString m_central;
};

}  // namespace sandogh
