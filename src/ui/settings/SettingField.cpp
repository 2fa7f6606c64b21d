#include "ui/settings/SettingField.h"

#include "settings/SettingReaders.h"
#include "settings/SettingsStore.h"

namespace sandogh {

QString SettingField::controlName(const SettingDescriptor& row) {
    return row.section() + u'/' + row.name();
}

QString SettingField::keptOrDefault(const SettingsStore& store, const SettingDescriptor& row) {
    return SettingReaders::orDefault(store.read(row.section(), row.name()), row.defaultText());
}

bool SettingField::write(SettingsStore& store, const SettingDescriptor& row, const QString& text) {
    return store.write(row.section(), row.name(), text);
}

}  // namespace sandogh
