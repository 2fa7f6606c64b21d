#include "data/repositories/GiftCardRepository.h"

#include "data/Dialect.h"
#include "data/Session.h"
#include "data/SqlQuery.h"

namespace sandogh {

namespace {

QString cardsTable(const Dialect& d, const QString& central) {
    return central.isEmpty() ? d.table(QStringLiteral("tblGiftCard"))
                             : d.table(QStringLiteral("GiftCard"), central);
}

QString itemsTable(const Dialect& d, const QString& central) {
    return central.isEmpty() ? d.table(QStringLiteral("tblGiftCardItem"))
                             : d.table(QStringLiteral("GiftCardItem"), central);
}

}  // namespace

QString GiftCardRepository::password(Session& session, const QString& central, qint64 cardNumber) {
    const Dialect& d = session.dialect();
    SqlQuery q(session, QStringLiteral("SELECT ") + d.top(1) + QStringLiteral(" Password FROM ") +
                            cardsTable(d, central) +
                            QStringLiteral(" WHERE CardID = :card ORDER BY ID DESC") + d.limit(1));
    q.bind(QStringLiteral(":card"), cardNumber);
    if (!q.exec() || !q.next()) {
        return {};
    }
    return q.text(0).trimmed();
}

qint64 GiftCardRepository::movementsBetween(Session& session, const QString& central, int cardKey,
                                            const QString& first, const QString& last) {
    return session.scalarInt64(
        QStringLiteral("SELECT COUNT(ID) AS CountID FROM ") +
            itemsTable(session.dialect(), central) +
            QStringLiteral(" WHERE GiftCardID = :key AND Date BETWEEN :first AND :last"),
        {{QStringLiteral(":key"), cardKey},
         {QStringLiteral(":first"), first},
         {QStringLiteral(":last"), last}},
        -1);
}

bool GiftCardRepository::newest(Session& session, const QString& central, qint64 cardNumber,
                                std::optional<Newest>& found) {
    const Dialect& d = session.dialect();
    SqlQuery newest(session, QStringLiteral("SELECT ") + d.top(1) +
                                 QStringLiteral(" ID, CustomerID, ExpireDate, AllowedMonth FROM ") +
                                 cardsTable(d, central) +
                                 QStringLiteral(" WHERE CardID = :card ORDER BY "
                                                "REPLACE(COALESCE(DateCreation, ''), '/', '') "
                                                "DESC, ID DESC") +
                                 d.limit(1));
    newest.bind(QStringLiteral(":card"), cardNumber);
    found.reset();
    if (!newest.exec()) {
        return false;
    }
    if (newest.next()) {
        found = Newest{newest.integer(0), newest.integer(1), newest.date(2), newest.integer(3)};
    }
    return true;
}

bool GiftCardRepository::figures(Session& session, const QString& central, qint64 cardNumber,
                                 int cardKey, int ownerId, Figures& f) {
    const Dialect& d = session.dialect();
    const QString cards = cardsTable(d, central);
    const QString items = itemsTable(d, central);
    SqlQuery charged(session, QStringLiteral("SELECT COALESCE(SUM(Amount),0) AS Amount, "
                                             "COUNT(ID) FROM ") +
                                  cards + QStringLiteral(" WHERE CardID = :card"));
    charged.bind(QStringLiteral(":card"), cardNumber);
    if (!charged.exec() || !charged.next()) {
        return false;
    }
    f.charged = charged.number(0);
    f.cardsDelivered = charged.integer(1);

    SqlQuery used(session, QStringLiteral("SELECT COALESCE(SUM(I.Amount),0) AS Amount FROM ") +
                               items + QStringLiteral(" AS I LEFT OUTER JOIN ") + cards +
                               QStringLiteral(" G ON G.ID = I.GiftCardID WHERE G.CardID = :card "
                                              "OR I.GiftCardID = :key"));
    used.bind(QStringLiteral(":card"), cardNumber).bind(QStringLiteral(":key"), cardKey);
    if (!used.exec() || !used.next()) {
        return false;
    }
    f.used = used.number(0);

    SqlQuery discount(session, QStringLiteral("SELECT ") + d.top(1) +
                                   QStringLiteral(" Discount FROM ") + cards +
                                   QStringLiteral(" WHERE CardID = :card AND Discount <> :none "
                                                  "ORDER BY ID DESC") +
                                   d.limit(1));
    discount.bind(QStringLiteral(":card"), cardNumber).bind(QStringLiteral(":none"), 0);
    if (!discount.exec()) {
        return false;
    }
    f.discountPercent = discount.next() ? discount.number(0) : 0;

    if (ownerId != 0) {
        const QString owners = central.isEmpty() ? d.table(QStringLiteral("Types"))
                                                 : d.table(QStringLiteral("CenterTypes"), central);
        SqlQuery owner(session, QStringLiteral("SELECT Name, Value1 FROM ") + owners +
                                    QStringLiteral(" WHERE Counter = :owner"));
        owner.bind(QStringLiteral(":owner"), ownerId);
        if (!owner.exec()) {
            return false;
        }
        if (owner.next()) {
            f.owner =
                (owner.text(0).trimmed() + QLatin1Char(' ') + owner.text(1).trimmed()).trimmed();
        }
    }
    return true;
}

std::optional<GiftCardRepository::Cards> GiftCardRepository::cardsOf(Session& session,
                                                                     int customer) {
    SqlQuery q(session, QStringLiteral("SELECT COUNT(ID) AS countId, SUM(Amount) AS Amount "
                                       "FROM tblGiftCard WHERE CustomerID = :customer"));
    q.bind(QStringLiteral(":customer"), customer);
    if (!q.exec() || !q.next()) {
        return std::nullopt;
    }
    return Cards{q.int64(0), q.number(1)};
}

std::optional<double> GiftCardRepository::credit(Session& session, qint64 cardNumber) {
    SqlQuery charged(session,
                     QStringLiteral("SELECT COALESCE(SUM(Amount), 0) AS Amount FROM tblGiftCard "
                                    "WHERE CardID = :card"));
    charged.bind(QStringLiteral(":card"), cardNumber);
    if (!charged.exec() || !charged.next()) {
        return std::nullopt;
    }
    SqlQuery spent(session, QStringLiteral("SELECT COALESCE(SUM(I.Amount), 0) AS Amount FROM "
                                           "tblGiftCardItem AS I LEFT OUTER JOIN tblGiftCard G ON "
                                           "G.ID = I.GiftCardID WHERE G.CardID = :card"));
    spent.bind(QStringLiteral(":card"), cardNumber);
    if (!spent.exec() || !spent.next()) {
        return std::nullopt;
    }
    return charged.number(0) - spent.number(0);
}

}  // namespace sandogh
