#include <gtest/gtest.h>

#include "PtyPair.h"
#include "WaitUntil.h"
#include "data/Database.h"
#include "data/SqlQuery.h"
#include "data/schema/Migrator.h"
#include "data/schema/ShopSchema.h"
#include "devices/PecTerminal.h"
#include "devices/SqlPosPaymentRecorder.h"
#include "support/BackendTest.h"
#include "support/FixedClock.h"

using sandogh::ConnectionSettings;
using sandogh::Database;
using sandogh::Migrator;
using sandogh::PecConfig;
using sandogh::PecTerminal;
using sandogh::PosPayment;
using sandogh::PosPaymentRecorder;
using sandogh::Session;
using sandogh::SqlPosPaymentRecorder;
using sandogh::SqlQuery;
using sandogh::test::FixedClock;
using sandogh::test::PtyPair;
using sandogh::test::waitUntil;

namespace {

class PosRecording : public sandogh::test::BackendTest {
protected:
    void SetUp() override {
        BackendTest::SetUp();
        if (IsSkipped() || HasFatalFailure())
            return;
        const Migrator::Result r = Migrator(db()).apply(sandogh::shopMigrations());
        ASSERT_TRUE(r.ok) << r.message.toStdString();
    }

    qint64 posRows() {
        Session s = db().session();
        return s.scalarInt64(QStringLiteral("SELECT COUNT(*) FROM tblPOS"));
    }

    static PosPayment payment(qint64 docNo, double amount) {
        PosPayment p;
        p.docNo = docNo;
        p.dateTime = QStringLiteral("1404/01/01 - 14:05");
        p.paymentAmount = amount;
        return p;
    }
};

TEST_P(PosRecording, ApprovedPaymentBecomesOneRow) {
    SqlPosPaymentRecorder recorder(db());
    ASSERT_EQ(recorder.record(payment(57, 1250000.75)), PosPaymentRecorder::Result::Recorded);
    Session s = db().session();
    SqlQuery q(s, QStringLiteral("SELECT MerchantId, TerminalId, DocNo, DateTime, TranType, "
                                 "PaymentAmount, PRN, Stan, ErrorCode, ErrorDiscription, PosId "
                                 "FROM tblPOS"));
    ASSERT_TRUE(q.exec() && q.next());
    EXPECT_EQ(q.int64(0), 0);
    EXPECT_EQ(q.int64(1), 0);
    EXPECT_EQ(q.int64(2), 57);
    EXPECT_EQ(q.text(3), QStringLiteral("1404/01/01 - 14:05"));
    EXPECT_EQ(q.integer(4), 2);
    EXPECT_DOUBLE_EQ(q.number(5), 1250000.75);
    EXPECT_EQ(q.int64(6), 0);
    EXPECT_EQ(q.int64(7), 0);
    EXPECT_EQ(q.integer(8), 0);
    EXPECT_EQ(q.text(9), PosPayment::saleFormDescription());
    EXPECT_EQ(q.integer(10), 0);
    EXPECT_FALSE(q.next());
}

TEST_P(PosRecording, LongTextsAreCutToTheirWidths) {
    PosPayment p = payment(3, 1);
    p.dateTime = QString(30, QLatin1Char('9'));
    SqlPosPaymentRecorder recorder(db());
    ASSERT_EQ(recorder.record(p), PosPaymentRecorder::Result::Recorded);
    Session s = db().session();
    EXPECT_EQ(s.scalarText(QStringLiteral("SELECT DateTime FROM tblPOS")),
              QString(20, QLatin1Char('9')));
}

TEST_P(PosRecording, MissingTableIsAFailureNotABrokenConnection) {
    {
        Session s = db().session();
        ASSERT_TRUE(s.exec(QStringLiteral("DROP TABLE tblPOS")));
    }
    SqlPosPaymentRecorder recorder(db());
    EXPECT_EQ(recorder.record(payment(4, 1)), PosPaymentRecorder::Result::Failed);
}

SANDOGH_INSTANTIATE_BACKENDS(PosRecording);

TEST(PosRecordingOffline, BrokenConnectionShowsTheConnectionMessage) {
    ConnectionSettings settings;
    ASSERT_TRUE(ConnectionSettings::parse(
        QStringLiteral("Provider=PostgreSQL;Data Source=127.0.0.1,1;Initial Catalog=shop;"
                       "User ID=nobody;Password=;Persist Security Info=True;"),
        QDir::tempPath(), settings, nullptr));
    sandogh::test::RecordingMessageService messages;
    Database database(settings, &messages);
    SqlPosPaymentRecorder recorder(database);
    PosPayment p;
    p.docNo = 1;
    EXPECT_EQ(recorder.record(p), PosPaymentRecorder::Result::ConnectionBroken);
    EXPECT_EQ(messages.countOf(Database::connectionFailureMessage()), 1);
}

}  // namespace
