#include "ui/settings/ChoiceSettingField.h"

#include <QComboBox>
#include <utility>

namespace sandogh {

ChoiceSettingField::ChoiceSettingField(const SettingDescriptor& row,
                                       QList<SettingsCatalogue::Choice> choices,
                                       SettingsStore& store, QWidget* parent)
    : row_(row), choices_(std::move(choices)), store_(store), combo_(new QComboBox(parent)) {
    combo_->setObjectName(controlName(row));
}

QWidget* ChoiceSettingField::editor() const {
    return combo_;
}

void ChoiceSettingField::load() {
    loaded_ = keptOrDefault(store_, row_).trimmed();
    combo_->clear();
    int current = -1;
    for (const SettingsCatalogue::Choice& c : choices_) {
        if (c.value.compare(loaded_, Qt::CaseInsensitive) == 0) {
            current = combo_->count();
        }
        combo_->addItem(c.caption, c.value);
    }
    if (current < 0) {
        current = combo_->count();
        combo_->addItem(loaded_.isEmpty() ? QStringLiteral("(خالی)") : loaded_, loaded_);
    }
    combo_->setCurrentIndex(current);
}

QString ChoiceSettingField::chosen() const {
    return combo_->currentData().toString();
}

bool ChoiceSettingField::isChanged() const {
    return chosen().compare(loaded_, Qt::CaseInsensitive) != 0;
}

bool ChoiceSettingField::save() {
    if (!isChanged()) {
        return true;
    }
    return write(store_, row_, chosen());
}

}  // namespace sandogh
