#pragma once

#include "sales/SalePayment.h"

#include <QList>
#include <QString>

#include <optional>

namespace sandogh {

// What the cashier settled for the sale on the screen, beside its lines: the amounts of
// the totals panel, the kinds chosen for them, the payment split, a gift card and the
// header texts of the detail panel. The settlement logic fills it; saving reads it.
// Amounts are rials.
struct SaleSettlement {
    QString docNo;               // txtNo
    double discount = 0;         // txtDiscount
    double discountPercent = 0;  // txtDiscountPercent (0: none typed)
    double overhead = 0;         // txtOther, written as Sarbar
    double payable = 0;          // txtSumReceived: total - discount + overhead
    double handedOver = 0;       // txtReceivedPrice: what the customer handed over
    double taxValue = 0;         // txtTaxValue
    // The amount received for the invoice, written as ReceivedPrice; none: the payable
    // amount. Less than payable leaves the invoice owing (after a question), more refuses.
    std::optional<double> received;
    // The cashier typed docNo: saving checks it for a clash instead of renumbering it.
    bool docNoTyped = false;

    std::optional<int> payType;         // cmbPayType (tblPaymentType.Code)
    std::optional<int> discountTypeId;  // cmbDiscountType (DiscountType.Id)
    std::optional<int> overheadId;      // cmbOverhead (Overhead.Id)
    std::optional<int> returnCauseId;   // cmbReturnCause, returns only
    int debitAccountId = 0;             // cmbAccountingGroupDebit; 0: the cash box
    bool loyaltyGift = false;           // the discount came from btnBuyFactor

    // The split of frmSalePayment; empty: all of it in the one kind of payType.
    QList<SalePayment> payments;

    // txtAccount: the number (tblGiftCard.CardID) of a gift card paying giftCardAmount of
    // the sale (0: no card).
    qint64 giftCardId = 0;
    double giftCardAmount = 0;

    // The detail panel (frmDetail).
    QString note;         // txtNote
    QString transporter;  // txtTransporter
    std::optional<double> kilometerEntry;
    QString base;  // txtBase
    std::optional<int> carId;
    std::optional<qint64> preInvoiceCode;  // a pre-invoice loaded into the sale

    bool printReceipt = true;  // chkPrint
    bool giftPrint = false;    // chkGiftPrint
    bool a4Print = false;      // chkA4Prn
};

}  // namespace sandogh
