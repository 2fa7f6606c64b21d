#include "settings/QSettingsStore.h"

#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>
#include <QStringList>
#include <QVariant>

namespace sandogh {

namespace {

constexpr auto Insensitive = Qt::CaseInsensitive;

// The registry place the older program kept its settings in.
QString registryPath(const QString& application) {
    return QStringLiteral("HKEY_CURRENT_USER\\Software\\VB and VBA Program Settings\\") +
           application;
}

QString iniFileName(const QString& application) {
    return application + QStringLiteral(".ini");
}

}  // namespace

QString QSettingsStore::defaultIniPath(const QString& application) {
    const QString overridePath = qEnvironmentVariable(EnvironmentVariable);
    if (!overridePath.isEmpty()) {
        if (!overridePath.endsWith(QStringLiteral(".ini"), Insensitive)) {
            return QDir(overridePath).filePath(iniFileName(application));
        }
        if (application.compare(QStringLiteral("Retail"), Insensitive) == 0) {
            return overridePath;
        }
        return QFileInfo(overridePath).dir().filePath(iniFileName(application));
    }
#ifdef Q_OS_WIN
    return {};
#else
    const QString folder = QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation);
    return QDir(folder).filePath(QStringLiteral("sandogh/") + iniFileName(application));
#endif
}

QSettingsStore::QSettingsStore(const QString& application, const QString& iniPath)
    : m_application(application) {
    const QString path = iniPath.isEmpty() ? defaultIniPath(application) : iniPath;
    if (path.isEmpty()) {
        m_settings =
            std::make_unique<QSettings>(registryPath(application), QSettings::NativeFormat);
    } else {
        m_settings = std::make_unique<QSettings>(path, QSettings::IniFormat);
    }
    m_settings->setFallbacksEnabled(false);
}

QSettingsStore::~QSettingsStore() = default;

QString QSettingsStore::location() const {
    return m_settings->fileName();
}

bool QSettingsStore::isIniFile() const {
    return m_settings->format() == QSettings::IniFormat;
}

QStringList QSettingsStore::matches(const QString& section, const QString& key) const {
    QStringList found;
    const QString exact = section + u'/' + key;
    const QStringList kept = m_settings->allKeys();
    for (const QString& path : kept) {
        const qsizetype slash = path.indexOf(u'/');
        if (slash <= 0 || path.indexOf(u'/', slash + 1) >= 0) {
            continue;
        }
        const QStringView group = QStringView(path).left(slash);
        const QStringView name = QStringView(path).mid(slash + 1);
        if (group.compare(section, Insensitive) != 0 || name.compare(key, Insensitive) != 0) {
            continue;
        }
        if (path == exact) {
            found.prepend(path);
        } else {
            found.append(path);
        }
    }
    return found;
}

QString QSettingsStore::keptSection(const QString& section) const {
    const QStringList groups = m_settings->childGroups();
    if (groups.contains(section)) {
        return section;
    }
    for (const QString& group : groups) {
        if (group.compare(section, Insensitive) == 0) {
            return group;
        }
    }
    return section;
}

QString QSettingsStore::read(const QString& section, const QString& key) const {
    if (!validName(section) || !validName(key)) {
        return {};
    }
    const QStringList found = matches(section, key);
    if (found.isEmpty()) {
        return {};
    }
    const QVariant value = m_settings->value(found.first());
    // An INI line edited by hand with an unquoted comma reads as a list; it was one text.
    if (value.typeId() == QMetaType::QStringList) {
        return value.toStringList().join(u',');
    }
    return value.toString();
}

bool QSettingsStore::write(const QString& section, const QString& key, const QString& text) {
    if (!validName(section) || !validName(key)) {
        return false;
    }
    QStringList found = matches(section, key);
    const QString target = found.isEmpty() ? keptSection(section) + u'/' + key : found.takeFirst();
    m_settings->setValue(target, text);
    for (const QString& other : std::as_const(found)) {
        m_settings->remove(other);
    }
    return flush();
}

bool QSettingsStore::remove(const QString& section, const QString& key) {
    if (!validName(section) || !validName(key)) {
        return false;
    }
    const QStringList found = matches(section, key);
    for (const QString& path : found) {
        m_settings->remove(path);
    }
    return flush();
}

void QSettingsStore::beginBatch() {
    ++m_batchDepth;
}

bool QSettingsStore::endBatch() {
    if (m_batchDepth > 0) {
        --m_batchDepth;
    }
    return flush();
}

bool QSettingsStore::flush() {
    if (m_batchDepth > 0) {
        return true;
    }
    m_settings->sync();
    return m_settings->status() == QSettings::NoError;
}

}  // namespace sandogh
