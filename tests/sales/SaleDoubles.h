#pragma once

// Test doubles for the parts a sale hands over to the screen: they record what they
// were asked and answer as told.

#include <QList>
#include <QStringList>

#include "sales/SaleActions.h"
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

}  // namespace sandogh::test
