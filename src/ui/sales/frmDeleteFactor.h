#pragma once

#include <QWidget>

class QComboBox;
class QLineEdit;
class QPushButton;

namespace sandogh {

class AppContext;

// Deletes one saved document given its kind (cmbType: the four kind names), number (txtNo)
// and date (txtDate, today at first), through SaleDelete.
class frmDeleteFactor : public QWidget {
    Q_OBJECT

public:
    explicit frmDeleteFactor(AppContext& context, QWidget* parent = nullptr);

    // True when the document was deleted.
    bool cmdDelete_Click();

private:
    AppContext& m_context;
    QComboBox* cmbType;
    QLineEdit* txtNo;
    QLineEdit* txtDate;
    QPushButton* cmdDelete;
};

}  // namespace sandogh
