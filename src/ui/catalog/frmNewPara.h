#pragma once

#include <QDialog>
#include <QList>

#include "data/repositories/TypesRepository.h"

class QCheckBox;
class QGroupBox;
class QLineEdit;
class QPushButton;
class QVBoxLayout;

namespace sandogh {

class Database;
class MessageService;

// The edit form of one value of a parameter list: name, Latin name, code and note. For
// the values of a code level it also lists the values of the level above it, one tick
// box each (named chkParent and the parent's Counter) under the heading " Level:" and
// that level's name; the ticked ones are the parents the value is offered under. Saving runs the
// checks of the list (name, code, the level's digit count, a repeated code) and shows the first
// that fails.
class frmNewPara : public QDialog {
    Q_OBJECT

public:
    // counter 0: a new value of list typeNo; otherwise the value to edit.
    frmNewPara(Database& database, MessageService& messages, int typeNo, int counter,
               QWidget* parent = nullptr);

    int typeNo() const { return m_typeNo; }
    int counter() const { return m_value.counter; }
    // The list whose values are the parents of this list's values; 0 for none.
    int parentTypeNo() const { return m_parentTypeNo; }
    // The parents ticked now.
    QList<int> tickedParents() const;
    // Ticks or clears the box of a parent value; false when there is none.
    bool setParentTicked(int parentCounter, bool ticked);

    // Checks and writes the value; on success emits saved() and closes.
    bool save();

    // The list of the level above a code level, 0 when the level is the first of its family.
    static int parentListOf(int typeNo);

signals:
    void saved(int counter);

private:
    void loadParents();

    MessageService& m_messages;
    int m_typeNo;
    int m_parentTypeNo = 0;
    TypesRepository m_repository;
    TypesRepository::Value m_value;

    QLineEdit* txtName;
    QLineEdit* txtNameEng;
    QLineEdit* txtCode;
    QLineEdit* txtNote;
    QGroupBox* grpParents;
    QVBoxLayout* m_parentBoxes;
    QList<QCheckBox*> m_chkParents;
    QPushButton* cmdSave;
    QPushButton* cmdCancel;
};

}  // namespace sandogh
