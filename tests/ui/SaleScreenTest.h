#pragma once

// A sale screen on an empty SQLite shop of the screen tests' application context (this
// desk's settings in its INI file, its clock at 21 March 2025, 1404/01/01), a few goods put
// in by each test, and helpers that type into the screen as a cashier does.

#include <gtest/gtest.h>

#include <QStringList>
#include <memory>
#include <string>

#include "ScreenTestContext.h"
#include "data/Session.h"
#include "sales/SaleActions.h"

class QLineEdit;

namespace sandogh {

class frmSale;

namespace test {

// What the screen handed on to saving, payment and the terminals.
class RecordingSaleActions final : public SaleActions {
public:
    bool save() override {
        ++saves;
        return saveResult;
    }
    bool paymentType() override {
        ++paymentTypes;
        return true;
    }
    bool pecPayment() override {
        ++pecPayments;
        return true;
    }
    void terminalHandOff(const QString& command) override { handOffs << command; }
    void openDrawer() override { ++drawers; }
    bool cardLookup(qint64 cardNumber) override {
        cards << cardNumber;
        return cardResult;
    }

    int saves = 0;
    bool saveResult = true;
    int paymentTypes = 0;
    int pecPayments = 0;
    QStringList handOffs;
    int drawers = 0;
    QList<qint64> cards;
    bool cardResult = false;
};

// Names the instances of a table-driven test after the name field of their case.
struct CaseName {
    template <typename Case>
    std::string operator()(const ::testing::TestParamInfo<Case>& param) const {
        return param.param.name;
    }
};

struct ShopGoods {
    QString barcode;
    double cost = 0;
    double tax = 0;
    QString name = QStringLiteral("کالا");
    double cost2 = 0;
    bool favourite = false;
    int favouriteTab = 0;
    bool asksQuantity = false;
};

class SaleScreenTest : public ::testing::Test {
protected:
    void SetUp() override;
    void TearDown() override { closeScreen(); }

    Database& db() { return app.context.database(); }
    RecordingMessageService& messages() { return app.messages; }

    // Sets a switch of this desk before the screen opens.
    void setOption(const char* section, const char* key, const QString& value);
    // Runs a statement; fails the test when it fails.
    void exec(const QString& sql, const SqlBinds& binds = {});

    void addGoods(const ShopGoods& goods);
    // A document of this desk's station with one line: 1 purchase, 2 sale, 3 return.
    void addDocument(qint64 code, int transType, const QString& barcode, double qty,
                     double docSum = 0, double received = 0);
    void addCustomer(int counter, const QString& code, const QString& name, const QString& family,
                     const QString& mobile = {});

    // Opens the screen (shown, active, the focus in the barcode box).
    frmSale& openScreen();
    frmSale& screen() { return *m_screen; }
    void closeScreen() { m_screen.reset(); }

    // Types text into the barcode box and presses Enter.
    void scan(const QString& text);
    // A key pressed wherever the focus is on the screen.
    void press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier);
    QLineEdit* box(const char* name);
    // The barcode box is the screen's focus (the window gives it the keyboard whenever it
    // is active; a dialog that just closed may leave the window inactive for a moment).
    bool barcodeHasFocus();
    int lineCount();
    double quantityOf(int row);
    double unitPriceOf(int row);
    QString totalShown();

    static constexpr int kStation = 1;

    // An empty shop in the program folder of the application context.
    ScreenTestContext app;

private:
    std::unique_ptr<frmSale> m_screen;
};

}  // namespace test
}  // namespace sandogh
