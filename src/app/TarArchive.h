#pragma once

#include <QList>
#include <QString>
#include <QStringList>

namespace sandogh {

// The container of a shop backup: a POSIX ustar file of plain members (no folders, no
// links), readable by any tar program ("tar -tf backup.sandogh"). Members are streamed from
// and to files, so that a large shop does not have to fit in memory.
class TarArchive {
public:
    struct Member {
        QString name;  // the member's name in the archive: a plain file name
        QString file;  // the file on disk it is read from
    };

    static bool write(const QString& archive, const QList<Member>& members, QString* error);
    // Extracts every member into folder (names without folders only); the names in order.
    static bool extract(const QString& archive, const QString& folder, QStringList* names,
                        QString* error);
};

}  // namespace sandogh
