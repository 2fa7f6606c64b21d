#include <gtest/gtest.h>

#include "PtyPair.h"
#include "RecordingPaymentRecorder.h"
#include "WaitUntil.h"
#include "devices/PecRequest.h"
#include "devices/PecResponse.h"
#include "devices/PecTerminal.h"
#include "support/FixedClock.h"
#include "support/RecordingMessageService.h"

namespace sandogh::test {
namespace {

// The terminal on the far end of a pseudo-terminal, answering what the test says.
class PecTerminalOnPty : public ::testing::Test {
protected:
    PecTerminalOnPty()
        : clock(QDateTime(QDate(2025, 3, 21), QTime(14, 5, 42)))
        , terminal(config(), recorder, messages, clock,
                   [] { return QStringLiteral("1404/01/01"); }) {
        QObject::connect(&terminal, &PecTerminal::answerRead,
                         [this](const QByteArray&) { ++answersRead; });
        QObject::connect(&terminal, &PecTerminal::answered,
                         [this](const QString& code) { codes.append(code); });
    }

    PecConfig config() {
        PecConfig c;
        c.commPort = 4;
        c.devicePath = pty.slavePath();
        c.settleMs = 50;
        return c;
    }

    // Sends a request and reads it at the terminal.
    QByteArray request(const QString& amount, const QString& saleNo) {
        EXPECT_TRUE(terminal.sendPaymentRequest(amount, saleNo));
        const QByteArray expected = PecRequest::build(amount, saleNo);
        return pty.readMaster(expected.size());
    }

    void answer(const QByteArray& bytes) {
        pty.writeMaster(bytes);
        ASSERT_TRUE(waitUntil([&] { return answersRead > 0; }));
    }

    PtyPair pty;
    FixedClock clock;
    RecordingPaymentRecorder recorder;
    RecordingMessageService messages;
    PecTerminal terminal;
    int answersRead = 0;
    QStringList codes;
};

// The request goes out as built; the approval, even when it comes in pieces, records one
// payment and ends the exchange.
TEST_F(PecTerminalOnPty, AnApprovalRecordsOnePayment) {
    ASSERT_TRUE(pty.ok());
    const QByteArray sent = request(QStringLiteral("1,250,000.75"), QStringLiteral("57"));
    EXPECT_EQ(sent, PecRequest::build(QStringLiteral("1,250,000.75"), QStringLiteral("57")));
    EXPECT_TRUE(sent.contains("AM0071250000"));
    EXPECT_TRUE(terminal.waiting());
    pty.writeMaster("0013RS0");
    answer("0200PD0011");
    ASSERT_EQ(recorder.payments.size(), 1);
    const PosPayment& p = recorder.payments[0];
    EXPECT_EQ(p.docNo, 57);
    EXPECT_EQ(p.dateTime, QStringLiteral("1404/01/01 - 14:05"));
    EXPECT_DOUBLE_EQ(p.paymentAmount, 1250000.75);
    EXPECT_EQ(p.merchantId, 0);
    EXPECT_EQ(p.terminalId, 0);
    EXPECT_EQ(p.prn, 0);
    EXPECT_EQ(p.stan, 0);
    EXPECT_EQ(p.tranType, 2);
    EXPECT_EQ(p.errorCode, 0);
    EXPECT_EQ(p.posId, 0);
    EXPECT_EQ(p.errorDescription, PosPayment::saleFormDescription());
    EXPECT_EQ(messages.count(), 0);
    EXPECT_FALSE(terminal.MSCommPec().isOpen());
    EXPECT_FALSE(terminal.waiting());
    EXPECT_EQ(codes, QStringList{QStringLiteral("00")});
}

TEST_F(PecTerminalOnPty, ARefusalShowsItsMessageIfItHasOneAndRecordsNothing) {
    ASSERT_TRUE(pty.ok());
    for (const char* code : {"55", "05"}) {
        SCOPED_TRACE(code);
        messages.clear();
        answersRead = 0;
        request(QStringLiteral("1,250,000"), QStringLiteral("57"));
        answer(QByteArray("0013RS002") + code + "PD0011");
        EXPECT_TRUE(recorder.payments.isEmpty());
        const QString text = PecResponse::message(QString::fromLatin1(code));
        ASSERT_EQ(messages.count(), text.isEmpty() ? 0 : 1);
        if (!text.isEmpty()) {
            EXPECT_EQ(messages.messages()[0].text, text);
            EXPECT_EQ(messages.messages()[0].style, MessageStyle::Information);
        }
        EXPECT_FALSE(terminal.MSCommPec().isOpen());
    }
}

// Without an answer the request stays waiting on its open port; a second request
// abandons it.
TEST_F(PecTerminalOnPty, ASecondRequestAbandonsAnUnansweredFirst) {
    ASSERT_TRUE(pty.ok());
    request(QStringLiteral("1,250,000"), QStringLiteral("57"));
    pty.readAllFor(100);
    EXPECT_TRUE(terminal.waiting());
    EXPECT_TRUE(terminal.MSCommPec().isOpen());
    EXPECT_EQ(answersRead, 0);
    const QByteArray second = request(QStringLiteral("2,000"), QStringLiteral("58"));
    EXPECT_TRUE(second.contains("AM0042000"));
    answer("RS00200");
    ASSERT_EQ(recorder.payments.size(), 1);
    EXPECT_EQ(recorder.payments[0].docNo, 58);
    EXPECT_DOUBLE_EQ(recorder.payments[0].paymentAmount, 2000.0);
}

}  // namespace
}  // namespace sandogh::test
