#pragma once

// A shop database with the schema applied, this desk's settings in a temporary INI
// file, a clock standing at 21 March 2025 (1404/01/01) and a sale session on them, with
// helpers that put goods, documents and customers into the shop.

#include <QDate>
#include <QTemporaryDir>
#include <memory>

#include "data/Session.h"
#include "data/ShopFixture.h"
#include "sales/SaleSession.h"
#include "settings/MachineSettings.h"
#include "settings/QSettingsStore.h"

namespace sandogh::test {

struct TestGoods {
    QString barcode{};
    double cost = 0;
    double tax = 0;
    QString name = QStringLiteral("Goods");
    double cost2 = 0;
    QString specCode{};
    bool active = true;
    bool asksQuantity = false;
    int type = 0;   // 1: weighed
    int gType = 0;  // GType
};

class SaleShopTest : public ShopFixture {
protected:
    // The name of payment kind 1, which every shop of the fixture has, as is station 1.
    static const QString kCashPaymentName;

    // The shop, then the suite's own rows (SetUpShop) once the shop is there.
    void SetUp() override;
    void TearDown() override;
    virtual void SetUpShop() {}

    SaleSession& sale() { return *m_sale; }
    MachineSettings& settings() { return *m_settings; }
    FixedClock& clock() { return m_clock; }
    // Sets a switch of this desk ("1"/"0" or a text).
    void setOption(const char* section, const char* key, const QString& value);
    void setFlag(const char* section, const char* key, bool on) {
        setOption(section, key, on ? QStringLiteral("1") : QStringLiteral("0"));
    }

    QString table(const char* name, const char* database = nullptr);
    // The text of the last message shown, "" when none.
    QString lastMessage() {
        const auto shown = messages().messages();
        return shown.isEmpty() ? QString() : shown.last().text;
    }
    // A row with every value bound: insert("Goods (EAN_Code, Cost)", {barcode, 10}).
    void insert(const QString& tableAndColumns, const QVariantList& values);
    // The central database `name` with its GiftCard, GiftCardItem and CenterTypes tables.
    void addCentralDatabase(const QString& name);

    void addGoods(const TestGoods& goods);
    // A price-change document with one article.
    void addPriceChange(int code, const QString& from, const QString& to, const QString& barcode,
                        double newCost);
    // A stock document (header and one line): 1 purchase, 2 sale, 3 return.
    void addDocument(qint64 code, int transType, const QString& docNo, const QString& barcode,
                     double qty, double fee, const QString& date = QStringLiteral("1404/01/01"),
                     int station = 0, double docSum = 0, double received = 0, int warehouse = 0);
    void addLock(const QString& barcode, double qty, bool locked = true);
    void addStation(int id);

private:
    QTemporaryDir m_settingsDir;
    std::unique_ptr<QSettingsStore> m_store;
    std::unique_ptr<MachineSettings> m_settings;
    FixedClock m_clock{QDateTime(QDate(2025, 3, 21), QTime(9, 30))};
    std::unique_ptr<SaleSession> m_sale;
};

}  // namespace sandogh::test
