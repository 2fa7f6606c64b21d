#pragma once

// Test doubles for the parts a sale hands over to the screen: they record what they
// were asked and answer from a script.

#include <QList>
#include <QStringList>
#include <optional>

#include "sales/PriceChooser.h"
#include "sales/QuantityAsker.h"
#include "sales/SaleActions.h"
#include "sales/SellerChooser.h"
#include "sales/TotalDisplay.h"

namespace sandogh::test {

class RecordingActions final : public SaleActions {
public:
    bool save() override {
        ++saves;
        return saveAnswer;
    }
    bool paymentType() override {
        ++payments;
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
        return cardAnswer;
    }

    bool saveAnswer = true;
    bool cardAnswer = true;
    int saves = 0;
    int payments = 0;
    int pecPayments = 0;
    int drawers = 0;
    QStringList handOffs;
    QList<qint64> cards;
};

class RecordingDisplay final : public TotalDisplay {
public:
    void showTotal(const QString& amountText) override { shown << amountText; }
    QStringList shown;
};

class ScriptedPriceChooser final : public PriceChooser {
public:
    std::optional<double> choosePrice(const PriceChoice& choice) override {
        asked << choice;
        return answer;
    }
    std::optional<double> answer;
    QList<PriceChoice> asked;
};

class ScriptedSellerChooser final : public SellerChooser {
public:
    std::optional<Seller> chooseSeller() override {
        ++asked;
        return answer;
    }
    std::optional<Seller> answer;
    int asked = 0;
};

class ScriptedQuantityAsker final : public QuantityAsker {
public:
    std::optional<double> askQuantity(const QString& barcode, const QString&) override {
        asked << barcode;
        return answer;
    }
    std::optional<double> answer;
    QStringList asked;
};

}  // namespace sandogh::test
