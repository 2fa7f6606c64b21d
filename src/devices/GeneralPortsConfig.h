#pragma once

#include <QString>

namespace sandogh {

// The machine's choices for the main window's two general ports.
struct GeneralPortsConfig {
    bool portsActive = false;                          // IsActivePort.Enable
    int portNo = 0;                                    // PortNo.No: COM number of MSComm1, 0 none
    int portNo2 = 0;                                   // PortNo.No2: COM number of MSComm2, 0 none
    bool callerIdActive = false;                       // IsActiveCallerID.Enable
    QString callerIdModel = QStringLiteral("0");       // IsActiveCallerID.Model
    QString barcodeReaderModel = QStringLiteral("1");  // BarcodeReader.Model
    int displayLine = 0;                               // IsActivePoolDisplay.Line
    QString port1Device;  // device path replacing COM mapping of MSComm1
    QString port2Device;  // the same for MSComm2
};

}  // namespace sandogh
