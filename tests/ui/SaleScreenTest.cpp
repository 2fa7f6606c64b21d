#include "SaleScreenTest.h"

#include <QApplication>
#include <QLineEdit>
#include <QTest>

#include "data/Database.h"
#include "data/repositories/GoodsSearchQuery.h"
#include "sales/SaleSession.h"
#include "ui/sales/frmSale.h"

namespace sandogh::test {

void SaleScreenTest::SetUp() {
    ASSERT_TRUE(app.openShop(false));
    app.messages.clear();
    setOption("Station", "ID", QString::number(kStation));
    setOption("UserInfo", "UserName", QStringLiteral("cashier"));
    exec(QStringLiteral("INSERT INTO Stations (ID, Station_Name) VALUES (:id, 'Desk')"),
         {{QStringLiteral(":id"), kStation}});
}

void SaleScreenTest::setOption(const char* section, const char* key, const QString& value) {
    ASSERT_TRUE(app.settings.write(QString::fromLatin1(section), QString::fromLatin1(key), value));
}

void SaleScreenTest::exec(const QString& sql, const SqlBinds& binds) {
    Session s = db().session();
    ASSERT_TRUE(s.exec(sql, binds))
        << sql.toStdString() << ": " << s.lastError().text().toStdString();
}

void SaleScreenTest::addGoods(const ShopGoods& g) {
    exec(QStringLiteral("INSERT INTO Goods (EAN_Code, Name, NameKey, Cost, Cost2, TaxValue, "
                        "ISActive, AQIS, Type, GType, ISFavorite, FavoriteTab) VALUES (:b, :name, "
                        ":key, :cost, :cost2, :tax, 1, :aqis, 0, 0, :fav, :tab)"),
         {{QStringLiteral(":b"), g.barcode},
          {QStringLiteral(":name"), g.name},
          {QStringLiteral(":key"), GoodsSearchQuery::searchKey(g.name)},
          {QStringLiteral(":cost"), g.cost},
          {QStringLiteral(":cost2"), g.cost2},
          {QStringLiteral(":tax"), g.tax},
          {QStringLiteral(":fav"), g.favourite ? 1 : 0},
          {QStringLiteral(":tab"), g.favouriteTab},
          {QStringLiteral(":aqis"), g.asksQuantity ? 1 : 0}});
}

void SaleScreenTest::addDocument(qint64 code, int transType, const QString& barcode, double qty,
                                 double docSum, double received) {
    exec(QStringLiteral("INSERT INTO Whs_QTYDocH (Code, DocNo, TransType, DocDate, StationID, "
                        "DocSum, ReceivedPrice) VALUES (:code, :no, :t, :d, :s, :sum, :rec)"),
         {{QStringLiteral(":code"), code},
          {QStringLiteral(":no"), QString::number(code)},
          {QStringLiteral(":t"), transType},
          {QStringLiteral(":d"), QStringLiteral("1404/01/01")},
          {QStringLiteral(":s"), kStation},
          {QStringLiteral(":sum"), docSum},
          {QStringLiteral(":rec"), received}});
    exec(QStringLiteral("INSERT INTO Whs_QTYDocD (Code, EAN_Code, Qty, MFee, Fee, Price, TaxValue, "
                        "Discount) VALUES (:code, :b, :q, 0, 0, 0, 0, 0)"),
         {{QStringLiteral(":code"), code},
          {QStringLiteral(":b"), barcode},
          {QStringLiteral(":q"), qty}});
}

void SaleScreenTest::addCustomer(int counter, const QString& code, const QString& name,
                                 const QString& family, const QString& mobile) {
    exec(QStringLiteral("INSERT INTO Types (Counter, TypeNo, Code, Name, Value1, Value5, Account) "
                        "VALUES (:c, 10, :code, :name, :family, :mobile, :account)"),
         {{QStringLiteral(":c"), counter},
          {QStringLiteral(":code"), code},
          {QStringLiteral(":name"), name},
          {QStringLiteral(":family"), family},
          {QStringLiteral(":mobile"), mobile},
          {QStringLiteral(":account"), 1000 + counter}});
}

frmSale& SaleScreenTest::openScreen() {
    m_screen =
        std::make_unique<frmSale>(db(), app.context.machineSettings(), messages(), app.clock);
    m_screen->resize(1280, 720);
    m_screen->show();
    QApplication::setActiveWindow(m_screen.get());
    child<QLineEdit>(*m_screen, "txtBarcode")->setFocus();
    return *m_screen;
}

void SaleScreenTest::scan(const QString& text) {
    QTest::keyClicks(child<QLineEdit>(*m_screen, "txtBarcode"), text);
    QTest::keyClick(child<QLineEdit>(*m_screen, "txtBarcode"), Qt::Key_Return);
}

void SaleScreenTest::press(Qt::Key key, Qt::KeyboardModifiers modifiers) {
    QWidget* target = QApplication::focusWidget();
    if (target == nullptr || (target != m_screen.get() && !m_screen->isAncestorOf(target))) {
        target = child<QLineEdit>(*m_screen, "txtBarcode");
    }
    QTest::keyClick(target, key, modifiers);
}

QLineEdit* SaleScreenTest::box(const char* name) {
    auto* found = m_screen->findChild<QLineEdit*>(QString::fromLatin1(name));
    EXPECT_NE(found, nullptr) << name;
    return found;
}

bool SaleScreenTest::barcodeHasFocus() {
    return m_screen->focusWidget() == child<QLineEdit>(*m_screen, "txtBarcode");
}

int SaleScreenTest::lineCount() {
    return m_screen->session().linesModel().lineCount();
}

double SaleScreenTest::quantityOf(int row) {
    return m_screen->session().linesModel().line(row).quantity;
}

double SaleScreenTest::unitPriceOf(int row) {
    return m_screen->session().linesModel().line(row).unitPrice;
}

QString SaleScreenTest::totalShown() {
    return box("txtSum")->text();
}

}  // namespace sandogh::test
