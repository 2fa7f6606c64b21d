#pragma once

#include "ui/settings/SettingField.h"

class QCheckBox;

namespace sandogh {

// A switch kept as the words "True" and "False" (the cash drawer on the receipt printer):
// ticked when the kept text is "True" in any case. A changed tick is written as "True" or
// "False"; an untouched one keeps whatever spelling it had.
class TrueFalseSettingField final : public SettingField {
public:
    TrueFalseSettingField(const SettingDescriptor& row, SettingsStore& store, QWidget* parent);

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
