#include "SaleShopTest.h"

#include "data/Database.h"
#include "data/Dialect.h"
#include "data/schema/Migrator.h"
#include "data/schema/ShopSchema.h"
#include "data/schema/ShopSchemaBuild.h"

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
    SetUpShop();
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

void SaleShopTest::insert(const QString& tableAndColumns, const QVariantList& values) {
    QStringList names;
    SqlBinds binds;
    for (const QVariant& value : values) {
        names << QStringLiteral(":v%1").arg(names.size());
        binds.append({names.last(), value});
    }
    exec(QStringLiteral("INSERT INTO %1 VALUES (%2)")
             .arg(tableAndColumns, names.join(QStringLiteral(", "))),
         binds);
}

void SaleShopTest::addCentralDatabase(const QString& name) {
    if (backend() == Backend::SQLite) {
        db().addOtherDatabase(name);
    }
    Session s = db().session();
    const Dialect& d = s.dialect();
    if (!d.otherDatabaseExistsSql().isEmpty()) {
        ASSERT_TRUE(s.exec(d.createOtherDatabase(name)));
    }
    // The shop's own card tables, without their prefix, and the owners' table.
    QList<TableDef> tables = shopschema::giftCardsStep().tables;
    tables << shopschema::table(QStringLiteral("CenterTypes"),
                                {shopschema::integer(QStringLiteral("Counter")),
                                 shopschema::nameText(QStringLiteral("Name")),
                                 shopschema::nameText(QStringLiteral("Value1"))},
                                {QStringLiteral("Counter")});
    for (TableDef& t : tables) {
        t.name.remove(QStringLiteral("tbl"));
        t.database = name;
        for (const QString& sql : d.createTable(t, {})) {
            ASSERT_TRUE(s.exec(sql)) << sql.toStdString();
        }
    }
}

void SaleShopTest::addGoods(const TestGoods& g) {
    insert("Goods (EAN_Code, Spec_Code, Name, Cost, Cost2, TaxValue, ISActive, AQIS, Type, GType)",
           {g.barcode, g.specCode, g.name, g.cost, g.cost2, g.tax, g.active ? 1 : 0,
            g.asksQuantity ? 1 : 0, g.type, g.gType});
}

void SaleShopTest::addPriceChange(int code, const QString& from, const QString& to,
                                  const QString& barcode, double newCost) {
    insert("DiscountH (Code, FDate, SDate)", {code, from, to});
    insert("DiscountD (Code, Ean_Code, NewCost)", {code, barcode, newCost});
}

void SaleShopTest::addStation(int id) {
    if (count(QStringLiteral("SELECT COUNT(*) FROM Stations WHERE ID = :id"),
              {{QStringLiteral(":id"), id}}) == 0) {
        // The station's identity is given explicitly; PostgreSQL's sequence is not used again.
        insert("Stations (ID, Station_Name)", {id, QStringLiteral("Desk %1").arg(id)});
    }
}

void SaleShopTest::addDocument(qint64 code, int transType, const QString& docNo,
                               const QString& barcode, double qty, double fee, const QString& date,
                               int station, double docSum, double received, int warehouse) {
    if (station != 0) {
        addStation(station);
    }
    insert(
        "Whs_QTYDocH (Code, DocNo, TransType, DocDate, StationID, DocSum, ReceivedPrice, "
        "WarehouseCode)",
        {code, docNo, transType, date, station != 0 ? QVariant(station) : QVariant(), docSum,
         received, warehouse});
    if (!barcode.isEmpty()) {
        insert("Whs_QTYDocD (Code, EAN_Code, Qty, MFee, Fee, Price, TaxValue, Discount)",
               {code, barcode, qty, fee, fee, fee * qty, 0, 0});
    }
}

void SaleShopTest::addLock(const QString& barcode, double qty, bool locked) {
    insert("ItemLock (Ean_Code, Qty, IsLock)", {barcode, qty, locked ? 1 : 0});
}

}  // namespace sandogh::test
