#include "DeviceConfigs.h"

namespace sandogh {

GeneralPortsConfig DeviceConfigs::generalPorts(const MachineSettings& settings) {
    GeneralPortsConfig c;
    c.portsActive = settings.generalPortsEnabled();
    c.portNo = c.portsActive ? settings.portNo() : 0;
    c.portNo2 = c.portsActive ? settings.portNo2() : 0;
    c.callerIdActive = settings.callerIdEnabled();
    c.callerIdModel = settings.callerIdModel();
    c.barcodeReaderModel = settings.barcodeReaderModel();
    c.displayLine = settings.displayLine();
    c.port1Device = settings.mscomm1Device();
    c.port2Device = settings.mscomm2Device();
    return c;
}

DisplayConfig DeviceConfigs::display(const MachineSettings& settings) {
    DisplayConfig c;
    c.enabled = settings.displayEnabled();
    c.kind = settings.displayLine();
    c.delay = settings.displayDelay();
    c.port = settings.displayPort();
    c.devicePath = settings.customerDisplayDevice();
    return c;
}

DrawerConfig DeviceConfigs::drawer(const MachineSettings& settings, const QString& programFolder) {
    DrawerConfig c;
    c.printerPortUsb = settings.text(settingkeys::PrinterPortUsb);
    c.programFolder = programFolder;
    c.drawerProgram = settings.drawerProgramPath(programFolder);
    return c;
}

PecConfig DeviceConfigs::pec(const MachineSettings& settings) {
    PecConfig c;
    c.commPort = settings.pecPort();
    c.devicePath = settings.pecDevice();
    return c;
}

WeightServiceConfig DeviceConfigs::weightService(const MachineSettings& settings) {
    WeightServiceConfig c;
    c.host = settings.weightServiceHost();
    return c;
}

ScaleExportConfig DeviceConfigs::scaleExport(const MachineSettings& settings) {
    ScaleExportConfig c;
    c.takin = settings.scaleTakinEnabled();
    c.mizan = settings.scaleMizanEnabled();
    c.sadr = settings.scaleSadrEnabled();
    return c;
}

}  // namespace sandogh
