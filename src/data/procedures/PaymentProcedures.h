#pragma once

#include <optional>

#include "data/Session.h"
#include "data/procedures/AccountingGroupRow.h"
#include "data/procedures/GiftCardMovement.h"
#include "data/procedures/GiftCardRow.h"
#include "data/procedures/PosPayment.h"
#include "data/procedures/SerialRow.h"

namespace sandogh::procedures {

// sp_POS_Insert (@MaxID out, @MerchantId, @TerminalId, @DocNo, DateTime, @TranType,
// @PaymentAmount, @PRN, @Stan, @ErrorCode, @ErrorDiscription, @PosId): records an approved
// card terminal payment in tblPOS and returns its ID (@MaxID), or 0 on failure.
qint64 sp_POS_Insert(Session& session, const PosPayment& payment);

// sp_tblGiftCard_SelectRow (@CardID): the newest charge row of the card number (the one
// whose password, expiry and discount are in force), or nothing.
std::optional<GiftCardRow> sp_tblGiftCard_SelectRow(Session& session, qint64 cardId);

// sp_tblGiftCardItem_Insert (@MaxID out, @GiftCardID, @Date, @Time, @Amount, @UserID,
// @CustomerID, @DocHCode): one amount spent from a card; its ID, or 0.
qint64 sp_tblGiftCardItem_Insert(Session& session, const GiftCardMovement& movement);

// sp_Serial_Insert: a serial number of an article. An empty serial.serialNo is allocated
// inside the insert as the largest number plus one (digit text), retried should another
// seat take it first. Sets serial.id and serial.serialNo; returns the Id, or 0.
qint64 sp_Serial_Insert(Session& session, SerialRow& serial);

// sp_Serial_DeleteRow (@Id).
bool sp_Serial_DeleteRow(Session& session, qint64 id);

// sp_tblAccountingGroup_Insert: one account of the chart; its ID, or 0.
qint64 sp_tblAccountingGroup_Insert(Session& session, const AccountingGroupRow& account);

}  // namespace sandogh::procedures
