#pragma once

#include <QByteArray>
#include <QString>

namespace sandogh {

// A payment request to the PEC card terminal: total length (4 digits), "RQ",
// body length (3 digits) and the body, a run of tag / 3-digit length / value
// fields. Lengths count characters; the text goes out in code page 1256, one
// byte per character.
class PecRequest {
public:
    // "فاکتور فروش: " (13 characters with its trailing blank), before the sale number.
    static QString invoicePrefix();

    // One field: tag, value length zero-padded to 3 digits, value.
    static QString field(const QString& tag, const QString& value);
    // Whether the amount text is a usable amount of zero or more (AmountText::isUsable):
    // the terminal is never sent "nan" or a value that a 64-bit field would turn negative.
    static bool amountFits(const QString& amountText);
    // The integer part of the amount text, "," removed, as plain digits; empty when the
    // amount does not fit.
    static QString amountDigits(const QString& amountText);
    // PR AM CU R1 R2 T1 T2 SV SG AD PD, in this order.
    static QString body(const QString& amountText, const QString& saleNo);
    // Total length, "RQ", body length, body.
    static QString frame(const QString& body);
    // The bytes written to the port; empty when the amount does not fit.
    static QByteArray build(const QString& amountText, const QString& saleNo);
};

}  // namespace sandogh
