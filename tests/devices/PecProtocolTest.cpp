#include <gtest/gtest.h>

#include "devices/Cp1256.h"
#include "devices/PecRequest.h"
#include "devices/PecResponse.h"

using sandogh::Cp1256;
using sandogh::PecRequest;
using sandogh::PecResponse;

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

struct EncodeCase {
    const char16_t* text;
    const char* bytes;
};

class Cp1256Encode : public ::testing::TestWithParam<EncodeCase> {};

TEST_P(Cp1256Encode, GivesTheBytesOfThePage) {
    EXPECT_EQ(hex(Cp1256::encode(QString::fromUtf16(GetParam().text))),
              QByteArray(GetParam().bytes));
}

INSTANTIATE_TEST_SUITE_P(
    Texts, Cp1256Encode,
    ::testing::Values(
        EncodeCase{u"Price:12,500", "50 72 69 63 65 3A 31 32 2C 35 30 30"},
        EncodeCase{u"فاکتور فروش: 57", "DD C7 98 CA E6 D1 20 DD D1 E6 D4 3A 20 35 37"},
        // The Persian alphabet; Persian yeh becomes Arabic yeh.
        EncodeCase{u"\u0627\u0628\u067E\u062A\u062B\u062C\u0686\u062D\u062E\u062F\u0630\u0631\u0632"
                   u"\u0698\u0633\u0634\u0635\u0636\u0637\u0638\u0639\u063A\u0641\u0642\u06A9\u06AF"
                   u"\u0644\u0645\u0646\u0648\u0647\u06CC",
                   "C7 C8 81 CA CB CC 8D CD CE CF D0 D1 D2 8E D3 D4 D5 D6 D8 D9 DA DB DD DE 98 90 "
                   "E1 E3 E4 E6 E5 ED"},
        // Persian and Arabic-Indic digits are sent as ASCII digits.
        EncodeCase{u"\u06F1\u06F2\u06F3\u0664\u0665", "31 32 33 34 35"},
        EncodeCase{u"\u060C\u061B\u061F\u0640\u200C", "A1 BA BF DC 9D"},
        // Characters the page lacks.
        EncodeCase{u"\u4E2D\u0100", "3F 3F"}, EncodeCase{u"", ""}));

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

struct AmountCase {
    const char* text;
    const char* digits;
};

class PecAmount : public ::testing::TestWithParam<AmountCase> {};

TEST_P(PecAmount, IsTheIntegerPartWithoutSeparators) {
    EXPECT_EQ(PecRequest::amountDigits(QString::fromLatin1(GetParam().text)),
              QString::fromLatin1(GetParam().digits));
}

INSTANTIATE_TEST_SUITE_P(Texts, PecAmount,
                         ::testing::Values(AmountCase{"1,250,000", "1250000"},
                                           AmountCase{"1,250,000.75", "1250000"},
                                           AmountCase{"12,500", "12500"},
                                           AmountCase{"999.99", "999"}, AmountCase{"0", "0"},
                                           AmountCase{"", "0"},
                                           AmountCase{"123,456,789,012", "123456789012"},
                                           AmountCase{"999,999,999,999,999", "999999999999999"},
                                           // Refused: empty digits and no request at all.
                                           AmountCase{"1,000,000,000,000,000", ""},
                                           AmountCase{"9223372036854775808", ""},
                                           AmountCase{"-5", ""}, AmountCase{"nan", "0"}));

TEST(PecRequest, AmountThatDoesNotFitBuildsNoRequest) {
    EXPECT_TRUE(PecRequest::build(QStringLiteral("9,223,372,036,854,775,808"), QStringLiteral("7"))
                    .isEmpty());
    EXPECT_TRUE(PecRequest::build(QStringLiteral("1e300"), QStringLiteral("7")).isEmpty());
}

struct LengthCase {
    const char* amount;
    const char* saleNo;
    const char* head;  // total length, "RQ", body length
    const char* am;
    const char* r1Length;
    int size;
};

class PecLengths : public ::testing::TestWithParam<LengthCase> {};

