#pragma once

#include <QWidget>

#include "data/repositories/DocumentFamily.h"

class QComboBox;
class QLabel;
class QLineEdit;
class QPushButton;

namespace sandogh {

class AppContext;

// Reprints one saved document: the kind (cmbType), the number (txtNo, the last one of the
// kind at this cash desk proposed) and, when that number occurs more than once, the date
// (txtDate, shown then). The receipt goes through the receipt path titled "چاپ مجدد".
// Made for the internal family it is frmRePrintInter: internal sales and returns, the
// branch printed as the party.
class frmRePrint : public QWidget {
    Q_OBJECT

public:
    explicit frmRePrint(AppContext& context, QWidget* parent = nullptr);
    frmRePrint(AppContext& context, DocumentFamily family, QWidget* parent = nullptr);

    // Proposes the last number of the chosen kind at this desk.
    void proposeNumber();
    // True when the receipt was printed; false when the date is still needed (the date box
    // is then shown), the document is missing, or nothing printed.
    bool cmdPrint_Click();

private:
    AppContext& m_context;
    DocumentFamily m_family;
    QComboBox* cmbType;
    QLineEdit* txtNo;
    QLabel* lblDate;
    QLineEdit* txtDate;
    QPushButton* cmdPrint;
};

}  // namespace sandogh
