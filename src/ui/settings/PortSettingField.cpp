#include "ui/settings/PortSettingField.h"

#include <algorithm>

#include <QHBoxLayout>
#include <QLineEdit>
#include <QSpinBox>

#include "devices/SerialLine.h"
#include "settings/SettingReaders.h"

namespace sandogh {

PortSettingField::PortSettingField(const SettingDescriptor& comRow,
                                   const SettingDescriptor* deviceRow, SettingsStore& store,
                                   QWidget* parent)
    : comRow_(comRow), store_(store), editor_(new QWidget(parent)), com_(new QSpinBox(editor_)) {
    editor_->setObjectName(controlName(comRow) + QStringLiteral("/port"));
    auto* layout = new QHBoxLayout(editor_);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(com_);

    com_->setObjectName(controlName(comRow));
    com_->setRange(0, kMaxComPort);
    com_->setPrefix(QStringLiteral("COM"));
    // 0 means the device is not fitted.
    com_->setSpecialValueText(QStringLiteral("ندارد"));
    com_->setLayoutDirection(Qt::LeftToRight);
    com_->setMinimumWidth(110);
    if (!deviceRow) {
        layout->addStretch(1);
        return;
    }

    deviceRow_ = *deviceRow;
    device_ = new QLineEdit(editor_);
    device_->setObjectName(controlName(*deviceRow));
    device_->setLayoutDirection(Qt::LeftToRight);
    device_->setToolTip(deviceRow->captionText());
    layout->addWidget(device_, 1);
    QObject::connect(com_, &QSpinBox::valueChanged, device_, [this] { showMappedDevice(); });
}

QWidget* PortSettingField::editor() const {
    return editor_;
}

void PortSettingField::showMappedDevice() {
    if (!device_) {
        return;
    }
    device_->setPlaceholderText(SerialLine::deviceForComPort(com_->value()));
}

void PortSettingField::load() {
    const double number = SettingReaders::numericValue(keptOrDefault(store_, comRow_));
    com_->setValue(std::clamp(SettingReaders::toInteger(number), 0, kMaxComPort));
    loadedCom_ = com_->value();
    if (device_) {
        loadedDevice_ = keptOrDefault(store_, *deviceRow_);
        device_->setText(loadedDevice_);
        showMappedDevice();
    }
}

bool PortSettingField::deviceChanged() const {
    return device_ && device_->text() != loadedDevice_;
}

bool PortSettingField::isChanged() const {
    return com_->value() != loadedCom_ || deviceChanged();
}

bool PortSettingField::save() {
    bool kept = true;
    if (com_->value() != loadedCom_) {
        kept = write(store_, comRow_, QString::number(com_->value())) && kept;
    }
    if (deviceChanged()) {
        kept = write(store_, *deviceRow_, device_->text().trimmed()) && kept;
    }
    return kept;
}

}  // namespace sandogh
