#include <gtest/gtest.h>

#include <QDir>

#include "data/Database.h"
#include "data/ShopFixture.h"
#include "devices/SqlPosPaymentRecorder.h"

namespace sandogh::test {
namespace {

class PosRecording : public ShopFixture {};

// Every field lands in its own column (the values all differ, so that a column written in
// the place of its neighbour shows); texts are cut to the procedure's widths.
TEST_P(PosRecording, AnApprovedPaymentBecomesOneRowAsGiven) {
    PosPayment p;
    p.merchantId = 11;
    p.terminalId = 12;
    p.docNo = 3000000123LL;  // beyond 32 bits
    p.dateTime = QString(30, QLatin1Char('9'));
    p.tranType = 3;
    p.paymentAmount = 1250000.75;
    p.prn = 14;
    p.stan = 15;
    p.errorCode = 16;
    p.errorDescription = PosPayment::saleFormDescription() + QString(50, QLatin1Char('x'));
    p.posId = 17;
    SqlPosPaymentRecorder recorder(db());
    ASSERT_EQ(recorder.record(p), PosPaymentRecorder::Result::Recorded);
    Session s = session();
    SqlQuery q(s, QStringLiteral("SELECT MerchantId, TerminalId, DocNo, DateTime, TranType, "
                                 "PaymentAmount, PRN, Stan, ErrorCode, ErrorDiscription, PosId "
                                 "FROM tblPOS"));
    ASSERT_TRUE(q.exec() && q.next());
    EXPECT_EQ(q.int64(0), 11);
    EXPECT_EQ(q.int64(1), 12);
    EXPECT_EQ(q.int64(2), 3000000123LL);
    EXPECT_EQ(q.text(3), QString(20, QLatin1Char('9')));
    EXPECT_EQ(q.integer(4), 3);
    EXPECT_DOUBLE_EQ(q.number(5), 1250000.75);
    EXPECT_EQ(q.int64(6), 14);
    EXPECT_EQ(q.int64(7), 15);
    EXPECT_EQ(q.integer(8), 16);
    EXPECT_EQ(q.text(9), p.errorDescription.left(50));
    EXPECT_EQ(q.integer(10), 17);
    EXPECT_FALSE(q.next());
}

TEST_P(PosRecording, MissingTableIsAFailureNotABrokenConnection) {
    ASSERT_TRUE(exec(QStringLiteral("DROP TABLE tblPOS")));
    EXPECT_EQ(SqlPosPaymentRecorder(db()).record(PosPayment{}), PosPaymentRecorder::Result::Failed);
}

SANDOGH_INSTANTIATE_BACKENDS(PosRecording);

TEST(PosRecordingOffline, BrokenConnectionShowsTheConnectionMessage) {
    ConnectionSettings settings;
    ASSERT_TRUE(ConnectionSettings::parse(
        QStringLiteral("Provider=PostgreSQL;Data Source=127.0.0.1,1;Initial Catalog=shop;"
                       "User ID=nobody;Password=;Persist Security Info=True;"),
        QDir::tempPath(), settings, nullptr));
    RecordingMessageService messages;
    Database database(settings, &messages);
    EXPECT_EQ(SqlPosPaymentRecorder(database).record(PosPayment{}),
              PosPaymentRecorder::Result::ConnectionBroken);
    EXPECT_EQ(messages.countOf(Database::connectionFailureMessage()), 1);
}

}  // namespace
}  // namespace sandogh::test
