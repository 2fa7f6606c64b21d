#pragma once

#include <QObject>
#include <QString>
#include <QTimer>

#include "DisplayConfig.h"
#include "GeneralPorts.h"
#include "SerialLine.h"

namespace sandogh {

// The pole display facing the customer: shows the running total. The single-
// and two-line displays hang on the general port MSComm1; the eight-digit price
// display on the sale screen's own port MSCommCustomerDisplay. Nothing here is
// ever reported: a closed port or a failed write leaves the display as it was.
class CustomerDisplay : public QObject {
    Q_OBJECT

public:
    static constexpr const char* kPriceDisplaySettings = "2400,N,8,1";
    // The single-line display's pause was counted in thousands of message-loop
    // turns; one thousand turns is taken as this many milliseconds.
    static constexpr int kMsPerDelayUnit = 10;

    CustomerDisplay(const DisplayConfig& config, GeneralPorts& generalPorts,
                    QObject* parent = nullptr);

    SerialLine& port() { return m_port; }
    const DisplayConfig& config() const { return m_config; }
    void setGreeting(const QString& greeting) { m_config.greeting = greeting; }

    // The sale screen's load: the price display's port is opened when the
    // display is on and of kind 3.
    void saleScreenLoaded();
    // Configures and opens the price display's port.
    void openPort();
    // Shows an amount text as the sale screen shows it (with ",").
    void ShowOnCustomerDisplay(const QString& amountText);
    // The sale screen's exit: resets the price display and closes its port.
    void leaveSaleScreen();

    // The pause between clearing the single-line display and writing to it.
    int singleLinePauseMs() const;

private:
    void writeSingleLineAmount();

    DisplayConfig m_config;
    GeneralPorts& m_general;
    SerialLine m_port;
    QTimer m_pause;
    QString m_pendingAmount;
};

}  // namespace sandogh
