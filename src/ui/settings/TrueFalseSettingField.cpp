#include "ui/settings/TrueFalseSettingField.h"

#include <QCheckBox>

namespace sandogh {

TrueFalseSettingField::TrueFalseSettingField(const SettingDescriptor& row, SettingsStore& store,
                                             QWidget* parent)
    : row_(row), store_(store), check_(new QCheckBox(row.captionText(), parent)) {
    check_->setObjectName(controlName(row));
}

QWidget* TrueFalseSettingField::editor() const {
    return check_;
}

void TrueFalseSettingField::load() {
    loaded_ =
        keptOrDefault(store_, row_).trimmed().compare(QLatin1String("True"), Qt::CaseInsensitive) ==
        0;
    check_->setChecked(loaded_);
}

bool TrueFalseSettingField::isChanged() const {
    return check_->isChecked() != loaded_;
}

bool TrueFalseSettingField::save() {
    if (!isChanged()) {
        return true;
    }
    return write(store_, row_,
                 check_->isChecked() ? QStringLiteral("True") : QStringLiteral("False"));
}

}  // namespace sandogh
