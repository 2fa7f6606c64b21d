#include <gtest/gtest.h>

#include "devices/Cp1256.h"
#include "devices/PecRequest.h"
#include "devices/PecResponse.h"

namespace sandogh::test {
namespace {

QByteArray hex(const QByteArray& bytes) {
    return bytes.toHex(' ').toUpper();
}

// --- code page 1256 ---

TEST(Cp1256, EveryByteOfTheUpperHalfComesBack) {
    for (int b = 0x80; b <= 0xFF; ++b) {
        const QByteArray one(1, static_cast<char>(b));
        EXPECT_EQ(Cp1256::encode(Cp1256::decode(one)), one) << std::hex << b;
    }
}

TEST(Cp1256, TextsGiveTheBytesOfThePage) {
    const struct {
        const char16_t* text;
        const char* bytes;
    } cases[] = {
        {u"Price:12,500", "50 72 69 63 65 3A 31 32 2C 35 30 30"},
        {u"فاکتور فروش: 57", "DD C7 98 CA E6 D1 20 DD D1 E6 D4 3A 20 35 37"},
        // The Persian alphabet; Persian yeh becomes Arabic yeh.
        {u"\u0627\u0628\u067E\u062A\u062B\u062C\u0686\u062D\u062E\u062F\u0630\u0631\u0632"
         u"\u0698\u0633\u0634\u0635\u0636\u0637\u0638\u0639\u063A\u0641\u0642\u06A9\u06AF"
         u"\u0644\u0645\u0646\u0648\u0647\u06CC",
         "C7 C8 81 CA CB CC 8D CD CE CF D0 D1 D2 8E D3 D4 D5 D6 D8 D9 DA DB DD DE 98 90 "
         "E1 E3 E4 E6 E5 ED"},
        // Persian and Arabic-Indic digits are sent as ASCII digits.
        {u"\u06F1\u06F2\u06F3\u0664\u0665", "31 32 33 34 35"},
        {u"\u060C\u061B\u061F\u0640\u200C", "A1 BA BF DC 9D"},
        // Characters the page lacks.
        {u"\u4E2D\u0100", "3F 3F"},
        {u"", ""},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(hex(Cp1256::encode(QString::fromUtf16(c.text))), QByteArray(c.bytes)) << c.bytes;
    }
}

// --- the request ---

TEST(PecRequest, WorkedExampleIsNinetyBytes) {
    const QByteArray bytes = PecRequest::build(QStringLiteral("1,250,000"), QStringLiteral("57"));
    const QByteArray expected = "0086RQ081PR000AM0071250000CU003364R1015" +
                                QByteArray::fromHex("DDC798CAE6D120DDD1E6D43A20") +
                                "57R2000T1000T2000SV000SG000AD000PD0011";
    EXPECT_EQ(bytes.size(), 90);
    EXPECT_EQ(hex(bytes), hex(expected));
    EXPECT_EQ(PecRequest::body(QStringLiteral("1,250,000"), QStringLiteral("57")).size(), 81);
}

TEST(PecRequest, TheAmountIsTheIntegerPartWithoutSeparators) {
    const struct {
        const char* text;
        const char* digits;  // empty: refused, no request at all
    } cases[] = {
        {"1,250,000", "1250000"},
        {"1,250,000.75", "1250000"},
        {"999.99", "999"},
        {"0", "0"},
        {"", "0"},
        {"nan", "0"},
        {"999,999,999,999,999", "999999999999999"},
        {"1,000,000,000,000,000", ""},
        {"9223372036854775808", ""},
        {"-5", ""},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(PecRequest::amountDigits(QString::fromLatin1(c.text)),
                  QString::fromLatin1(c.digits))
            << c.text;
    }
    for (const char* amount : {"9,223,372,036,854,775,808", "1e300"}) {
        EXPECT_TRUE(PecRequest::build(QString::fromLatin1(amount), QStringLiteral("7")).isEmpty())
            << amount;
    }
}

TEST(PecRequest, LengthsFollowTheCharacterCounts) {
    const struct {
        const char* amount;
        const char* saleNo;
        const char* head;  // total length, "RQ", body length
        const char* am;
        const char* r1Length;
        int size;
    } cases[] = {
        {"1,250,000", "123456", "0090RQ085", "AM0071250000", "R1019", 94},
        {"5,000", "7", "0082RQ077", "AM0045000", "R1014", 86},
        {"", "", "0078RQ073", "AM0010", "R1013", 82},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.head);
        const QByteArray bytes =
            PecRequest::build(QString::fromLatin1(c.amount), QString::fromLatin1(c.saleNo));
        EXPECT_EQ(bytes.left(9), QByteArray(c.head));
        EXPECT_TRUE(bytes.contains(QByteArray(c.am))) << c.am;
        EXPECT_TRUE(bytes.contains(QByteArray(c.r1Length) + QByteArray::fromHex("DDC798")));
        EXPECT_EQ(bytes.size(), c.size);
        EXPECT_TRUE(bytes.endsWith("R2000T1000T2000SV000SG000AD000PD0011"));
    }
    EXPECT_EQ(PecRequest::field(QStringLiteral("PR"), QString()), QStringLiteral("PR000"));
    EXPECT_EQ(PecRequest::field(QStringLiteral("CU"), QStringLiteral("364")),
              QStringLiteral("CU003364"));
    EXPECT_EQ(PecRequest::frame(QString(81, QLatin1Char('x'))).left(9),
              QStringLiteral("0086RQ081"));
}

// --- the answer ---

TEST(PecResponse, TheCodeIsTwoCharactersAfterTheFirstResponseField) {
    const struct {
        const char* received;
        bool found;
        const char* code;
    } cases[] = {{"RS00200", true, "00"},
                 {"0040RS00255PR000AM0071250000", true, "55"},
                 {"xxRS00212RS00200", true, "12"},
                 {"RS0025", true, "5"},
                 {"RS002", true, ""},
                 {"RS00355", false, ""},
                 {"rs00255", false, ""},
                 {"", false, ""}};
    for (const auto& c : cases) {
        const auto code = PecResponse::code(QByteArray(c.received));
        ASSERT_EQ(code.has_value(), c.found) << c.received;
        if (code) {
            EXPECT_EQ(*code, QString::fromLatin1(c.code)) << c.received;
        }
    }
}

TEST(PecResponse, EachRefusalHasItsMessage) {
    const struct {
        const char* code;
        const char16_t* text;
    } cases[] = {
        {"12", u"تراکنش نامعتر است "},  // with its trailing blank
        {"50", u"عدم برقراري ارتباط با مرکز"},
        {"51", u"موجودي کافي نيست"},
        {"54", u"تاريخ انتقضاي کارت سپري شده است"},
        {"55", u"رمز کارت اشتباه است"},
        {"56", u"کارت نا معتبر است"},
        {"58", u"پايانه غير مجاز است"},
        {"61", u"مبلغ تراکنش بيش از حد مجاز است"},
        {"65", u"تعداد دفعات ورود رمز غلط بيش از حد مجاز است"},
        {"99", u"لغو درخواست"},
        // Approval and codes outside the table show nothing.
        {"00", u""},
        {"05", u""},
        {"13", u""},
        {"AB", u""},
        {"", u""},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(PecResponse::message(QString::fromLatin1(c.code)), QString::fromUtf16(c.text))
            << c.code;
    }
}

}  // namespace
}  // namespace sandogh::test
