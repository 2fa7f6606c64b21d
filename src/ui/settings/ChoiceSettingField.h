#pragma once

#include <QList>

#include "settings/SettingsCatalogue.h"
#include "ui/settings/SettingField.h"

class QComboBox;

namespace sandogh {

// A setting that takes one of a few values, chosen by caption in a list. A kept value that
// is none of them (an older text, a colour set elsewhere) is listed as it stands, so that
// loading and saving the screen never changes it.
class ChoiceSettingField final : public SettingField {
public:
    ChoiceSettingField(const SettingDescriptor& row, QList<SettingsCatalogue::Choice> choices,
                       SettingsStore& store, QWidget* parent);

    QString label() const override { return m_row.captionText(); }
    QWidget* editor() const override;
    void load() override;
    bool isChanged() const override;
    bool save() override;

private:
    QString chosen() const;

    SettingDescriptor m_row;
    QList<SettingsCatalogue::Choice> m_choices;
    SettingsStore& m_store;
    QComboBox* m_combo;
    QString m_loaded;
};

}  // namespace sandogh
