#pragma once

#include <QObject>
#include <QString>

#include "GeneralPortsConfig.h"
#include "SerialLine.h"

namespace sandogh {

// The main window's two general ports, MSComm1 (barcode reader or line
// display) and MSComm2 (caller ID), held for as long as the program runs.
class GeneralPorts : public QObject {
    Q_OBJECT

public:
    // Which of the start-up configuration branches applied.
    enum class StartupBranch { None, CallerId, BarcodeReader, LineDisplay };

    static constexpr int kClosingDrainMs = 500;  // longest wait for queued output

    explicit GeneralPorts(const GeneralPortsConfig& config, QObject* parent = nullptr);

    SerialLine& MSComm1() { return m_comm1; }
    SerialLine& MSComm2() { return m_comm2; }
    const SerialLine& MSComm1() const { return m_comm1; }
    const SerialLine& MSComm2() const { return m_comm2; }
    const GeneralPortsConfig& config() const { return m_config; }

    // IsActivePort.Enable: without it the general ports are not used at all.
    bool portsActive() const { return m_config.portsActive; }

    // The main window's load: the port settings of the first branch that
    // applies, then OpenPort. A caller ID branch means its polling timer
    // is to be started by the caller.
    StartupBranch load();
    StartupBranch configureAtStartup();

    // Opens the configured ports; errors leave a port closed, silently.
    void OpenPort();
    // Pushes three CR LF pairs through each open port and closes it.
    void ClosePort();

    // The main window's status bar text: " COM:" and MSComm2's number when
    // the ports are in use and that number is at least 1, else empty.
    QString statusText() const;

private:
    void closeOne(SerialLine& line);

    GeneralPortsConfig m_config;
    SerialLine m_comm1;
    SerialLine m_comm2;
};

}  // namespace sandogh
