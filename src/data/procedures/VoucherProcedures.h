#pragma once

#include <QList>
#include <optional>

#include "data/Session.h"
#include "data/procedures/VoucherHeader.h"
#include "data/procedures/VoucherLine.h"

namespace sandogh::procedures {

// sp_tblDocumentH_GetNewCode: the next voucher number, the largest Code plus one (1 for
// the first voucher). 0 when the statement failed.
qint64 sp_tblDocumentH_GetNewCode(Session& session);

// sp_tblDocumentH_Insert (@MaxID out, @Code, @Date, @Time, @UserID, @Transfer,
// @Permanent, @Serial, @Note): writes the voucher header and returns its ID (@MaxID), or
// 0 on failure. A header whose code is 0 gets the next number inside the insert itself,
// retried should another seat take it first, and header.code is set to it; a code given
// by the caller (from sp_tblDocumentH_GetNewCode) is written as it is and collides as a
// key conflict when another voucher has it already. header.id is set on success.
qint64 sp_tblDocumentH_Insert(Session& session, VoucherHeader& header);

// sp_tblDocumentD_Insert (@DocumentHID, @AccountingGroupID, @Debt, @Credit, @Comment):
// one posting; its ID, or 0 on failure.
qint64 sp_tblDocumentD_Insert(Session& session, const VoucherLine& line);
// The rows of one voucher (their DocumentHID) in one statement; false when it failed.
bool sp_tblDocumentD_InsertRows(Session& session, qint64 documentHId,
                                const QList<VoucherLine>& lines);

// sp_tblDocumentH_SelectRow (@ID): the voucher header, or nothing.
std::optional<VoucherHeader> sp_tblDocumentH_SelectRow(Session& session, qint64 id);

// sp_tblDocumentH_Update (@ID, @Code, @Date, @Time, @UserID, @Transfer, @Permanent,
// @Serial, @Note): writes the header's values again over the row header.id.
bool sp_tblDocumentH_Update(Session& session, const VoucherHeader& header);

// sp_tblDocumentH_DeleteRow (@ID): removes the voucher header.
bool sp_tblDocumentH_DeleteRow(Session& session, qint64 id);

// sp_tblDocumentD_DeleteRow (@HID): removes every posting of a voucher.
bool sp_tblDocumentD_DeleteRow(Session& session, qint64 documentHId);

}  // namespace sandogh::procedures
