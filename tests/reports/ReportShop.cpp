#include "ReportShop.h"

namespace sandogh::test {

void ReportShop::exec(const QString& sql, const SqlBinds& binds) {
    Session s = session();
    ASSERT_TRUE(s.exec(sql, binds)) << s.lastError().text().toStdString();
}

qint64 ReportShop::document(int transType, const QString& date, const QList<Line>& lines,
                            double docSum, double received, int station, int shift, int customer,
                            qint64 voucher) {
    procedures::StockDocumentHeader h;
    h.docNo = QStringLiteral("1");
    h.transType = transType;
    h.docDate = date;
    h.docSum = docSum;
    h.receivedPrice = received;
    h.stationId = station != 0 ? std::optional<int>(station) : std::nullopt;
    h.shiftCode = shift != 0 ? std::optional<int>(shift) : std::nullopt;
    h.companyId = customer != 0 ? std::optional<int>(customer) : std::nullopt;
    h.documentHId = voucher != 0 ? std::optional<qint64>(voucher) : std::nullopt;
    return writeDocument(h, lines, false);
}

void ReportShop::voucherRow(qint64 voucher, int account, double debt, double credit) {
    exec(QStringLiteral("INSERT INTO tblDocumentD (DocumentHID, AccountingGroupID, Debt, Credit) "
                        "VALUES (:v, :a, :d, :c)"),
         {{QStringLiteral(":v"), voucher},
          {QStringLiteral(":a"), account},
          {QStringLiteral(":d"), debt},
          {QStringLiteral(":c"), credit}});
}

void ReportShop::SetUp() {
    ShopFixture::SetUp();
    if (IsSkipped() || HasFatalFailure()) {
        return;
    }
    addGoods(QStringLiteral("A"), 150, QStringLiteral("Article A"));
    addGoods(QStringLiteral("B"), 80, QStringLiteral("Article B"));
    exec(QStringLiteral("UPDATE Goods SET Spec_Group = 1 WHERE EAN_Code = 'A'"));
    exec(QStringLiteral("UPDATE Goods SET Spec_Group = 2 WHERE EAN_Code = 'B'"));
    for (int id : {1, 2}) {
        exec(QStringLiteral("INSERT INTO Stations (ID, Station_Name) VALUES (:id, :name)"),
             {{QStringLiteral(":id"), id},
              {QStringLiteral(":name"), QStringLiteral("Desk %1").arg(id)}});
    }
    exec(QStringLiteral(
        "INSERT INTO tblShift (Code, Name, LastActiveShift) VALUES (1, 'Morning', 1)"));
    exec(QStringLiteral("INSERT INTO tblBanks (AccountingGroupId, PosId) VALUES (:a, 7001)"),
         {{QStringLiteral(":a"), kBank}});
    exec(QStringLiteral("INSERT INTO Types (Counter, TypeNo, Name, AccountingGroupID) "
                        "VALUES (5, 10, 'Customer', :a)"),
         {{QStringLiteral(":a"), kCustomerAccount}});

    const QString day1 = QStringLiteral("1404/01/01");
    document(1, day1,
             {Line{QStringLiteral("A"), 10, 0, 0, 100, 10, 9},
              Line{QStringLiteral("B"), 4, 0, 0, 50, 0, 0}},
             1181, 0);

    const qint64 sale1 = document(2, QStringLiteral("1404/01/02"),
                                  {Line{QStringLiteral("A"), 3, 150, 450}}, 450, 450, 1, 1, 0, 101);
    voucherRow(101, kBank, 300, 0);
    voucherRow(101, kCashBox, 150, 0);
    voucherRow(101, kIncome, 0, 450);
    exec(QStringLiteral("INSERT INTO tblGiftCardItem (GiftCardID, Amount, DocHCode) "
                        "VALUES (1, 100, :code)"),
         {{QStringLiteral(":code"), sale1}});

    document(2, QStringLiteral("1404/01/02"), {Line{QStringLiteral("B"), 1, 80, 80}}, 80, 50, 2, 1,
             5, 102);
    voucherRow(102, kCashBox, 50, 0);
    voucherRow(102, kCustomerAccount, 30, 0);
    voucherRow(102, kIncome, 0, 80);
    exec(
        QStringLiteral("INSERT INTO tblChequeAndTravel (DocumentHID, TransType, Price) "
                       "VALUES (102, 0, 30)"));

    document(3, QStringLiteral("1404/01/04"), {Line{QStringLiteral("A"), 1, 150, 150}}, 150, 150, 1,
             1, 0, 103);
    voucherRow(103, kCashBox, 0, 150);
    voucherRow(103, kReturns, 150, 0);

    document(1, QStringLiteral("1404/01/06"), {Line{QStringLiteral("A"), 5, 0, 0, 200, 0, 0}}, 1000,
             0);
    Session s = session();
    ASSERT_TRUE(procedures::sp_StockRepair(s, {}));
}

}  // namespace sandogh::test
