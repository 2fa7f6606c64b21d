// frmTransFactor and frmReceiveFactor on the demo shop: the branch list and the ticks reach
// the send, the state column follows, and the receive screen shows the sender, the picked
// file's lines (prices only as ShowPrice says) and receives them.

#include <gtest/gtest.h>

#include <QComboBox>
#include <QFile>
#include <QLabel>
#include <QPushButton>
#include <QTableWidget>
#include <QTest>

#include "ScreenTestContext.h"
#include "data/Session.h"
#include "data/Transaction.h"
#include "data/procedures/StockDocumentWriter.h"
#include "data/repositories/CenterBranchesRepository.h"
#include "sales/InternalReceive.h"
#include "sales/InternalSend.h"
#include "settings/BranchTransferSettings.h"
#include "settings/SettingKeys.h"
#include "ui/sales/frmReceiveFactor.h"
#include "ui/sales/frmTransFactor.h"

namespace sandogh {
namespace {

using namespace procedures;

class TransferScreensTest : public ::testing::Test {
protected:
    void SetUp() override {
        ASSERT_TRUE(app.openDesk());
        app.context.setTransferSettingsStore(&transfer);
        ASSERT_TRUE(transfer.write(QStringLiteral("FC"), QStringLiteral("Folder"),
                                   app.path(QStringLiteral("out"))));
        Session s = app.context.database().session();
        barcode = s.scalarText(QStringLiteral("SELECT MIN(EAN_Code) FROM Goods"));
        ASSERT_FALSE(barcode.isEmpty());
    }

    // A branch with one internal sale of two of the shop's first article.
    void addSale() {
        Session s = app.context.database().session();
        const int branch = CenterBranchesRepository::add(s, QStringLiteral("شعبه ۲"),
                                                         CenterBranchesRepository::kBranch);
        Transaction tx(s);
        StockDocumentHeader h;
        h.docNo = QStringLiteral("1");
        h.companyId = branch;
        h.docDate = QStringLiteral("1404/01/01");
        const qint64 code = StockDocumentWriter::insertInternalHeader(s, h);
        StockDocumentLine l;
        l.eanCode = barcode;
        l.qty = 2;
        l.fee = 1500;
        l.price = 3000;
        ASSERT_GT(StockDocumentWriter::insertInternalLine(s, code, l), 0);
        ASSERT_TRUE(tx.commit());
    }
    test::ScreenTestContext app;
    QSettingsStore transfer{QString::fromLatin1(settingkeys::TransferApplication),
                            app.path(QStringLiteral("Factortransfer.ini"))};
    QString barcode;
};

TEST_F(TransferScreensTest, TheTickedInvoiceIsSentAndShownSent) {
    {
        frmTransFactor none(app.context);
        EXPECT_EQ(app.messages.countOf(InternalSend::noBranchesText()), 1);
        EXPECT_FALSE(test::child<QPushButton>(none, "cmdSend")->isEnabled());
    }
    addSale();
    frmTransFactor screen(app.context);
    EXPECT_EQ(test::child<QComboBox>(screen, "cboBranch")->currentText(), QStringLiteral("شعبه ۲"));
    auto* grid = test::child<QTableWidget>(screen, "Grid1");
    ASSERT_EQ(grid->rowCount(), 1);
    EXPECT_EQ(grid->item(0, 4)->text(), InternalSend::notSentText());

    test::click(screen, "cmdSend");
    EXPECT_EQ(app.messages.countOf(InternalSend::nothingTickedText()), 1);
    grid->item(0, 0)->setCheckState(Qt::Checked);
    test::click(screen, "cmdSend");
    EXPECT_EQ(app.messages.countOf(InternalSend::doneText()), 1);
    EXPECT_TRUE(QFile::exists(app.path(QStringLiteral("out/RptFactors.txt"))));
    EXPECT_EQ(grid->item(0, 4)->text(), InternalSend::sentText());
}

TEST_F(TransferScreensTest, ThePickedFileIsShownAndReceived) {
    addSale();
    frmTransFactor send(app.context);
    test::child<QTableWidget>(send, "Grid1")->item(0, 0)->setCheckState(Qt::Checked);
    ASSERT_TRUE(send.cmdSend_Click());
    ASSERT_TRUE(
        transfer.write(QStringLiteral("FC"), QStringLiteral("ShowPrice"), QStringLiteral("2")));

    frmReceiveFactor screen(app.context);
    EXPECT_EQ(test::child<QLabel>(screen, "lblSender")->text(), QStringLiteral("مرکز"));
    auto* grid = test::child<QTableWidget>(screen, "Grid1");
    EXPECT_TRUE(grid->isColumnHidden(4));
    EXPECT_TRUE(grid->isColumnHidden(5));
    QString picked;
    screen.setFilePicker([&picked] { return picked; });
    test::click(screen, "cmdOpen");
    EXPECT_EQ(app.messages.countOf(InternalReceive::noFileText()), 1);

    picked = app.path(QStringLiteral("out/RptFactors.txt"));
    test::click(screen, "cmdOpen");
    ASSERT_EQ(grid->rowCount(), 1);
    EXPECT_EQ(grid->item(0, 2)->text(), barcode);
    EXPECT_EQ(grid->item(0, 3)->text(), QStringLiteral("2"));
    test::click(screen, "cmdReceive");
    EXPECT_EQ(app.messages.countOf(InternalReceive::doneText()), 2);  // the send's and this
    EXPECT_EQ(grid->rowCount(), 0);
}

}  // namespace
}  // namespace sandogh
