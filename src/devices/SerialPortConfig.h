#pragma once

#include <QString>

namespace sandogh {

// What a serial line starts with: the COM number, the settings text, the
// buffer sizes and, where the machine's device does not follow the COM
// numbering (a USB adapter, a pseudo-terminal), the device path to use instead.
struct SerialPortConfig {
    int commPort = 1;
    QString settings = QStringLiteral("9600,n,8,1");
    int inBufferSize = 1024;
    int outBufferSize = 512;
    QString devicePath;  // empty: the device follows from commPort

    // MSComm2's built-in COM number. A PortNo.No2 of 0 leaves it standing, so the main
    // window's status bar still reads " COM:2" then, as cashiers have always seen it.
    static constexpr int kMSComm2BuiltInPort = 2;

    // The built-in defaults of the four port objects of the cash desk.
    static SerialPortConfig MSComm1();    // first general port
    static SerialPortConfig MSComm2();    // second general port, caller ID
    static SerialPortConfig port();       // eight-digit price display
    static SerialPortConfig MSCommPec();  // bank card terminal
};

}  // namespace sandogh
