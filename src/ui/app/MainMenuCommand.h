#pragma once

#include <QKeySequence>
#include <QString>
#include <functional>

#include "app/Permission.h"

namespace sandogh {

class frmMain;

// The menus of the main window, in the order they stand on the menu bar.
enum class MainMenu { System, Sales, Goods, Customers, Purchases, Reports, Tools };

// One command of the main window's menus: the action's name (its objectName, "mnuSetUp"),
// its caption, the menu it sits in, the permission a user needs to see it, and what it does.
struct MainMenuCommand {
    QString name;
    QString caption;
    MainMenu menu = MainMenu::System;
    Permission permission = Permission::LeaveProgram;
    std::function<void(frmMain&)> run;
    QKeySequence shortcut = {};
};

}  // namespace sandogh
