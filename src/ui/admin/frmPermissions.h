#pragma once

#include <QHash>
#include <QList>
#include <QString>
#include <QWidget>

#include "app/UsersService.h"

class QComboBox;
class QListWidget;
class QPushButton;

namespace sandogh {

class Database;
class MessageService;

// The permission list of a role or of one user: each permission with the menu commands it
// opens, ticked when allowed. The two roles come first in the chooser, then the users; a
// user's list starts as the role's. Permissions never taken away are shown ticked and fixed.
class frmPermissions : public QWidget {
    Q_OBJECT

public:
    // captions: what each permission opens, as the main window's menus name it.
    frmPermissions(Database& database, MessageService& messages,
                   QHash<Permission, QString> captions, QWidget* parent = nullptr);

    // Shows the list of the chooser's entry index (the roles, then the users).
    void choose(int index);
    void setAllowed(Permission permission, bool allowed);
    bool isAllowed(Permission permission) const;
    bool save();

private:
    struct Owner {
        PermissionLevel level;
        int userId;
    };

    MessageService& m_messages;
    UsersService m_service;
    QHash<Permission, QString> m_captions;
    QList<Owner> m_owners;

    QComboBox* cmbOwner;
    QListWidget* lstPermissions;
    QPushButton* cmdSave;
    QPushButton* cmdExit;
};

}  // namespace sandogh
