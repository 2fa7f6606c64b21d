#pragma once

#include <QList>
#include <QWidget>

#include "app/UsersService.h"

class QCheckBox;
class QComboBox;
class QLineEdit;
class QListWidget;
class QPushButton;
class QTableWidget;

namespace sandogh {

class Database;
class MessageService;

// The shop's users (administrators only): the list above, the user under the cursor in the
// boxes below it: name, login name, role, active, the cash desks and warehouses the user may
// work at, and a new password (empty keeps the present one). New empties the boxes; save
// writes the user or shows why not; the last active administrator keeps the role.
class frmUsers : public QWidget {
    Q_OBJECT

public:
    frmUsers(Database& database, MessageService& messages, QWidget* parent = nullptr);

    void reload();
    const QList<UserRow>& users() const { return m_users; }
    bool selectUser(int id);
    void startNew();
    bool save();
    // Sets only the password of the user on screen from the password box.
    bool resetPassword();

private:
    void display(const UserRow& user);
    UserRow userOnScreen() const;

    MessageService& m_messages;
    UsersService m_service;
    QList<UserRow> m_users;
    QList<NamedCode> m_stations;
    QList<NamedCode> m_warehouses;
    int m_currentId = 0;

    QTableWidget* grdUsers;
    QLineEdit* txtName;
    QLineEdit* txtUserName;
    QComboBox* cmbLevel;
    QCheckBox* chkActive;
    QLineEdit* txtPassword;
    QListWidget* lstStations;
    QListWidget* lstWarehouses;
    QPushButton* cmdNew;
    QPushButton* cmdSave;
    QPushButton* cmdPassword;
    QPushButton* cmdExit;
};

}  // namespace sandogh
