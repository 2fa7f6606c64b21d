#pragma once

#include <QDialog>

#include "data/repositories/CodeLevelsRepository.h"

class QLineEdit;
class QPushButton;
class QSpinBox;

namespace sandogh {

class Database;
class MessageService;

// The edit form of one code level: its number (the next of its family for a new level),
// name, Latin name, digit count and order. Saving refuses an empty name and confirms
// with the saved notice.
class frmNewCodePara : public QDialog {
    Q_OBJECT

public:
    // level.counter 0: a new level of family; otherwise the level as the list read it.
    frmNewCodePara(Database& database, MessageService& messages,
                   CodeLevelsRepository::Family family, const CodeLevelsRepository::Level& level,
                   QWidget* parent = nullptr);

    const CodeLevelsRepository::Level& level() const { return m_level; }

    // Checks and writes the level; on success shows the notice, emits saved() and closes.
    bool save();

signals:
    void saved(int typeNo);

private:
    MessageService& m_messages;
    CodeLevelsRepository::Family m_family;
    CodeLevelsRepository m_repository;
    CodeLevelsRepository::Level m_level;

    QLineEdit* txtTypeNo;
    QLineEdit* txtName;
    QLineEdit* txtNameEnglish;
    QSpinBox* spnDigitQty;
    QSpinBox* spnParameterLevel;
    QPushButton* cmdSave;
    QPushButton* cmdCancel;
};

}  // namespace sandogh
