#include "ui/settings/ChoiceSettingField.h"

#include <QComboBox>
#include <utility>

namespace sandogh {

ChoiceSettingField::ChoiceSettingField(const SettingDescriptor& row,
                                       QList<SettingsCatalogue::Choice> choices,
                                       SettingsStore& store, QWidget* parent)
    : m_row(row), m_choices(std::move(choices)), m_store(store), m_combo(new QComboBox(parent)) {
    m_combo->setObjectName(controlName(row));
}

QWidget* ChoiceSettingField::editor() const {
    return m_combo;
}

void ChoiceSettingField::load() {
    m_loaded = keptOrDefault(m_store, m_row).trimmed();
    m_combo->clear();
    int current = -1;
    for (const SettingsCatalogue::Choice& c : m_choices) {
        if (c.value.compare(m_loaded, Qt::CaseInsensitive) == 0) {
            current = m_combo->count();
        }
        m_combo->addItem(c.caption, c.value);
    }
    if (current < 0) {
        current = m_combo->count();
        m_combo->addItem(m_loaded.isEmpty() ? QStringLiteral("(خالی)") : m_loaded, m_loaded);
    }
    m_combo->setCurrentIndex(current);
}

QString ChoiceSettingField::chosen() const {
    return m_combo->currentData().toString();
}

bool ChoiceSettingField::isChanged() const {
    return chosen().compare(m_loaded, Qt::CaseInsensitive) != 0;
}

bool ChoiceSettingField::save() {
    if (!isChanged()) {
        return true;
    }
    return write(m_store, m_row, chosen());
}

}  // namespace sandogh
