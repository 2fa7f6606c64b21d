#pragma once

#include <QHash>
#include <QList>
#include <QString>

#include "ui/app/MainMenuCommand.h"

namespace sandogh {

// Every command of the main window's menus, in menu order. A new screen is one more line
// in MainMenuCommands.cpp: its action name, caption, menu, permission and how it opens
// (child() for a child window of the main window, one instance at a time).
class MainMenuCommands {
public:
    static QList<MainMenuCommand> all();
    static QString menuCaption(MainMenu menu);
    static QList<MainMenu> menus();
    // What each permission opens: the captions of its commands, joined.
    static QHash<Permission, QString> permissionCaptions();
};

}  // namespace sandogh
