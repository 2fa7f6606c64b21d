#include "ui/settings/TextSettingField.h"

#include <QLineEdit>

namespace sandogh {

TextSettingField::TextSettingField(const SettingDescriptor& row, SettingsStore& store,
                                   QWidget* parent)
    : row_(row), store_(store), edit_(new QLineEdit(parent)) {
    edit_->setObjectName(controlName(row));
}

QWidget* TextSettingField::editor() const {
    return edit_;
}

void TextSettingField::load() {
    loaded_ = keptOrDefault(store_, row_);
    edit_->setText(loaded_);
    edit_->setCursorPosition(0);
}

bool TextSettingField::isChanged() const {
    return edit_->text() != loaded_;
}

bool TextSettingField::save() {
    if (!isChanged()) {
        return true;
    }
    return write(store_, row_, edit_->text());
}

}  // namespace sandogh
