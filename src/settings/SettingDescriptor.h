#pragma once

#include <QString>

#include "settings/SettingGroup.h"
#include "settings/SettingKey.h"

namespace sandogh {

// One row of the settings catalogue: the key, its caption on the settings screen and the
// page it sits on.
struct SettingDescriptor {
    SettingKey key;
    const char* caption;  // UTF-8, Persian
    SettingGroup group;

    QString captionText() const { return QString::fromUtf8(caption); }
    QString application() const { return QString::fromLatin1(key.application); }
    QString section() const { return QString::fromLatin1(key.section); }
    QString name() const { return QString::fromLatin1(key.key); }
    QString defaultText() const { return QString::fromLatin1(key.defaultText); }
};

}  // namespace sandogh
