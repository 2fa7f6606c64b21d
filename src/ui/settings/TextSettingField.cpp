#include "ui/settings/TextSettingField.h"

#include <QLineEdit>

namespace sandogh {

TextSettingField::TextSettingField(const SettingDescriptor& row, SettingsStore& store,
                                   QWidget* parent)
    : m_row(row), m_store(store), m_edit(new QLineEdit(parent)) {
    m_edit->setObjectName(controlName(row));
}

QWidget* TextSettingField::editor() const {
    return m_edit;
}

void TextSettingField::load() {
    m_loaded = keptOrDefault(m_store, m_row);
    m_edit->setText(m_loaded);
    m_edit->setCursorPosition(0);
}

bool TextSettingField::isChanged() const {
    return m_edit->text() != m_loaded;
}

bool TextSettingField::save() {
    if (!isChanged()) {
        return true;
    }
    return write(m_store, m_row, m_edit->text());
}

}  // namespace sandogh
