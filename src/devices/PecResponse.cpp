#include "PecResponse.h"

#include <string>

#include "common/AmountText.h"
#include "devices/Cp1256.h"

namespace sandogh {

namespace {

struct Refusal {
    int code;
    const char16_t* text;
};

// Shown as they stand: the text of 12 keeps its misspelling and its trailing blank.
const Refusal kRefusals[] = {
    {12, u"تراکنش نامعتر است "},                           // invalid transaction
    {50, u"عدم برقراري ارتباط با مرکز"},                   // no connection to the bank's centre
    {51, u"موجودي کافي نيست"},                             // insufficient funds
    {54, u"تاريخ انتقضاي کارت سپري شده است"},              // card expired
    {55, u"رمز کارت اشتباه است"},                          // wrong PIN
    {56, u"کارت نا معتبر است"},                            // invalid card
    {58, u"پايانه غير مجاز است"},                          // terminal not permitted
    {61, u"مبلغ تراکنش بيش از حد مجاز است"},               // amount over the limit
    {65, u"تعداد دفعات ورود رمز غلط بيش از حد مجاز است"},  // too many wrong PIN entries
    {99, u"لغو درخواست"},                                  // request cancelled
};

}  // namespace

std::optional<QString> PecResponse::code(const QByteArray& received) {
    const QString text = Cp1256::decode(received);
    const QString field = QString::fromLatin1(kResponseField);
    const qsizetype at = text.indexOf(field);
    if (at < 0)
        return std::nullopt;
    return text.mid(at + field.size(), 2);
}

QString PecResponse::message(const QString& code) {
    if (code == QLatin1String(kApproved))
        return {};
    const double value = AmountText::parse(code.toStdString());
    for (const Refusal& r : kRefusals) {
        if (value == r.code)
            return QString::fromUtf16(r.text);
    }
    return {};
}

}  // namespace sandogh
