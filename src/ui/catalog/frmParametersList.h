#pragma once

#include <QDialog>
#include <QList>

#include "data/repositories/TypesRepository.h"

class QComboBox;
class QLineEdit;
class QPushButton;
class QStandardItemModel;
class QTableView;

namespace sandogh {

class Database;
class MessageService;

// The picker of a parameter list: the values of one TypeNo with the columns "کد" and
// "نام". Opened under a parent value it offers only the values linked under that parent,
// or the whole list when the parent has no linked values at all. The search box narrows
// by code or name. Confirming (OK, Enter or a double click) hands the chosen value's
// Counter, code and name back through chosen() and closes.
class frmParametersList : public QDialog {
    Q_OBJECT

public:
    frmParametersList(Database& database, MessageService& messages, int typeNo,
                      int parentCounter = 0, QWidget* parent = nullptr);

    int typeNo() const { return m_typeNo; }
    int parentCounter() const { return m_parentCounter; }
    const QList<TypesRepository::Value>& values() const { return m_values; }
    // Moves the cursor to the row of a counter; false when the grid does not show it.
    bool selectCounter(int counter);
    // The value confirmed, or the row under the cursor before that; counter 0 for none.
    TypesRepository::Value current() const;

    // Hands the row under the cursor back and closes; false without one.
    bool confirm();

signals:
    void chosen(const sandogh::TypesRepository::Value& value);

private:
    void reload();

    int m_typeNo;
    int m_parentCounter;
    TypesRepository m_repository;
    QList<TypesRepository::Value> m_values;

    QLineEdit* txtSearch;
    QComboBox* cboSearchColumn;
    QTableView* grdList;
    QStandardItemModel* m_model;
    QPushButton* cmdOk;
    QPushButton* cmdCancel;
};

}  // namespace sandogh
