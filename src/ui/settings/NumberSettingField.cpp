#include "ui/settings/NumberSettingField.h"

#include "settings/SettingReaders.h"
#include "ui/widgets/AmountEdit.h"

namespace sandogh {

namespace {

constexpr int kEditWidth = 160;

}  // namespace

NumberSettingField::NumberSettingField(const SettingDescriptor& row, SettingsStore& store,
                                       QWidget* parent)
    : m_row(row), m_store(store), m_edit(new AmountEdit(parent)) {
    m_edit->setObjectName(controlName(row));
    m_edit->setDecimals(kDecimals);
    m_edit->setNegativeAllowed(true);
    m_edit->setMaximumWidth(kEditWidth);
}

QWidget* NumberSettingField::editor() const {
    return m_edit;
}

void NumberSettingField::load() {
    m_edit->setValue(SettingReaders::numericValue(keptOrDefault(m_store, m_row)));
    // What the box shows, which may be rounded to its decimals.
    m_loaded = m_edit->value();
}

bool NumberSettingField::isChanged() const {
    return m_edit->value() != m_loaded;
}

bool NumberSettingField::save() {
    if (!isChanged()) {
        return true;
    }
    return write(m_store, m_row, SettingReaders::numberText(m_edit->value()));
}

}  // namespace sandogh
