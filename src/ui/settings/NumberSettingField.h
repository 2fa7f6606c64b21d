#pragma once

#include "ui/settings/SettingField.h"

namespace sandogh {

class AmountEdit;

// A number (a count, an amount, a code) in an amount box with thousands separators.
// A changed number is written as the plain text that reads back as it ("250000", "1.5").
class NumberSettingField final : public SettingField {
public:
    static constexpr int kDecimals = 3;

    NumberSettingField(const SettingDescriptor& row, SettingsStore& store, QWidget* parent);

    QString label() const override { return m_row.captionText(); }
    QWidget* editor() const override;
    void load() override;
    bool isChanged() const override;
    bool save() override;

private:
    SettingDescriptor m_row;
    SettingsStore& m_store;
    AmountEdit* m_edit;
    double m_loaded = 0;
};

}  // namespace sandogh
