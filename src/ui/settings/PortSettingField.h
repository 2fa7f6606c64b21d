#pragma once

#include <optional>

#include "ui/settings/SettingField.h"

class QLineEdit;
class QSpinBox;

namespace sandogh {

// A serial port: its COM number (0: no device) and, for the ports the program opens itself,
// beside it the device path that replaces the COM mapping on this machine (a USB adapter, a
// pseudo-terminal). The path box shows the device the COM number maps to while it is
// empty. Each half is written only when changed.
class PortSettingField final : public SettingField {
public:
    static constexpr int kMaxComPort = 255;

    // deviceRow: the device path setting kept beside the COM number, if there is one.
    PortSettingField(const SettingDescriptor& comRow, const SettingDescriptor* deviceRow,
                     SettingsStore& store, QWidget* parent);

    QString label() const override { return comRow_.captionText(); }
    QWidget* editor() const override;
    void load() override;
    bool isChanged() const override;
    bool save() override;

private:
    void showMappedDevice();
    bool deviceChanged() const;

    SettingDescriptor comRow_;
    std::optional<SettingDescriptor> deviceRow_;
    SettingsStore& store_;
    QWidget* editor_;
    QSpinBox* com_;
    QLineEdit* device_ = nullptr;
    int loadedCom_ = 0;
    QString loadedDevice_;
};

}  // namespace sandogh
