#include "settings/MachineSettings.h"

#include <QDir>
#include <QLatin1String>

#include "settings/SettingReaders.h"

namespace sandogh {

namespace {

QString latin(const char* text) {
    return QString::fromLatin1(text);
}

// A program path of the settings: absolute as it stands, relative to the program folder
// otherwise. Backslashes of paths written on Windows are taken as separators.
QString programPath(const QString& setting, const QString& programFolder) {
    if (setting.isEmpty()) {
        return {};
    }
    QString path = setting;
    path.replace(u'\\', u'/');
    if (QDir::isAbsolutePath(path)) {
        return QDir::cleanPath(path);
    }
    return QDir::cleanPath(QDir(programFolder).filePath(path));
}

}  // namespace

bool MachineSettings::ownsKey(const SettingKey& key) const {
    return m_store.application().compare(latin(key.application), Qt::CaseInsensitive) == 0;
}

QString MachineSettings::rawText(const SettingKey& key) const {
    const QString kept =
        ownsKey(key) ? m_store.read(latin(key.section), latin(key.key)) : QString();
    return SettingReaders::orDefault(kept, latin(key.defaultText));
}

QString MachineSettings::text(const SettingKey& key) const {
    return rawText(key).trimmed();
}

bool MachineSettings::flag(const SettingKey& key) const {
    return SettingReaders::flagOn(rawText(key));
}

double MachineSettings::number(const SettingKey& key) const {
    return SettingReaders::numericValue(rawText(key));
}

int MachineSettings::integer(const SettingKey& key) const {
    return SettingReaders::toInteger(number(key));
}

bool MachineSettings::write(const SettingKey& key, const QString& text) {
    return ownsKey(key) && m_store.write(latin(key.section), latin(key.key), text);
}

bool MachineSettings::setFlag(const SettingKey& key, bool on) {
    return write(key, on ? QStringLiteral("1") : QStringLiteral("0"));
}

bool MachineSettings::setNumber(const SettingKey& key, double value) {
    return write(key, SettingReaders::numberText(value));
}

bool MachineSettings::reset(const SettingKey& key) {
    return ownsKey(key) && m_store.remove(latin(key.section), latin(key.key));
}

bool MachineSettings::setUserInfo(int id, const QString& loginName, const QString& displayName) {
    m_store.beginBatch();
    const bool idKept = setNumber(settingkeys::UserId, id);
    const bool nameKept = write(settingkeys::UserName, loginName);
    const bool displayKept = write(settingkeys::UserDisplayName, displayName);
    const bool flushed = m_store.endBatch();
    return idKept && nameKept && displayKept && flushed;
}

bool MachineSettings::printerPortUsb() const {
    return text(settingkeys::PrinterPortUsb).compare(QLatin1String("True"), Qt::CaseInsensitive) ==
           0;
}

bool MachineSettings::setPrinterPortUsb(bool onPrinter) {
    return write(settingkeys::PrinterPortUsb,
                 onPrinter ? QStringLiteral("True") : QStringLiteral("False"));
}

QString MachineSettings::drawerProgramPath(const QString& programFolder) const {
    return programPath(drawerProgram(), programFolder);
}

ReceiptOutput MachineSettings::receiptOutput() const {
    return receiptOutputFromText(text(settingkeys::ReceiptOutputKind));
}

bool MachineSettings::setReceiptOutput(ReceiptOutput output) {
    return write(settingkeys::ReceiptOutputKind, receiptOutputText(output));
}

QString MachineSettings::companionProgramPath(const QString& programFolder) const {
    return programPath(companionProgram(), programFolder);
}

}  // namespace sandogh
