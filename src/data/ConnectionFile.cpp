#include "data/ConnectionFile.h"

#include <QDir>
#include <QFile>
#include <QTextStream>

#include "data/ErrorLog.h"

namespace sandogh {

namespace {

const QString kModule = QStringLiteral("MainModule");
const QString kRoutine = QStringLiteral("LoadPrimary");
const QString kSource = QStringLiteral("Sandogh.ConnectionFile");

// The four kinds of line, told apart by their first four characters. The value
// starts after the key and its equals sign ("Data Source=" is 12 characters).
struct LineKind {
    const char* prefix;
    int keyLength;
    bool isCatalog;
};
constexpr LineKind kLineKinds[] = {
    {"Data", 12, false},  // Data Source=
    {"Init", 16, true},   // Initial Catalog=
    {"User", 8, false},   // User ID=
    {"Pass", 9, false},   // Password=
};

}  // namespace

ConnectionFile::ConnectionFile(QString programDir, ErrorLog* log)
    : m_programDir(std::move(programDir)), m_log(log) {}

QString ConnectionFile::filePath() const {
    return QDir(m_programDir).filePath(QString::fromLatin1(kFileName));
}

bool ConnectionFile::fail(const AppError& error) {
    m_connectionString.clear();
    m_fileCatalog.clear();
    m_lastError = error;
    if (m_log != nullptr) {
        m_log->LogError(error, kModule, kRoutine);
    }
    return false;
}

bool ConnectionFile::LoadPrimary(const QString& currentDatabaseName) {
    m_connectionString.clear();
    m_fileCatalog.clear();
    m_lastError = {};

    QFile file(filePath());
    if (!file.open(QIODevice::ReadOnly)) {
        return fail(
            {QStringLiteral("53"), QStringLiteral("File not found: ") + filePath(), kSource});
    }
    QTextStream in(&file);
    QString assembled;
    QStringList catalogs;
    for (int n = 0; n < kLineCount; ++n) {
        if (in.atEnd()) {
            return fail({QStringLiteral("62"), QStringLiteral("Input past end of file"), kSource});
        }
        const QString line = in.readLine();
        assembled += line;
        for (const LineKind& kind : kLineKinds) {
            if (line.left(4).compare(QLatin1String(kind.prefix), Qt::CaseInsensitive) != 0) {
                continue;
            }
            // The value runs from after the key to before the line's last character.
            const qsizetype valueLength = line.size() - kind.keyLength - 1;
            if (valueLength < 0) {
                return fail({QStringLiteral("5"),
                             QStringLiteral("Invalid procedure call or argument: line %1 is "
                                            "shorter than its key")
                                 .arg(n + 1),
                             kSource});
            }
            if (kind.isCatalog) {
                catalogs << line.mid(kind.keyLength, valueLength);
            }
        }
    }

    // The fiscal year chosen on this machine replaces the file's catalog wherever it
    // occurs in the string, so the file itself never changes between years.
    const QString year = currentDatabaseName.trimmed();
    for (const QString& catalog : catalogs) {
        if (!year.isEmpty() && !catalog.isEmpty() &&
            year.compare(catalog, Qt::CaseInsensitive) != 0) {
            assembled.replace(catalog, year, Qt::CaseInsensitive);
        }
    }
    m_connectionString = assembled;
    m_fileCatalog = catalogs.isEmpty() ? QString() : catalogs.first();
    return true;
}

}  // namespace sandogh
