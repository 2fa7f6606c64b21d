#pragma once

#include "ui/settings/SettingField.h"

class QCheckBox;

namespace sandogh {

// A flag as a check box carrying its caption: ticked when the kept text reads greater
// than 0. A changed tick is written as "1" or "0".
class FlagSettingField final : public SettingField {
public:
    FlagSettingField(const SettingDescriptor& row, SettingsStore& store, QWidget* parent);

    QString label() const override { return {}; }
    QWidget* editor() const override;
    void load() override;
    bool isChanged() const override;
    bool save() override;

private:
    SettingDescriptor m_row;
    SettingsStore& m_store;
    QCheckBox* m_check;
    bool m_loaded = false;
};

}  // namespace sandogh
