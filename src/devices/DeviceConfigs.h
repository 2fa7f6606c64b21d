#pragma once

#include <QString>

#include "DisplayConfig.h"
#include "DrawerConfig.h"
#include "GeneralPortsConfig.h"
#include "PecConfig.h"
#include "ScaleExportConfig.h"
#include "WeightServiceConfig.h"
#include "settings/MachineSettings.h"

namespace sandogh {

// The devices' configurations as this machine's settings give them.
class DeviceConfigs {
public:
    // With the general ports switched off the port numbers read as 0.
    static GeneralPortsConfig generalPorts(const MachineSettings& settings);
    // The greeting is the shop's (table Display), not a machine setting; it
    // keeps its default here.
    static DisplayConfig display(const MachineSettings& settings);
    static DrawerConfig drawer(const MachineSettings& settings, const QString& programFolder);
    static PecConfig pec(const MachineSettings& settings);
    static WeightServiceConfig weightService(const MachineSettings& settings);
    static ScaleExportConfig scaleExport(const MachineSettings& settings);
};

}  // namespace sandogh
