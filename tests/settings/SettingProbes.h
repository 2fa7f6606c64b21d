#pragma once

#include <functional>
#include <optional>
#include <vector>

#include <QString>

#include "settings/MachineSettings.h"
#include "settings/SettingKey.h"

namespace sandogh::testing {

// One typed accessor of MachineSettings, tied to the key it should read. The result is
// shown as text so that all accessors fit one table: flags as "on"/"off", numbers in the
// shortest plain form, texts as they are.
struct SettingProbe {
    const SettingKey* key;
    const char* accessor;
    std::function<QString(const MachineSettings&)> read;
    std::optional<QString> shownDefault;  // when the accessor shows its default otherwise
};

// Every key of the Retail application with its accessor.
const std::vector<SettingProbe>& settingProbes();

// What the accessor of a key shows when nothing is kept.
QString expectedDefault(const SettingProbe& probe);

}  // namespace sandogh::testing
