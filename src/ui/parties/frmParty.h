#pragma once

#include <QDialog>

#include "data/repositories/PartiesRepository.h"

class QCheckBox;
class QComboBox;
class QLabel;
class QLineEdit;
class QPushButton;

namespace sandogh {

class AmountEdit;
class Database;
class JalaliDateEdit;
class MessageService;

// The edit screen of one customer (TypeNo 10) or supplier (TypeNo 11): code (a new party
// takes the next code of the run both kinds share), name, family name, telephones,
// e-mail, address, birthday, customer group, ledger, credit and the active flag.
class frmParty : public QDialog {
    Q_OBJECT

public:
    // counter 0: a new party of kind typeNo; otherwise the party to edit.
    frmParty(Database& database, MessageService& messages, int typeNo, int counter = 0,
             QWidget* parent = nullptr);

    // The party as the screen shows it now.
    Party party() const;
    // Checks and writes the party; shows the outcome. On success emits saved() and closes.
    bool save();

signals:
    void saved(int counter);

private:
    void fillChoices();
    void display(const Party& party);

    MessageService& m_messages;
    PartiesRepository m_repository;
    Party m_party;

    QLineEdit* txtCode;
    QLineEdit* txtName;
    QLineEdit* txtFamily;
    QLineEdit* txtTel;
    QLineEdit* txtMobile;
    QLineEdit* txtEmail;
    QLineEdit* txtAddress;
    JalaliDateEdit* txtBirthday;
    QComboBox* cboGroup;
    QComboBox* cboAccountingGroup;
    AmountEdit* txtCredit;
    QCheckBox* chkActive;
    QPushButton* cmdSave;
    QPushButton* cmdCancel;
};

}  // namespace sandogh
