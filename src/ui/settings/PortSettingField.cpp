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
    : m_comRow(comRow)
    , m_store(store)
    , m_editor(new QWidget(parent))
    , m_com(new QSpinBox(m_editor)) {
    m_editor->setObjectName(controlName(comRow) + QStringLiteral("/port"));
    auto* layout = new QHBoxLayout(m_editor);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_com);

    m_com->setObjectName(controlName(comRow));
    m_com->setRange(0, kMaxComPort);
    m_com->setPrefix(QStringLiteral("COM"));
    // 0 means the device is not fitted.
    m_com->setSpecialValueText(QStringLiteral("ندارد"));
    m_com->setLayoutDirection(Qt::LeftToRight);
    m_com->setMinimumWidth(110);
    if (!deviceRow) {
        layout->addStretch(1);
        return;
    }

    m_deviceRow = *deviceRow;
    m_device = new QLineEdit(m_editor);
    m_device->setObjectName(controlName(*deviceRow));
    m_device->setLayoutDirection(Qt::LeftToRight);
    m_device->setToolTip(deviceRow->captionText());
    layout->addWidget(m_device, 1);
    QObject::connect(m_com, &QSpinBox::valueChanged, m_device, [this] { showMappedDevice(); });
}

QWidget* PortSettingField::editor() const {
    return m_editor;
}

void PortSettingField::showMappedDevice() {
    if (!m_device) {
        return;
    }
    m_device->setPlaceholderText(SerialLine::deviceForComPort(m_com->value()));
}

void PortSettingField::load() {
    const double number = SettingReaders::numericValue(keptOrDefault(m_store, m_comRow));
    m_com->setValue(std::clamp(SettingReaders::toInteger(number), 0, kMaxComPort));
    m_loadedCom = m_com->value();
    if (m_device) {
        m_loadedDevice = keptOrDefault(m_store, *m_deviceRow);
        m_device->setText(m_loadedDevice);
        showMappedDevice();
    }
}

bool PortSettingField::deviceChanged() const {
    return m_device && m_device->text() != m_loadedDevice;
}

bool PortSettingField::isChanged() const {
    return m_com->value() != m_loadedCom || deviceChanged();
}

bool PortSettingField::save() {
    bool kept = true;
    if (m_com->value() != m_loadedCom) {
        kept = write(m_store, m_comRow, QString::number(m_com->value())) && kept;
    }
    if (deviceChanged()) {
        kept = write(m_store, *m_deviceRow, m_device->text().trimmed()) && kept;
    }
    return kept;
}

}  // namespace sandogh
