#pragma once

#include "settings/SettingsStore.h"

namespace sandogh {

// The settings of the branch transfer screens, kept under their own application name
// "Factortransfer" rather than "Retail". The store is not owned and should be one opened
// for that application.
class BranchTransferSettings {
public:
    explicit BranchTransferSettings(SettingsStore& store) : m_store(store) {}

    // "FC"/"ShowPrice": 1 or 2; 1 when nothing is kept.
    int showPrice() const;
    bool setShowPrice(int value);
    // "FC"/"Folder" trimmed: where RptFactors.txt goes away from Windows; empty when
    // nothing is kept.
    QString folder() const;

private:
    bool ownsStore() const;

    SettingsStore& m_store;
};

}  // namespace sandogh
