#include "ui/settings/FlagSettingField.h"

#include <QCheckBox>

#include "settings/SettingReaders.h"

namespace sandogh {

FlagSettingField::FlagSettingField(const SettingDescriptor& row, SettingsStore& store,
                                   QWidget* parent)
    : m_row(row), m_store(store), m_check(new QCheckBox(row.captionText(), parent)) {
    m_check->setObjectName(controlName(row));
}

QWidget* FlagSettingField::editor() const {
    return m_check;
}

void FlagSettingField::load() {
    m_loaded = SettingReaders::flagOn(keptOrDefault(m_store, m_row));
    m_check->setChecked(m_loaded);
}

bool FlagSettingField::isChanged() const {
    return m_check->isChecked() != m_loaded;
}

bool FlagSettingField::save() {
    if (!isChanged()) {
        return true;
    }
    return write(m_store, m_row, m_check->isChecked() ? QStringLiteral("1") : QStringLiteral("0"));
}

}  // namespace sandogh
