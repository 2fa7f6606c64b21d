#pragma once

#include <QObject>
#include <QString>
#include <memory>

namespace sandogh {

class AppContext;
class CompanionHandOff;
class CustomerDisplay;
class CustomerDisplayTotal;
class GeneralPorts;
class GiftCardService;
class LoyaltyGift;
class QtReceiptPrinter;
class PaymentAccounts;
class PecTerminal;
class SaleDeskActions;
class SaleReceipt;
class SaleSaver;
class SqlPosPaymentRecorder;
class TerminalHandOffs;
class WeightService;
class frmMain;
class frmSale;

// One sale screen with the devices of this desk behind it, made from the program's
// context: saving with the receipt after it, the gift cards, the customer display (its
// price display port is the screen's own), the PEC card terminal recording approvals in the
// shop database, the weighing service, the companion program for the other terminals, and
// the drawer through the main window. The desk is a child of its screen and goes with it.
class SaleDesk : public QObject {
    Q_OBJECT

public:
    // The screen and its desk; generalPorts may be null (the line displays then stay off).
    static frmSale* create(AppContext& context, GeneralPorts* generalPorts,
                           QWidget* parent = nullptr);
    // The main window's sale screen: opened as a child window of main, or the one already
    // open brought forward. F3 on a sale screen opens another, new one beside it.
    static frmSale* open(frmMain& main);
    static frmSale* openAnother(frmMain& main);

    // The desk of a screen made by create(); null for any other.
    static SaleDesk* of(const frmSale& screen);

    SaleDeskActions& actions() const { return *m_actions; }
    PecTerminal& pecTerminal() const { return *m_pec; }
    CompanionHandOff& companion() const { return *m_companion; }
    CustomerDisplay& customerDisplay() const { return *m_display; }

    ~SaleDesk() override;

private:
    SaleDesk(AppContext& context, GeneralPorts* generalPorts, frmSale& screen);
    static frmSale* openNamed(frmMain& main, const QString& name);

    std::unique_ptr<GeneralPorts> m_ownPorts;
    std::unique_ptr<SqlPosPaymentRecorder> m_recorder;
    std::unique_ptr<CompanionHandOff> m_companion;
    std::unique_ptr<TerminalHandOffs> m_handOffs;
    std::unique_ptr<SaleSaver> m_saver;
    std::unique_ptr<QtReceiptPrinter> m_pagePrinter;
    std::unique_ptr<SaleReceipt> m_receipt;
    std::unique_ptr<LoyaltyGift> m_loyalty;
    std::unique_ptr<GiftCardService> m_cards;
    std::unique_ptr<PaymentAccounts> m_accounts;
    std::unique_ptr<CustomerDisplayTotal> m_total;
    CustomerDisplay* m_display = nullptr;
    PecTerminal* m_pec = nullptr;
    WeightService* m_weight = nullptr;
    SaleDeskActions* m_actions = nullptr;
};

}  // namespace sandogh
