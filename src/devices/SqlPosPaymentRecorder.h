#pragma once

#include <optional>

#include "PosPaymentRecorder.h"

namespace sandogh {

class Database;
class Session;

// Records approved terminal payments in the shop database through sp_POS_Insert.
class SqlPosPaymentRecorder final : public PosPaymentRecorder {
public:
    explicit SqlPosPaymentRecorder(Database& database) : m_database(database) {}

    Result record(const PosPayment& payment) override;

    // The procedure: one row of tblPOS from the parameters in their order. Returns
    // @MaxID, the identity of the row, or nothing when a statement failed (the
    // failure is logged as every data routine's is).
    static std::optional<qint64> sp_POS_Insert(Session& session, const PosPayment& payment);

private:
    Database& m_database;
};

}  // namespace sandogh
