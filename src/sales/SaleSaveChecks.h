#pragma once

#include <QString>
#include <optional>

#include "sales/SaleSaveCheck.h"

namespace sandogh {

class Database;
class MachineSettings;
class MessageService;
class SaleSession;
struct SaleSettlement;

// The checks of cmdSave, in their order; the first that refuses shows its message under
// "اخطار!" and stops the rest. Received less than the total is a question: confirmed, the
// checks go on. The options are read from the machine's settings at each run.
class SaleSaveChecks {
public:
    SaleSaveChecks(Database& database, const MachineSettings& settings, MessageService& messages);

    // The check that refused, or SaleSaveCheck::None when the sale may be saved.
    SaleSaveCheck run(SaleSession& sale, const SaleSettlement& settlement);
    // The checks on the lines alone, each only while its option is on: stock (IsExistQty),
    // locked goods (SaleSetting/ItemLock), both skipped for a return, and the price floor
    // (SaleSetting/BuySalePriceChecking). SaleSaveCheck::Lines when one refused, its
    // first refused row then in failedRow().
    SaleSaveCheck lines(const SaleSession& sale);
    int failedRow() const { return m_failedRow; }

    // The amount payable: total - discount + overhead.
    static double payable(const SaleSession& sale, const SaleSettlement& settlement);
    // What the invoice records as received: the settled amount, or the payable one.
    static double received(const SaleSession& sale, const SaleSettlement& settlement);

    // The remaining credit of a gift card number: its charges less its movements; nothing
    // when the look-up failed.
    static std::optional<double> giftCardCredit(Database& database, qint64 cardId);

private:
    bool refuse(const QString& text);
    SaleSaveCheck discountFactor(const SaleSettlement& settlement);
    SaleSaveCheck giftCard(const SaleSession& sale, const SaleSettlement& settlement);
    SaleSaveCheck codes(const SaleSession& sale, const SaleSettlement& settlement);

    Database& m_database;
    const MachineSettings& m_settings;
    MessageService& m_messages;
    int m_failedRow = -1;
};

}  // namespace sandogh
