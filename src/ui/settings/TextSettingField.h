#pragma once

#include "ui/settings/SettingField.h"

class QLineEdit;

namespace sandogh {

// A text setting in a line box; a changed text is written as typed.
class TextSettingField final : public SettingField {
public:
    TextSettingField(const SettingDescriptor& row, SettingsStore& store, QWidget* parent);

    QString label() const override { return m_row.captionText(); }
    QWidget* editor() const override;
    void load() override;
    bool isChanged() const override;
    bool save() override;

private:
    SettingDescriptor m_row;
    SettingsStore& m_store;
    QLineEdit* m_edit;
    QString m_loaded;
};

}  // namespace sandogh
