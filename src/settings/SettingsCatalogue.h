#pragma once

#include <vector>

#include <QList>
#include <QString>

#include "settings/SettingDescriptor.h"
#include "settings/SettingGroup.h"

namespace sandogh {

// Every per-machine setting with its form, default, caption and page, in the order the
// settings screen shows them.
class SettingsCatalogue {
public:
    static const std::vector<SettingDescriptor>& all();

    // The row of a key, names compared without regard to case; null when there is none.
    static const SettingDescriptor* find(const QString& application, const QString& section,
                                         const QString& key);

    // The rows of one page.
    static std::vector<SettingDescriptor> inGroup(SettingGroup group);

    // The title of a page on the settings screen.
    static QString groupCaption(SettingGroup group);

    // One value a setting may take and its caption.
    struct Choice {
        QString value;
        QString caption;
    };
    // The values of a setting that takes one of a few; empty for any other.
    static QList<Choice> choices(const SettingKey& key);
    // Whether the program writes the setting itself (who logged in last): not for hand editing.
    static bool writtenByProgram(const SettingKey& key);
};

}  // namespace sandogh
