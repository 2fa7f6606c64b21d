#include "ui/settings/NumberSettingField.h"

#include "settings/SettingReaders.h"
#include "ui/widgets/AmountEdit.h"

namespace sandogh {

namespace {

constexpr int kEditWidth = 160;

}  // namespace

NumberSettingField::NumberSettingField(const SettingDescriptor& row, SettingsStore& store,
                                       QWidget* parent)
    : row_(row), store_(store), edit_(new AmountEdit(parent)) {
    edit_->setObjectName(controlName(row));
    edit_->setDecimals(kDecimals);
    edit_->setNegativeAllowed(true);
    edit_->setMaximumWidth(kEditWidth);
}

QWidget* NumberSettingField::editor() const {
    return edit_;
}

void NumberSettingField::load() {
    edit_->setValue(SettingReaders::numericValue(keptOrDefault(store_, row_)));
    // What the box shows, which may be rounded to its decimals.
    loaded_ = edit_->value();
}

bool NumberSettingField::isChanged() const {
    return edit_->value() != loaded_;
}

bool NumberSettingField::save() {
    if (!isChanged()) {
        return true;
    }
    return write(store_, row_, SettingReaders::numberText(edit_->value()));
}

}  // namespace sandogh
