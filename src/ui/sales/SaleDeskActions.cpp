#include "ui/sales/SaleDeskActions.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <algorithm>

#include "common/AmountText.h"
#include "devices/PecTerminal.h"
#include "sales/GiftCardService.h"
#include "sales/LoyaltyGift.h"
#include "sales/PaymentAccounts.h"
#include "sales/SaleSaver.h"
#include "sales/SaleSession.h"
#include "sales/SettlementCalculator.h"
#include "sales/TerminalHandOffs.h"
#include "settings/MessageService.h"
#include "ui/sales/SaleDetailPanel.h"
#include "ui/sales/SaleTotalsPanel.h"
#include "ui/sales/frmSale.h"
#include "ui/sales/frmSalePayment.h"
#include "ui/widgets/AmountEdit.h"

namespace sandogh {

SaleDeskActions::SaleDeskActions(frmSale& screen, MessageService& messages, QObject* parent)
    : QObject(parent), m_screen(screen), m_messages(messages) {}

QString SaleDeskActions::notAvailableText() {
    return QStringLiteral(
        "این کار هنوز در این صندوق راه‌اندازی نشده است.");
}

QString SaleDeskActions::companionMissingText() {
    return QStringLiteral("برنامه حسابداری همراه پیدا نشد؛ پرداخت با این پایانه ممکن نیست.");
}

QString SaleDeskActions::payableText() const {
    const QString payable = m_screen.totalsPanel()->payableText();
    return payable.isEmpty() ? m_screen.session().totalText() : payable;
}

SaleSettlement SaleDeskActions::settlementOnScreen() const {
    SaleSettlement s;
    s.docNo = m_screen.docNoText();
    // The total of the lines themselves, not its rounded text in txtSum.
    m_screen.totalsPanel()->fillSettlement(s, m_screen.session().total());
    m_screen.detailPanel()->fillSettlement(s);
    if (m_card && m_card->accepted) {
        s.giftCardId = m_card->cardNumber;
        s.giftCardAmount = SettlementCalculator::giftCardShare(m_card->balance, s.payable);
    }
    s.payments = m_payments;
    s.loyaltyGift = SettlementCalculator::isLoyaltyGift(m_giftDiscount, s.discount);
    s.printReceipt = m_screen.printsReceipt();
    return s;
}

bool SaleDeskActions::giveLoyaltyGift() {
    if (m_loyalty == nullptr) {
        m_messages.show(notAvailableText(), MessageStyle::Information);
        return false;
    }
    SaleTotalsPanel& totals = *m_screen.totalsPanel();
    const SaleSession& sale = m_screen.session();
    const LoyaltyGift::Offer offer =
        m_loyalty->offer(sale.CompanyId(), sale.CompanyName(), totals.discountKind());
    totals.setDiscount(offer.given ? offer.discount : 0);
    if (offer.given) {
        m_giftDiscount = offer.discount;
    } else {
        m_giftDiscount.reset();
    }
    return offer.given;
}

bool SaleDeskActions::save() {
    if (m_saver == nullptr) {
        m_messages.show(notAvailableText(), MessageStyle::Information);
        return false;
    }
    SaleSettlement settlement = settlementOnScreen();
    m_lastSave = m_saver->save(m_screen.session(), settlement);
    if (!m_lastSave.saved) {
        // A number taken by another desk meanwhile has been replaced: show the new one.
        m_screen.showDocNo(settlement.docNo);
        return false;
    }
    m_card.reset();
    m_payments.clear();
    m_giftDiscount.reset();
    // What was handed over and the change stay in sight after the boxes are cleared;
    // nothing typed means the payable amount exactly.
    const SaleTotalsPanel& totals = *m_screen.totalsPanel();
    m_screen.showSettled(totals.handedOverText(), totals.changeText());
    m_screen.session().newSale();
    showNewDocument();
    return true;
}

void SaleDeskActions::showNewDocument() {
    if (m_saver == nullptr) {
        return;
    }
    m_screen.showDocNo(m_saver->nextDocNo(m_screen.session()));
    const PreviousInvoice previous = m_saver->previousInvoice(m_screen.session().station());
    m_screen.showPreviousInvoice(previous.docNo, previous.received);
}

bool SaleDeskActions::paymentType() {
    if (m_accounts == nullptr) {
        m_messages.show(notAvailableText(), MessageStyle::Information);
        return false;
    }
    frmSalePayment dialog(frmSalePayment::readAccounts(*m_accounts), m_messages, &m_screen);
    dialog.DocSum(AmountText::parse(payableText().toStdString()));
    dialog.setCustomerName(m_screen.session().CompanyName());
    dialog.FillTextValue();
    if (dialog.exec() != QDialog::Accepted) {
        return false;
    }
    m_payments = dialog.payments();
    return true;
}

bool SaleDeskActions::pecPayment() {
    if (m_pec == nullptr || m_screen.session().isEmpty()) {
        return false;
    }
    // Sent and left: the answer arrives on the port and is shown or recorded there, so
    // the cashier can go on meanwhile. A port that cannot be opened says nothing.
    return m_pec->sendPaymentRequest(payableText(), m_screen.docNoText());
}

void SaleDeskActions::terminalHandOff(const QString& command) {
    if (m_handOffs == nullptr || m_screen.session().isEmpty()) {
        return;
    }
    if (!m_handOffs->payOn(command, AmountText::parse(payableText().toStdString()))) {
        m_messages.show(companionMissingText(), MessageStyle::Information);
    }
}

void SaleDeskActions::openDrawer() {
    if (m_openDrawer) {
        m_openDrawer();
    }
}

bool SaleDeskActions::cardLookup(qint64 cardNumber) {
    if (m_cards == nullptr) {
        m_messages.show(notAvailableText(), MessageStyle::Information);
        return false;
    }
    const SaleSession& sale = m_screen.session();
    GiftCardResult card = m_cards->lookUp(cardNumber, sale.total(), sale.todayJalali());
    if (!card.accepted) {
        return false;
    }
    m_card = std::move(card);
    return true;
}

}  // namespace sandogh
