#pragma once

#include <QString>

#include "data/Session.h"
#include "data/procedures/GiftCardMovement.h"

namespace sandogh::procedures {

// sp_SyncInsertGiftCardItem (@LinkedServer, @DatabaseName, @ID, @GiftCardID, @Date, @Time,
// @Amount, @UserID, @CustomerID, @DocHCode): copies a gift card movement written here
// (movement.id is its ID in this shop) into GiftCardItem of the central database, so that
// the card's balance is known in every branch. The central database is reached as another
// database of the server (through the linked server on SQL Server). False on failure
// (reported).
bool sp_SyncInsertGiftCardItem(Session& session, const QString& linkedServer,
                               const QString& databaseName, const GiftCardMovement& movement);

}  // namespace sandogh::procedures
