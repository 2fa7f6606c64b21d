#pragma once

#include <QWidget>

#include "sales/ShiftService.h"

class QComboBox;
class QLabel;
class QPushButton;

namespace sandogh {

class Database;
class MessageService;

// The shift screen: the shift now active, the chooser cmbShift with every shift, and the
// button that makes the chosen one active. A switch that fails leaves the active shift
// as it was and says so.
class frmShift : public QWidget {
    Q_OBJECT

public:
    frmShift(Database& database, MessageService& messages, QWidget* parent = nullptr);

    // Reads the shifts again and puts the chooser on the active one.
    void reload();
    // Makes the chosen shift the active one; false when it did not change.
    bool cmdChange_Click();

private:
    ShiftService m_shifts;
    MessageService& m_messages;

    QLabel* lblActiveShift;
    QComboBox* cmbShift;
    QPushButton* cmdChange;
};

}  // namespace sandogh
