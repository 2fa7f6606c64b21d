#pragma once

#include <QString>

#include "settings/SettingDescriptor.h"

class QWidget;

namespace sandogh {

class SettingsStore;

// One row of the settings screen: the editor of one setting (or of a pair that belongs
// together, such as a COM number and its device path), what it showed when it was loaded,
// and the writes that bring the store in line with what it shows now. Only what the person
// changed is written, so a kept text that reads the same (a flag kept as "2") stays as it is.
class SettingField {
public:
    virtual ~SettingField() = default;

    // The caption shown beside the editor; empty when the editor carries it itself.
    virtual QString label() const = 0;
    virtual QWidget* editor() const = 0;

    // Shows what the store keeps, or the default; what is shown becomes the unchanged state.
    virtual void load() = 0;
    virtual bool isChanged() const = 0;
    // Writes what was changed; false when the store refused a write.
    virtual bool save() = 0;

    // The object name of the editor of a setting: "Section/Key" as the catalogue spells it.
    static QString controlName(const SettingDescriptor& row);

protected:
    // The kept text, or the default when nothing (or only blanks) is kept.
    static QString keptOrDefault(const SettingsStore& store, const SettingDescriptor& row);
    static bool write(SettingsStore& store, const SettingDescriptor& row, const QString& text);
};

}  // namespace sandogh
