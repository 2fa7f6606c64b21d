#include "SerialPortConfig.h"

namespace sandogh {

namespace {

SerialPortConfig make(int commPort, const char* settings) {
    SerialPortConfig c;
    c.commPort = commPort;
    c.settings = QString::fromLatin1(settings);
    c.inBufferSize = 1024;
    c.outBufferSize = 512;
    return c;
}

}  // namespace

SerialPortConfig SerialPortConfig::MSComm1() {
    return make(1, "9600,n,8,1");
}

SerialPortConfig SerialPortConfig::MSComm2() {
    return make(kMSComm2BuiltInPort, "9600,n,8,1");
}

SerialPortConfig SerialPortConfig::port() {
    return make(3, "2400,n,8,1");
}

SerialPortConfig SerialPortConfig::MSCommPec() {
    return make(1, "9600,n,8,1");
}

}  // namespace sandogh
