#pragma once

#include <QList>
#include <QWidget>

#include "data/repositories/PartiesRepository.h"

class QCheckBox;
class QComboBox;
class QLineEdit;
class QPushButton;
class QStandardItemModel;
class QTableView;

namespace sandogh {

class Database;
class MessageService;
class frmParty;

// The customers (TypeNo 10) or the suppliers (TypeNo 11) by code, searched by code, name,
// family name or telephone; new and edit open frmParty. A party that documents or
// payments name is not deleted: it can be taken out of use instead.
class frmParties : public QWidget {
    Q_OBJECT

public:
    frmParties(Database& database, MessageService& messages, int typeNo, QWidget* parent = nullptr);

    int typeNo() const { return m_typeNo; }
    void reload();
    const QList<Party>& parties() const { return m_parties; }
    // The Counter of the row under the cursor; 0 without one.
    int currentCounter() const;
    bool selectCounter(int counter);

    // Opens the edit screen for a new party (counter 0) or an existing one.
    frmParty* openEditor(int counter);
    void deleteCurrent();

private:
    Database& m_database;
    MessageService& m_messages;
    int m_typeNo;
    PartiesRepository m_repository;
    QList<Party> m_parties;

    QLineEdit* txtSearch;
    QComboBox* cboSearchColumn;
    QCheckBox* chkOnlyActive;
    QTableView* grdParties;
    QStandardItemModel* m_model;
    QPushButton* cmdNew;
    QPushButton* cmdEdit;
    QPushButton* cmdDelete;
    QPushButton* cmdExit;
};

}  // namespace sandogh