TEST_P(PecLengths, FollowTheCharacterCounts) {
    const LengthCase& c = GetParam();
    const QByteArray bytes =
        PecRequest::build(QString::fromLatin1(c.amount), QString::fromLatin1(c.saleNo));
    EXPECT_EQ(bytes.left(9), QByteArray(c.head));
    EXPECT_TRUE(bytes.contains(QByteArray(c.am))) << c.am;
    EXPECT_TRUE(bytes.contains(QByteArray(c.r1Length) + QByteArray::fromHex("DDC798")))
        << c.r1Length;
    EXPECT_EQ(bytes.size(), c.size);
    EXPECT_TRUE(bytes.endsWith("R2000T1000T2000SV000SG000AD000PD0011"));
}

INSTANTIATE_TEST_SUITE_P(
    Widths, PecLengths,
    ::testing::Values(LengthCase{"1,250,000", "57", "0086RQ081", "AM0071250000", "R1015", 90},
                      LengthCase{"1,250,000", "123456", "0090RQ085", "AM0071250000", "R1019", 94},
                      LengthCase{"5,000", "7", "0082RQ077", "AM0045000", "R1014", 86},
                      LengthCase{"", "", "0078RQ073", "AM0010", "R1013", 82}));

TEST(PecRequest, EmptyFieldIsTagAndZeroLength) {
    EXPECT_EQ(PecRequest::field(QStringLiteral("PR"), QString()), QStringLiteral("PR000"));
    EXPECT_EQ(PecRequest::field(QStringLiteral("CU"), QStringLiteral("364")),
              QStringLiteral("CU003364"));
    EXPECT_EQ(PecRequest::frame(QString(81, QLatin1Char('x'))).left(9),
              QStringLiteral("0086RQ081"));
}

// --- the answer ---

struct CodeCase {
    const char* received;
    bool found;
    const char* code;
};

class PecAnswer : public ::testing::TestWithParam<CodeCase> {};

TEST_P(PecAnswer, TakesTwoCharactersAfterTheFirstResponseField) {
    const auto code = PecResponse::code(QByteArray(GetParam().received));
    ASSERT_EQ(code.has_value(), GetParam().found) << GetParam().received;
    if (code) {
        EXPECT_EQ(*code, QString::fromLatin1(GetParam().code));
    }
}

INSTANTIATE_TEST_SUITE_P(
    Answers, PecAnswer,
    ::testing::Values(CodeCase{"RS00200", true, "00"},
                      CodeCase{"0040RS00255PR000AM0071250000", true, "55"},
                      CodeCase{"xxRS00212RS00200", true, "12"}, CodeCase{"RS0025", true, "5"},
                      CodeCase{"RS002", true, ""}, CodeCase{"RS00355", false, ""},
                      CodeCase{"rs00255", false, ""}, CodeCase{"", false, ""}));

struct MessageCase {
    const char* code;
    const char16_t* text;
};

class PecRefusal : public ::testing::TestWithParam<MessageCase> {};

TEST_P(PecRefusal, HasItsMessage) {
    EXPECT_EQ(PecResponse::message(QString::fromLatin1(GetParam().code)),
              QString::fromUtf16(GetParam().text))
        << GetParam().code;
}

INSTANTIATE_TEST_SUITE_P(
    Codes, PecRefusal,
    ::testing::Values(MessageCase{"12", u"تراکنش نامعتر است "},
                      MessageCase{"50", u"عدم برقراري ارتباط با مرکز"},
                      MessageCase{"51", u"موجودي کافي نيست"},
                      MessageCase{"54", u"تاريخ انتقضاي کارت سپري شده است"},
                      MessageCase{"55", u"رمز کارت اشتباه است"},
                      MessageCase{"56", u"کارت نا معتبر است"},
                      MessageCase{"58", u"پايانه غير مجاز است"},
                      MessageCase{"61", u"مبلغ تراکنش بيش از حد مجاز است"},
                      MessageCase{"65", u"تعداد دفعات ورود رمز غلط بيش از حد مجاز است"},
                      MessageCase{"99", u"لغو درخواست"},
                      // Approval and codes outside the table show nothing.
                      MessageCase{"00", u""}, MessageCase{"05", u""}, MessageCase{"13", u""},
                      MessageCase{"AB", u""}, MessageCase{"", u""}));

TEST(PecRefusal, InvalidTransactionKeepsItsTrailingBlank) {
    EXPECT_TRUE(PecResponse::message(QStringLiteral("12")).endsWith(QLatin1Char(' ')));
}

}  // namespace
