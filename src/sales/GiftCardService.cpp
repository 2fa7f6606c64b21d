#include "sales/GiftCardService.h"

#include <QRegularExpression>

#include "common/AmountText.h"
#include "data/Database.h"
#include "data/SqlQuery.h"
#include "data/repositories/DiscountsRepository.h"
#include "data/repositories/GiftCardRepository.h"
#include "sales/SettlementTexts.h"
#include "settings/MachineSettings.h"
#include "settings/MessageService.h"

namespace sandogh {

namespace {

const QString kModule = QStringLiteral("frmSale");
const QString kRoutine = QStringLiteral("GiftCard");
const QString kLineBreak = QStringLiteral("\r\n");

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

QString GiftCardService::password(qint64 cardNumber) {
    Session session = m_database.session(kModule, kRoutine);
    return GiftCardRepository::password(session, m_central, cardNumber);
}

qint64 GiftCardService::movementsInMonth(int cardKey, int month) {
    Session session = m_database.session(kModule, kRoutine);
    const QString mm = QStringLiteral("%1").arg(month, 2, 10, QLatin1Char('0'));
    const QString year = QString::fromLatin1(kMonthlyCountYear);
    return GiftCardRepository::movementsBetween(
        session, m_central, cardKey, year + QLatin1Char('/') + mm + QStringLiteral("/01"),
        year + QLatin1Char('/') + mm + QStringLiteral("/31"));
}

double GiftCardService::priceBreakDiscount(double amount, const QString& today) {
    Session session = m_database.session(kModule, kRoutine);
    return DiscountsRepository::priceBreakPercent(session, amount, today);
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
    std::optional<GiftCardRepository::Newest> newest;
    if (!GiftCardRepository::newest(session, m_central, cardNumber, newest)) {
        return card;  // Failed
    }
    if (!newest) {
        card.outcome = GiftCardResult::Outcome::NotFound;
        return card;
    }
    card.cardKey = newest->key;
    card.ownerId = newest->customer;
    card.expireDate = newest->expireDate;
    const int allowedMonth = newest->allowedMonth;

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

    GiftCardRepository::Figures figures;
    if (!GiftCardRepository::figures(session, m_central, cardNumber, card.cardKey, card.ownerId,
                                     figures)) {
        return card;  // Failed
    }
    card.charged = figures.charged;
    card.cardsDelivered = figures.cardsDelivered;
    card.used = figures.used;
    card.balance = card.charged - card.used;
    card.discountPercent = figures.discountPercent;
    card.owner = figures.owner;
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
