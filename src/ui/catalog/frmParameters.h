#pragma once

#include <QList>
#include <QWidget>

#include "data/repositories/TypesRepository.h"

class QComboBox;
class QLineEdit;
class QPushButton;
class QStandardItemModel;
class QTableView;

namespace sandogh {

class Database;
class MessageService;
class frmNewPara;

// One list of the parameter table (units, a customer list, the values of a code level),
// opened for its TypeNo: the grid "کد", "نام", "نام لاتين", "توضيح" ordered by code, a
// search box narrowing it by the column chosen beside it, and new, edit and delete.
// New and edit open frmNewPara; a value is deleted only when nothing uses it.
class frmParameters : public QWidget {
    Q_OBJECT

public:
    // The database and message service are not owned and must outlive the screen.
    frmParameters(Database& database, MessageService& messages, int typeNo,
                  QWidget* parent = nullptr);

    int typeNo() const { return m_typeNo; }
    // Reads the list again with the search in force, keeping the row under the cursor.
    void reload();
    // The values shown, in grid order.
    const QList<TypesRepository::Value>& values() const { return m_values; }
    // The Counter of the row under the cursor; 0 without one.
    int currentCounter() const;
    // Moves the cursor to the row of a counter; false when the grid does not show it.
    bool selectCounter(int counter);

    // Opens the edit form for a new value (counter 0) or an existing one. The form is a
    // window of its own that closes itself; the list is read again after a save.
    frmNewPara* openEditor(int counter);
    // Deletes the row under the cursor after the checks and the question.
    void deleteCurrent();

private:
    TypesRepository::SearchColumn searchColumn() const;
    void fill();

    Database& m_database;
    MessageService& m_messages;
    int m_typeNo;
    TypesRepository m_repository;
    QList<TypesRepository::Value> m_values;

    QLineEdit* txtSearch;
    QComboBox* cboSearchColumn;
    QTableView* grdList;
    QStandardItemModel* m_model;
    QPushButton* cmdNew;
    QPushButton* cmdEdit;
    QPushButton* cmdDelete;
    QPushButton* cmdExit;
};

}  // namespace sandogh
