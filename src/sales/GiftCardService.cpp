#include "sales/GiftCardService.h"

#include <QRegularExpression>

#include "common/AmountText.h"
#include "data/Database.h"
#include "data/SqlQuery.h"
#include "sales/SettlementTexts.h"
#include "settings/MachineSettings.h"
#include "settings/MessageService.h"

namespace sandogh {

namespace {

const QString kModule = QStringLiteral("frmSale");
const QString kRoutine = QStringLiteral("GiftCard");
const QString kLineBreak = QStringLiteral("\r\n");

// A charge row: the card key and owner of the newest row (by its creation date) and the
// limits it carries.
struct NewestRow {
    bool found = false;
    int key = 0;
    int customer = 0;
    QString expireDate;
    int allowedMonth = 0;
};

QString amount(double value) {
    return QString::fromStdString(AmountText::formatWhole(value));
}

// Digits of a Jalali date text ("1404/01/05" -> 14040105); 0 for an empty one.
qint64 dateValue(const QString& date) {
    QString digits = date;
    digits.remove(QRegularExpression(QStringLiteral("[^0-9]")));
    return digits.toLongLong();
}

// The month of a Jalali date as two digits; "01" when it cannot be read.
QString monthOf(const QString& today) {
    const int month = today.section(QLatin1Char('/'), 1, 1).toInt();
    return QStringLiteral("%1").arg(month >= 1 && month <= 12 ? month : 1, 2, 10, QLatin1Char('0'));
}

}  // namespace

GiftCardService::GiftCardService(Database& database, MessageService& messages)
    : m_database(database), m_messages(messages) {}

void GiftCardService::setCentralDatabase(const QString& name) {
    m_central = name.trimmed();
    if (!m_central.isEmpty() && m_database.backend() == Backend::SQLite &&
        !m_database.otherDatabases().contains(m_central, Qt::CaseInsensitive)) {
        m_database.addOtherDatabase(m_central);
    }
}

QString GiftCardService::centralDatabaseOf(const MachineSettings& settings) {
    return settings.linkedSystemActive() ? settings.linkedDatabase() : QString();
}

QString GiftCardService::table(const char* shopName, const char* centralName) const {
    const Dialect& d = m_database.dialect();
    return m_central.isEmpty() ? d.table(QString::fromLatin1(shopName))
                               : d.table(QString::fromLatin1(centralName), m_central);
}

QString GiftCardService::password(qint64 cardNumber) {
    Session session = m_database.session(kModule, kRoutine);
    const Dialect& d = session.dialect();
    SqlQuery q(session, QStringLiteral("SELECT ") + d.top(1) + QStringLiteral(" Password FROM ") +
                            table("tblGiftCard", "GiftCard") +
                            QStringLiteral(" WHERE CardID = :card ORDER BY ID DESC") + d.limit(1));
    q.bind(QStringLiteral(":card"), cardNumber);
    if (!q.exec() || !q.next()) {
        return {};
    }
    return q.text(0).trimmed();
}

qint64 GiftCardService::movementsInMonth(int cardKey, int month) {
    Session session = m_database.session(kModule, kRoutine);
    const QString mm = QStringLiteral("%1").arg(month, 2, 10, QLatin1Char('0'));
    const QString year = QString::fromLatin1(kMonthlyCountYear);
    return session.scalarInt64(
        QStringLiteral("SELECT COUNT(ID) AS CountID FROM ") +
            table("tblGiftCardItem", "GiftCardItem") +
            QStringLiteral(" WHERE GiftCardID = :key AND Date BETWEEN :first AND :last"),
        {{QStringLiteral(":key"), cardKey},
         {QStringLiteral(":first"), year + QLatin1Char('/') + mm + QStringLiteral("/01")},
         {QStringLiteral(":last"), year + QLatin1Char('/') + mm + QStringLiteral("/31")}},
        -1);
}

double GiftCardService::priceBreakDiscount(double amount, const QString& today) {
    Session session = m_database.session(kModule, kRoutine);
    const Dialect& d = session.dialect();
    SqlQuery q(session, QStringLiteral("SELECT ") + d.top(1) +
                            QStringLiteral(" DiscountPercent FROM DiscountFactor WHERE IsActive = "
                                           ":active AND StartDate <= :startDay AND EndDate >= "
                                           ":endDay AND FactorAmount <= :amount ORDER BY "
                                           "FactorAmount DESC") +
                            d.limit(1));
    q.bind(QStringLiteral(":active"), 1)
        .bind(QStringLiteral(":startDay"), today)
        .bind(QStringLiteral(":endDay"), today)
        .bind(QStringLiteral(":amount"), amount);
    if (!q.exec() || !q.next()) {
        return 0;
    }
    return q.number(0);
}

bool GiftCardService::readFigures(Session& session, qint64 cardNumber, GiftCardResult& card) {
    const QString cards = table("tblGiftCard", "GiftCard");
    const QString items = table("tblGiftCardItem", "GiftCardItem");
    SqlQuery charged(session, QStringLiteral("SELECT COALESCE(SUM(Amount),0) AS Amount, "
                                             "COUNT(ID) FROM ") +
                                  cards + QStringLiteral(" WHERE CardID = :card"));
    charged.bind(QStringLiteral(":card"), cardNumber);
    if (!charged.exec() || !charged.next()) {
        return false;
    }
    card.charged = charged.number(0);
    card.cardsDelivered = charged.integer(1);

    SqlQuery used(session, QStringLiteral("SELECT COALESCE(SUM(I.Amount),0) AS Amount FROM ") +
                               items + QStringLiteral(" AS I LEFT OUTER JOIN ") + cards +
                               QStringLiteral(" G ON G.ID = I.GiftCardID WHERE G.CardID = :card "
                                              "OR I.GiftCardID = :key"));
    used.bind(QStringLiteral(":card"), cardNumber).bind(QStringLiteral(":key"), card.cardKey);
    if (!used.exec() || !used.next()) {
        return false;
    }
    card.used = used.number(0);
    card.balance = card.charged - card.used;

    const Dialect& d = session.dialect();
    SqlQuery discount(session, QStringLiteral("SELECT ") + d.top(1) +
                                   QStringLiteral(" Discount FROM ") + cards +
                                   QStringLiteral(" WHERE CardID = :card AND Discount <> :none "
                                                  "ORDER BY ID DESC") +
                                   d.limit(1));
    discount.bind(QStringLiteral(":card"), cardNumber).bind(QStringLiteral(":none"), 0);
    if (!discount.exec()) {
        return false;
    }
    card.discountPercent = discount.next() ? discount.number(0) : 0;

    if (card.ownerId != 0) {
        const QString owners = m_central.isEmpty()
                                   ? d.table(QStringLiteral("Types"))
                                   : d.table(QStringLiteral("CenterTypes"), m_central);
        SqlQuery owner(session, QStringLiteral("SELECT Name, Value1 FROM ") + owners +
                                    QStringLiteral(" WHERE Counter = :owner"));
        owner.bind(QStringLiteral(":owner"), card.ownerId);
        if (!owner.exec()) {
            return false;
        }
        if (owner.next()) {
            card.owner =
                (owner.text(0).trimmed() + QLatin1Char(' ') + owner.text(1).trimmed()).trimmed();
        }
    }
    return true;
}

GiftCardResult GiftCardService::evaluate(qint64 cardNumber, double invoiceTotal,
                                         const QString& today, bool interactive) {
    GiftCardResult card;
    card.cardNumber = cardNumber;
    card.expireDate = QString::fromLatin1(SqlQuery::kEmptyDate);
    if (cardNumber <= 0) {
        card.outcome = GiftCardResult::Outcome::EmptyNumber;
        return card;
    }
    Session session = m_database.session(kModule, kRoutine);
    const Dialect& d = session.dialect();
    const QString cards = table("tblGiftCard", "GiftCard");

    // The newest charge row by its creation date, compared without its slashes.
    SqlQuery newest(session, QStringLiteral("SELECT ") + d.top(1) +
                                 QStringLiteral(" ID, CustomerID, ExpireDate, AllowedMonth FROM ") +
                                 cards +
                                 QStringLiteral(" WHERE CardID = :card ORDER BY "
                                                "REPLACE(COALESCE(DateCreation, ''), '/', '') "
                                                "DESC, ID DESC") +
                                 d.limit(1));
    newest.bind(QStringLiteral(":card"), cardNumber);
    if (!newest.exec()) {
        return card;  // Failed
    }
    if (!newest.next()) {
        card.outcome = GiftCardResult::Outcome::NotFound;
        return card;
    }
    card.cardKey = newest.integer(0);
    card.ownerId = newest.integer(1);
    card.expireDate = newest.date(2);
    const int allowedMonth = newest.integer(3);

    if (interactive) {
        const QString expected = password(cardNumber);
        if (!expected.isEmpty()) {
            const GiftCardResult::Outcome asked = askPassword(expected);
            if (asked != GiftCardResult::Outcome::Accepted) {
                card.outcome = asked;
                return card;
            }
        }
    }

    if (!readFigures(session, cardNumber, card)) {
        return card;  // Failed
    }
    card.summary = summaryLines(card);

    const qint64 expiry = dateValue(card.expireDate);
    if (expiry > 0 && expiry < dateValue(today)) {
        card.outcome = GiftCardResult::Outcome::Expired;
        return card;
    }
    if (allowedMonth > 0) {
        const qint64 used = movementsInMonth(card.cardKey, monthOf(today).toInt());
        if (used < 0) {
            return card;  // Failed
        }
        if (used >= allowedMonth) {
            card.outcome = GiftCardResult::Outcome::MonthlyLimit;
            return card;
        }
    }
    if (card.balance <= 0) {
        card.outcome = GiftCardResult::Outcome::NoCredit;
        return card;
    }
    if (card.discountPercent == 0) {
        card.discountPercent = priceBreakDiscount(invoiceTotal, today);
    }
    card.outcome = GiftCardResult::Outcome::Accepted;
    card.accepted = true;
    return card;
}

GiftCardResult GiftCardService::read(qint64 cardNumber, double invoiceTotal, const QString& today) {
    return evaluate(cardNumber, invoiceTotal, today, false);
}

GiftCardResult GiftCardService::lookUp(qint64 cardNumber, double invoiceTotal,
                                       const QString& today) {
    GiftCardResult card = evaluate(cardNumber, invoiceTotal, today, true);
    using Outcome = GiftCardResult::Outcome;
    switch (card.outcome) {
        case Outcome::Accepted:
            m_messages.show(card.summary.join(kLineBreak), MessageStyle::Information);
            break;
        case Outcome::EmptyNumber:
        case Outcome::NotFound:
        case Outcome::NoCredit:
            m_messages.show(SettlementTexts::cardInvalid() + kLineBreak +
                                SettlementTexts::rechargeAtManagement(),
                            MessageStyle::Critical);
            break;
        case Outcome::Expired:
            m_messages.show(
                SettlementTexts::cardExpired() + kLineBreak + SettlementTexts::seeManagement(),
                MessageStyle::Critical);
            break;
        case Outcome::MonthlyLimit:
            m_messages.show(SettlementTexts::monthlyLimitReached(), MessageStyle::Critical);
            break;
        case Outcome::NoPassword:
        case Outcome::WrongPassword:  // told at each try
        case Outcome::Failed:         // told by the data layer
            break;
    }
    return card;
}

GiftCardResult::Outcome GiftCardService::askPassword(const QString& expected) {
    for (int attempt = 0; attempt < kPasswordTries; ++attempt) {
        QString answer;
        if (!m_messages.prompt(SettlementTexts::askCardPassword(), answer, true)) {
            return GiftCardResult::Outcome::NoPassword;
        }
        if (answer.trimmed() == expected) {
            return GiftCardResult::Outcome::Accepted;
        }
        m_messages.show(SettlementTexts::wrongPassword() + kLineBreak + SettlementTexts::tryAgain(),
                        MessageStyle::Warning, SettlementTexts::attention());
    }
    return GiftCardResult::Outcome::WrongPassword;
}

QStringList GiftCardService::summaryLines(const GiftCardResult& card) {
    const QString separator = SettlementTexts::summarySeparator();
    return {separator,
            SettlementTexts::summaryLastCard() + QString::number(card.cardNumber),
            SettlementTexts::summaryExpiry() + card.expireDate,
            SettlementTexts::summaryCharged() + amount(card.charged),
            SettlementTexts::summaryUsed() + amount(card.used),
            SettlementTexts::summaryUsable() + amount(card.balance),
            SettlementTexts::summaryCardsDelivered() + QString::number(card.cardsDelivered),
            separator};
}

void GiftCardService::showReadFailure(MessageService& messages) {
    messages.show(
        SettlementTexts::cardReadFailed() + kLineBreak + SettlementTexts::makeSureOfCard(),
        MessageStyle::Critical);
}

}  // namespace sandogh
