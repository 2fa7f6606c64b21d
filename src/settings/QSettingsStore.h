#pragma once

#include <memory>

#include <QSettings>
#include <QString>

#include "settings/SettingsStore.h"

namespace sandogh {

// The settings store of the program, over QSettings.
//
// Where the texts are kept, first match wins:
//  1. the INI file given to the constructor;
//  2. the environment variable SANDOGH_SETTINGS (several cash desks on one machine, tests):
//     a folder, holding "<application>.ini", or an INI file, which then holds "Retail" and
//     has the other applications' files beside it;
//  3. on Windows, the registry place of the older program,
//     HKEY_CURRENT_USER\Software\VB and VBA Program Settings\<application>, so that a desk
//     configured by it keeps its settings;
//  4. elsewhere, "sandogh/<application>.ini" in the user's configuration folder.
//
// INI files are case-sensitive on most platforms; this store looks names up without regard
// to case itself and writes to the spelling already kept, so one value never exists twice.
// Every write is flushed at once, unless a batch is open.
class QSettingsStore final : public SettingsStore {
public:
    static constexpr const char* EnvironmentVariable = "SANDOGH_SETTINGS";

    explicit QSettingsStore(const QString& application = QStringLiteral("Retail"),
                            const QString& iniPath = {});
    ~QSettingsStore() override;

    QSettingsStore(const QSettingsStore&) = delete;
    QSettingsStore& operator=(const QSettingsStore&) = delete;

    QString application() const override { return m_application; }
    QString read(const QString& section, const QString& key) const override;
    bool write(const QString& section, const QString& key, const QString& text) override;
    bool remove(const QString& section, const QString& key) override;
    void beginBatch() override;
    bool endBatch() override;

    // The INI file or registry path in use.
    QString location() const;
    bool isIniFile() const;

    // The INI file an application's settings go to when no path is given, or an empty
    // text when they go to the registry.
    static QString defaultIniPath(const QString& application);

private:
    // Every kept "group/key" that matches section and key ignoring case, the exact spelling
    // first.
    QStringList matches(const QString& section, const QString& key) const;
    // The spelling of the section already kept, or section itself.
    QString keptSection(const QString& section) const;
    // Writes the changes out unless a batch is open; false when they could not be kept.
    bool flush();

    QString m_application;
    std::unique_ptr<QSettings> m_settings;
    int m_batchDepth = 0;
};

}  // namespace sandogh
