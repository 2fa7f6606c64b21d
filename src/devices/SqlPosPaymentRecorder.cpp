#include "SqlPosPaymentRecorder.h"

#include <QStringList>
#include <QVariant>

#include "data/Database.h"
#include "data/SqlQuery.h"
#include "data/Transaction.h"

namespace sandogh {

namespace {

// The fifth parameter has always been named without its "@"; the procedure
// binds by position, so the name never mattered and is kept as it was.
constexpr const char* kDateTimeParameter = "DateTime";
// The procedure's input parameters in their order.
constexpr const char* kInputParameters[] = {
    "@MerchantId", "@TerminalId", "@DocNo",     kDateTimeParameter,  "@TranType", "@PaymentAmount",
    "@PRN",        "@Stan",       "@ErrorCode", "@ErrorDiscription", "@PosId",
};
// The columns of tblPOS that receive them, position by position.
const char* const kColumns[] = {
    "MerchantId", "TerminalId", "DocNo",     "DateTime",         "TranType", "PaymentAmount",
    "PRN",        "Stan",       "ErrorCode", "ErrorDiscription", "PosId",
};
static_assert(std::size(kInputParameters) == std::size(kColumns));

// Declared widths of the text parameters.
constexpr int kDateTimeLength = 20;
constexpr int kDescriptionLength = 50;

QList<QVariant> valuesInOrder(const PosPayment& p) {
    return {p.merchantId, p.terminalId,
            p.docNo,      p.dateTime.left(kDateTimeLength),
            p.tranType,   p.paymentAmount,
            p.prn,        p.stan,
            p.errorCode,  p.errorDescription.left(kDescriptionLength),
            p.posId};
}

// The placeholder of a parameter: its name without "@".
QString placeholder(const char* parameter) {
    return QLatin1Char(':') + QString::fromLatin1(parameter).remove(QLatin1Char('@'));
}

QString insertSql() {
    QStringList columns;
    QStringList placeholders;
    for (std::size_t i = 0; i < std::size(kColumns); ++i) {
        columns << QString::fromLatin1(kColumns[i]);
        placeholders << placeholder(kInputParameters[i]);
    }
    return QStringLiteral("INSERT INTO tblPOS (%1) VALUES (%2)")
        .arg(columns.join(QStringLiteral(", ")), placeholders.join(QStringLiteral(", ")));
}

}  // namespace

std::optional<qint64> SqlPosPaymentRecorder::sp_POS_Insert(Session& session,
                                                           const PosPayment& payment) {
    Transaction tx(session);
    if (!tx.isActive())
        return std::nullopt;

    SqlQuery insert(session, insertSql());
    const QList<QVariant> values = valuesInOrder(payment);
    for (int i = 0; i < values.size(); ++i) {
        insert.bindValue(placeholder(kInputParameters[i]), values[i]);
    }
    if (!insert.exec())
        return std::nullopt;

    // @MaxID: the newest row of this sale.
    SqlQuery maxId(session, QStringLiteral("SELECT MAX(ID) FROM tblPOS WHERE DocNo = :docNo"));
    maxId.bind(QStringLiteral(":docNo"), payment.docNo);
    if (!maxId.exec() || !maxId.next())
        return std::nullopt;
    const qint64 id = maxId.int64(0);
    if (!tx.commit())
        return std::nullopt;
    return id;
}

PosPaymentRecorder::Result SqlPosPaymentRecorder::record(const PosPayment& payment) {
    Session session =
        m_database.session(QStringLiteral("frmSale"), QStringLiteral("sp_POS_Insert"));
    // The connection message has been shown by the database when it could not be reached.
    if (!session)
        return Result::ConnectionBroken;
    return sp_POS_Insert(session, payment) ? Result::Recorded : Result::Failed;
}

}  // namespace sandogh
