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

    QString label() const override { return m_comRow.captionText(); }
    QWidget* editor() const override;
    void load() override;
    bool isChanged() const override;
    bool save() override;

private:
    void showMappedDevice();
    bool deviceChanged() const;

    SettingDescriptor m_comRow;
    std::optional<SettingDescriptor> m_deviceRow;
    SettingsStore& m_store;
    QWidget* m_editor;
    QSpinBox* m_com;
    QLineEdit* m_device = nullptr;
    int m_loadedCom = 0;
    QString m_loadedDevice;
};

}  // namespace sandogh
