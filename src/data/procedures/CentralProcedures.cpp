#include "data/procedures/CentralProcedures.h"

#include "data/Dialect.h"

namespace sandogh::procedures {

bool sp_SyncInsertGiftCardItem(Session& session, const QString& linkedServer,
                               const QString& databaseName, const GiftCardMovement& movement) {
    const Dialect& dialect = session.dialect();
    QString table = dialect.table(QStringLiteral("GiftCardItem"), databaseName);
    if (session.backend() == Backend::SqlServer && !linkedServer.trimmed().isEmpty()) {
        table = dialect.quote(linkedServer.trimmed()) + u'.' + table;
    }
    return session.exec(
        QStringLiteral("INSERT INTO ") + table +
            QStringLiteral(" (ID, GiftCardID, Date, Time, Amount, UserID, CustomerID, DocHCode) "
                           "VALUES (:id, :giftCardId, :date, :time, :amount, :userId, "
                           ":customerId, :docHCode)"),
        {
            {QStringLiteral(":id"), movement.id},
            {QStringLiteral(":giftCardId"), movement.giftCardId},
            {QStringLiteral(":date"), movement.date},
            {QStringLiteral(":time"), movement.time},
            {QStringLiteral(":amount"), movement.amount},
            {QStringLiteral(":userId"), movement.userId},
            {QStringLiteral(":customerId"), movement.customerId},
            {QStringLiteral(":docHCode"), movement.docHCode},
        });
}

}  // namespace sandogh::procedures
