#include "settings/BranchTransferSettings.h"

#include "settings/SettingKeys.h"
#include "settings/SettingReaders.h"

namespace sandogh {

bool BranchTransferSettings::ownsStore() const {
    return m_store.application().compare(
               QString::fromLatin1(settingkeys::TransferShowPrice.application),
               Qt::CaseInsensitive) == 0;
}

int BranchTransferSettings::showPrice() const {
    const SettingKey& key = settingkeys::TransferShowPrice;
    const QString kept =
        ownsStore() ? m_store.read(QString::fromLatin1(key.section), QString::fromLatin1(key.key))
                    : QString();
    const QString text = SettingReaders::orDefault(kept, QString::fromLatin1(key.defaultText));
    return SettingReaders::toInteger(SettingReaders::numericValue(text));
}

QString BranchTransferSettings::folder() const {
    const SettingKey& key = settingkeys::TransferFolder;
    return ownsStore()
               ? m_store.read(QString::fromLatin1(key.section), QString::fromLatin1(key.key))
                     .trimmed()
               : QString();
}

bool BranchTransferSettings::setShowPrice(int value) {
    const SettingKey& key = settingkeys::TransferShowPrice;
    return ownsStore() && m_store.write(QString::fromLatin1(key.section),
                                        QString::fromLatin1(key.key), QString::number(value));
}

}  // namespace sandogh
