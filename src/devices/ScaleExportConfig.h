#pragma once

namespace sandogh {

// Which scale vendors' databases are fed with the goods (section "Scale").
struct ScaleExportConfig {
    bool takin = false;  // IsActiveTakin: OnlineSales, table Items
    bool mizan = false;  // IsActiveMizan: MizanNet, table MizanNetItem
    bool sadr = false;   // IsActiveSadr: Sadr, tables SADR_Item and SADR_KeyAssignment
};

}  // namespace sandogh
