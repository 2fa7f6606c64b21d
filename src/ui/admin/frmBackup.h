#pragma once

#include <QString>
#include <QWidget>

class QLineEdit;
class QPushButton;
class QLabel;

namespace sandogh {

class Database;
class MessageService;

// Backup and restore from the back office. The backup runs on a thread of its own while the
// screen stays live, and names the archive written. A restore asks first, is checked
// before the live shop is touched, and then ends the program (restored()), which must be
// started again on the restored shop.
class frmBackup : public QWidget {
    Q_OBJECT

public:
    frmBackup(Database& database, MessageService& messages, const QString& folder,
              QWidget* parent = nullptr);

    // Starts a backup into the archive box's file; finished() follows.
    void backUp();
    // Restores the archive box's file over the shop, after the question.
    bool restore();
    bool isBusy() const { return m_busy; }

signals:
    void finished(bool ok);
    void restored();

private:
    Database& m_database;
    MessageService& m_messages;
    bool m_busy = false;

    QLineEdit* txtArchive;
    QLabel* lblState;
    QPushButton* cmdBackup;
    QPushButton* cmdRestore;
    QPushButton* cmdExit;
};

}  // namespace sandogh
