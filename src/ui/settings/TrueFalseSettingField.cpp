#include "ui/settings/TrueFalseSettingField.h"

#include <QCheckBox>

namespace sandogh {

TrueFalseSettingField::TrueFalseSettingField(const SettingDescriptor& row, SettingsStore& store,
                                             QWidget* parent)
    : m_row(row), m_store(store), m_check(new QCheckBox(row.captionText(), parent)) {
    m_check->setObjectName(controlName(row));
}

QWidget* TrueFalseSettingField::editor() const {
    return m_check;
}

void TrueFalseSettingField::load() {
    m_loaded = keptOrDefault(m_store, m_row)
                   .trimmed()
                   .compare(QLatin1String("True"), Qt::CaseInsensitive) == 0;
    m_check->setChecked(m_loaded);
}

bool TrueFalseSettingField::isChanged() const {
    return m_check->isChecked() != m_loaded;
}

bool TrueFalseSettingField::save() {
    if (!isChanged()) {
        return true;
    }
    return write(m_store, m_row,
                 m_check->isChecked() ? QStringLiteral("True") : QStringLiteral("False"));
}

}  // namespace sandogh
