#include "ui/settings/FlagSettingField.h"

#include <QCheckBox>

#include "settings/SettingReaders.h"

namespace sandogh {

FlagSettingField::FlagSettingField(const SettingDescriptor& row, SettingsStore& store,
                                   QWidget* parent)
    : row_(row), store_(store), check_(new QCheckBox(row.captionText(), parent)) {
    check_->setObjectName(controlName(row));
}

QWidget* FlagSettingField::editor() const {
    return check_;
}

void FlagSettingField::load() {
    loaded_ = SettingReaders::flagOn(keptOrDefault(store_, row_));
    check_->setChecked(loaded_);
}

bool FlagSettingField::isChanged() const {
    return check_->isChecked() != loaded_;
}

bool FlagSettingField::save() {
    if (!isChanged()) {
        return true;
    }
    return write(store_, row_, check_->isChecked() ? QStringLiteral("1") : QStringLiteral("0"));
}

}  // namespace sandogh
