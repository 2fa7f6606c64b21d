#pragma once

#include <QList>
#include <QString>
#include <optional>

#include "data/repositories/CenterBranch.h"
#include "data/repositories/InternalTransferRepository.h"

namespace sandogh {

class Database;
class MessageService;
class BranchTransferSettings;

// Sending internal sale invoices to a branch (frmTransFactor) without its widgets: the
// branches, the invoices of one with their state, and the ticked ones written to
// RptFactors.txt and marked sent in one transaction under the desks' lock. The file is
// replaced whole only when everything was read and marked; a failure leaves neither file
// nor mark.
class InternalSend {
public:
    enum class Outcome { Sent, NothingTicked, Failed };

    static QString fileName();
    static QString noBranchesText();
    static QString sentText();
    static QString notSentText();
    static QString nothingTickedText();
    static QString doneText();
    static QString folderFailedText();

    // The folder of the file: C:\Velbari on Windows; elsewhere the "Folder" setting, or
    // Velbari in the user's home when none is kept.
    static QString folder(const BranchTransferSettings* settings);

    // How this shop is named in the files it sends: its Company_Name, or kUnnamedShop.
    static constexpr const char* kUnnamedShop = "sandogh";
    static QString shopId(Database& database);

    InternalSend(Database& database, MessageService& messages);

    // The branches (TypeNo 2); the message when there is none, nothing when the statement
    // failed.
    std::optional<QList<CenterBranch>> branches();
    QList<InternalTransferRepository::Invoice> invoices(int branchId);

    // Writes the ticked invoices of the branch to the file at path (its folder made when
    // missing) and marks them sent. shopId names this shop in the file.
    Outcome send(int branchId, const QList<qint64>& ticked, const QString& path,
                 const QString& shopId);
    // The file in the folder of folder().
    static QString pathIn(const QString& folder);
    // The file the last successful send wrote.
    const QString& writtenFile() const { return m_writtenFile; }

private:
    Database& m_database;
    MessageService& m_messages;
    QString m_writtenFile;
};

}  // namespace sandogh
