#pragma once

#include <QWidget>

#include "data/repositories/DocumentFamily.h"

class QComboBox;
class QLineEdit;
class QPushButton;

namespace sandogh {

class AppContext;

// Deletes one saved document given its kind (cmbType: the four kind names), number (txtNo)
// and date (txtDate, today at first), through SaleDelete. Made for the internal family it
// is frmDeleteFactorInternal: an internal sale or return found by kind and number alone
// (no date), deleted with its lines and its stock repaired.
class frmDeleteFactor : public QWidget {
    Q_OBJECT

public:
    explicit frmDeleteFactor(AppContext& context, QWidget* parent = nullptr);
    frmDeleteFactor(AppContext& context, DocumentFamily family, QWidget* parent = nullptr);

    // True when the document was deleted.
    bool cmdDelete_Click();

private:
    AppContext& m_context;
    DocumentFamily m_family;
    QComboBox* cmbType;
    QLineEdit* txtNo;
    QLineEdit* txtDate;
    QPushButton* cmdDelete;
};

}  // namespace sandogh
