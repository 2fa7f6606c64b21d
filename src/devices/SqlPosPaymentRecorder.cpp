#include "SqlPosPaymentRecorder.h"

#include "data/Database.h"
#include "data/procedures/PaymentProcedures.h"

namespace sandogh {

namespace {

// Declared widths of the procedure's text parameters.
constexpr int kDateTimeLength = 20;
constexpr int kDescriptionLength = 50;

procedures::PosPayment parameters(const PosPayment& p) {
    procedures::PosPayment row;
    row.merchantId = p.merchantId;
    row.terminalId = p.terminalId;
    row.docNo = p.docNo;
    row.dateTime = p.dateTime.left(kDateTimeLength);
    row.tranType = p.tranType;
    row.paymentAmount = p.paymentAmount;
    row.prn = p.prn;
    row.stan = p.stan;
    row.errorCode = p.errorCode;
    row.errorDiscription = p.errorDescription.left(kDescriptionLength);
    row.posId = p.posId;
    return row;
}

}  // namespace

std::optional<qint64> SqlPosPaymentRecorder::sp_POS_Insert(Session& session,
                                                           const PosPayment& payment) {
    const qint64 id = procedures::sp_POS_Insert(session, parameters(payment));
    if (id <= 0) {
        return std::nullopt;
    }
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
