#pragma once

#include <QObject>
#include <QString>
#include <functional>
#include <optional>

#include "sales/GiftCardResult.h"
#include "sales/SaleActions.h"
#include "sales/SaleSaveResult.h"
#include "sales/SaleSettlement.h"

namespace sandogh {

class GiftCardService;
class LoyaltyGift;
class MessageService;
class PaymentAccounts;
class PecTerminal;
class SaleSaver;
class TerminalHandOffs;
class frmSale;

// The sale screen's steps beyond ringing up, as this desk carries them out: saving with
// the settlement read off the screen, then the screen made ready for the next customer
// (its new number, the previous invoice beside it); the drawer through the main window's
// one drawer entry; the PEC card terminal on the screen's own port (the request is sent
// and the screen goes on; the terminal's answer is shown or recorded when it comes); the
// other terminals handed to the companion program with the amount payable; the split of the
// payment in frmSalePayment; a gift card read into the barcode box. A step whose part is missing is
// refused with a message and the sale stays as it was.
class SaleDeskActions final : public QObject, public SaleActions {
    Q_OBJECT

public:
    // The screen and the messages are not owned and must outlive this object.
    SaleDeskActions(frmSale& screen, MessageService& messages, QObject* parent = nullptr);

    // The edges, none owned; a missing one makes its step do nothing or refuse.
    void setDrawer(std::function<void()> openDrawer) { m_openDrawer = std::move(openDrawer); }
    void setPecTerminal(PecTerminal* terminal) { m_pec = terminal; }
    void setTerminalHandOffs(TerminalHandOffs* handOffs) { m_handOffs = handOffs; }
    void setSaver(SaleSaver* saver) { m_saver = saver; }
    void setGiftCards(GiftCardService* cards) { m_cards = cards; }
    void setPaymentAccounts(PaymentAccounts* accounts) { m_accounts = accounts; }
    void setLoyaltyGift(LoyaltyGift* loyalty) { m_loyalty = loyalty; }

    bool save() override;
    bool paymentType() override;
    bool pecPayment() override;
    void terminalHandOff(const QString& command) override;
    void openDrawer() override;
    bool cardLookup(qint64 cardNumber) override;

    // btnBuyFactor: the customer's loyalty gift written into txtDiscount (cleared when
    // refused); the sale then saves it as gifts taken.
    bool giveLoyaltyGift();

    // A new sale on the screen: its invoice number and the desk's previous invoice.
    void showNewDocument();
    // What the last save did (saved false before the first).
    const SaleSaveResult& lastSave() const { return m_lastSave; }
    // The gift card taken for the sale on the screen, if any.
    const std::optional<GiftCardResult>& giftCard() const { return m_card; }

    // The settlement as the screen shows it: number, amounts, kinds, the detail panel,
    // the gift card and the receipt switch.
    SaleSettlement settlementOnScreen() const;
    // The amount payable as the terminals are sent it: txtSumReceived, or the whole total
    // of the lines while nothing has been settled yet.
    QString payableText() const;

    // Shown when a step's part is missing from this program.
    static QString notAvailableText();
    // Shown when the companion program is not there to take a terminal payment.
    static QString companionMissingText();

private:
    frmSale& m_screen;
    MessageService& m_messages;
    std::function<void()> m_openDrawer;
    PecTerminal* m_pec = nullptr;
    TerminalHandOffs* m_handOffs = nullptr;
    SaleSaver* m_saver = nullptr;
    GiftCardService* m_cards = nullptr;
    PaymentAccounts* m_accounts = nullptr;
    LoyaltyGift* m_loyalty = nullptr;
    // The discount on the screen is the loyalty gift of btnBuyFactor (this amount).
    std::optional<double> m_giftDiscount;
    // The split chosen in frmSalePayment for the sale on the screen.
    QList<SalePayment> m_payments;
    SaleSaveResult m_lastSave;
    std::optional<GiftCardResult> m_card;
};

}  // namespace sandogh
