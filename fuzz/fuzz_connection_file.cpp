// Provider.txt: whatever lies in the program folder is read into a connection string,
// and the connection string into settings.

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include "FuzzInput.h"
#include "data/ConnectionFile.h"
#include "data/ConnectionSettings.h"

using namespace sandogh;

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    static QTemporaryDir folder;
    {
        QFile file(QDir(folder.path()).filePath(QString::fromLatin1(ConnectionFile::kFileName)));
        if (!file.open(QIODevice::WriteOnly | QIODevice::Truncate)) {
            return 0;
        }
        file.write(fuzz::bytes(data, size));
    }
    for (const QString& year : {QString(), QStringLiteral("Shop1405")}) {
        ConnectionFile connection(folder.path(), nullptr);
        if (connection.LoadPrimary(year)) {
            ConnectionSettings settings;
            QString error;
            (void)ConnectionSettings::parse(connection.connectionString(), folder.path(), settings,
                                            &error);
        }
    }
    ConnectionSettings settings;
    QString error;
    (void)ConnectionSettings::parsePairs(fuzz::text(data, size));
    (void)ConnectionSettings::parse(fuzz::text(data, size), folder.path(), settings, &error);
    return 0;
}
