#include "SaleShopTest.h"

#include "data/Database.h"
#include "data/Dialect.h"
#include "data/schema/Migrator.h"
#include "data/schema/ShopSchema.h"

namespace sandogh::test {

const QString SaleShopTest::kCashPaymentName = QStringLiteral("نقدی");

void SaleShopTest::SetUp() {
    ShopFixture::SetUp();
    if (IsSkipped() || HasFatalFailure()) {
        return;
    }
    ASSERT_TRUE(m_settingsDir.isValid());
    m_store = std::make_unique<QSettingsStore>(
        QStringLiteral("Retail"), m_settingsDir.filePath(QStringLiteral("Retail.ini")));
    m_settings = std::make_unique<MachineSettings>(*m_store);
    m_sale = std::make_unique<SaleSession>(db(), *m_settings, messages(), m_clock);
    m_sale->setUser(7, QStringLiteral("cashier"));
    // A save refuses a station or payment kind that does not exist: the desk's station and
    // the cash payment kind are there for every test.
    addStation(1);
    exec(QStringLiteral("INSERT INTO tblPaymentType (Code, Name) VALUES (1, :name)"),
         {{QStringLiteral(":name"), kCashPaymentName}});
    m_sale->setStation(1);
}

void SaleShopTest::TearDown() {
    m_sale.reset();
    ShopFixture::TearDown();
}

void SaleShopTest::setOption(const char* section, const char* key, const QString& value) {
    ASSERT_TRUE(m_store->write(QString::fromLatin1(section), QString::fromLatin1(key), value));
}

QString SaleShopTest::table(const char* name, const char* database) {
    Session s = db().session();
    return s.dialect().table(QString::fromLatin1(name),
                             database ? QString::fromLatin1(database) : QString());
}

void SaleShopTest::addGoods(const TestGoods& g) {
    exec(QStringLiteral("INSERT INTO Goods (EAN_Code, Spec_Code, Name, Cost, Cost2, TaxValue, "
                        "ISActive, AQIS, Type, GType) VALUES (:b, :specCode, :name, :cost, :cost2, "
                        ":tax, :active, :aqis, :type, :gtype)"),
         {{QStringLiteral(":b"), g.barcode},
          {QStringLiteral(":specCode"), g.specCode},
          {QStringLiteral(":name"), g.name},
          {QStringLiteral(":cost"), g.cost},
          {QStringLiteral(":cost2"), g.cost2},
          {QStringLiteral(":tax"), g.tax},
          {QStringLiteral(":active"), g.active ? 1 : 0},
          {QStringLiteral(":aqis"), g.asksQuantity ? 1 : 0},
          {QStringLiteral(":type"), g.type},
          {QStringLiteral(":gtype"), g.gType}});
}

void SaleShopTest::addPriceChange(int code, const QString& from, const QString& to,
                                  const QString& barcode, double newCost) {
    exec(QStringLiteral("INSERT INTO DiscountH (Code, FDate, SDate) VALUES (:c, :f, :s)"),
         {{QStringLiteral(":c"), code}, {QStringLiteral(":f"), from}, {QStringLiteral(":s"), to}});
    exec(QStringLiteral("INSERT INTO DiscountD (Code, Ean_Code, NewCost) VALUES (:c, :b, :n)"),
         {{QStringLiteral(":c"), code},
          {QStringLiteral(":b"), barcode},
          {QStringLiteral(":n"), newCost}});
}

void SaleShopTest::addStation(int id) {
    Session s = db().session();
    if (s.scalarInt64(QStringLiteral("SELECT COUNT(*) FROM Stations WHERE ID = :id"),
                      {{QStringLiteral(":id"), id}}) > 0) {
        return;
    }
    // The station's identity is given explicitly; PostgreSQL's sequence is not used again.
    exec(QStringLiteral("INSERT INTO Stations (ID, Station_Name) VALUES (:id, :name)"),
         {{QStringLiteral(":id"), id},
          {QStringLiteral(":name"), QStringLiteral("Desk %1").arg(id)}});
}

void SaleShopTest::addDocument(qint64 code, int transType, const QString& docNo,
                               const QString& barcode, double qty, double fee, const QString& date,
                               int station, double docSum, double received, int warehouse) {
    QVariant stationValue;
    if (station != 0) {
        addStation(station);
        stationValue = station;
    }
    exec(QStringLiteral("INSERT INTO Whs_QTYDocH (Code, DocNo, TransType, DocDate, StationID, "
                        "DocSum, ReceivedPrice, WarehouseCode) VALUES (:code, :no, :t, :d, :s, "
                        ":sum, :rec, :w)"),
         {{QStringLiteral(":code"), code},
          {QStringLiteral(":no"), docNo},
          {QStringLiteral(":t"), transType},
          {QStringLiteral(":d"), date},
          {QStringLiteral(":s"), stationValue},
          {QStringLiteral(":sum"), docSum},
          {QStringLiteral(":rec"), received},
          {QStringLiteral(":w"), warehouse}});
    if (!barcode.isEmpty()) {
        exec(QStringLiteral("INSERT INTO Whs_QTYDocD (Code, EAN_Code, Qty, MFee, Fee, Price, "
                            "TaxValue, Discount) VALUES (:code, :b, :q, :f, :f2, :p, 0, 0)"),
             {{QStringLiteral(":code"), code},
              {QStringLiteral(":b"), barcode},
              {QStringLiteral(":q"), qty},
              {QStringLiteral(":f"), fee},
              {QStringLiteral(":f2"), fee},
              {QStringLiteral(":p"), fee * qty}});
    }
}

void SaleShopTest::addLock(const QString& barcode, double qty, bool locked) {
    exec(QStringLiteral("INSERT INTO ItemLock (Ean_Code, Qty, IsLock) VALUES (:b, :q, :l)"),
         {{QStringLiteral(":b"), barcode},
          {QStringLiteral(":q"), qty},
          {QStringLiteral(":l"), locked ? 1 : 0}});
}

}  // namespace sandogh::test
