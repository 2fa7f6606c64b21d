#pragma once

#include <QList>
#include <QWidget>

#include "data/repositories/CodeLevelsRepository.h"

class QComboBox;
class QLineEdit;
class QPushButton;
class QStandardItemModel;
class QTableView;

namespace sandogh {

class Database;
class MessageService;
class frmNewCodePara;
class frmParameters;

// The levels of one family of structured codes (goods: TypeNo above 300; accounts: below)
// with their number, "نام مشخصه", "نام لاتين مشخصه", digit count and order; a search
// by name or Latin name; new, edit and delete of a level, and the values of the level
// under the cursor (its parameter list).
class frmCodeParameters : public QWidget {
    Q_OBJECT

public:
    frmCodeParameters(Database& database, MessageService& messages,
                      CodeLevelsRepository::Family family, QWidget* parent = nullptr);

    CodeLevelsRepository::Family family() const { return m_family; }
    void reload();
    const QList<CodeLevelsRepository::Level>& levels() const { return m_levels; }
    // The level under the cursor; counter 0 without one.
    CodeLevelsRepository::Level currentLevel() const;
    bool selectTypeNo(int typeNo);

    // Opens the edit form for a new level (counter 0) or the level of a counter.
    frmNewCodePara* openEditor(int counter);
    // Opens the list of values of the level under the cursor.
    frmParameters* openValues();
    // Deletes the level under the cursor when it has no values, after the question.
    void deleteCurrent();

private:
    Database& m_database;
    MessageService& m_messages;
    CodeLevelsRepository::Family m_family;
    CodeLevelsRepository m_repository;
    QList<CodeLevelsRepository::Level> m_levels;

    QLineEdit* txtSearch;
    QComboBox* cboSearchColumn;
    QTableView* grdLevels;
    QStandardItemModel* m_model;
    QPushButton* cmdNew;
    QPushButton* cmdEdit;
    QPushButton* cmdDelete;
    QPushButton* cmdValues;
    QPushButton* cmdExit;
};

}  // namespace sandogh
