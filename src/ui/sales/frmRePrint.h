#pragma once

#include <QWidget>

class QComboBox;
class QLabel;
class QLineEdit;
class QPushButton;

namespace sandogh {

class AppContext;

// Reprints one saved document: the kind (cmbType), the number (txtNo, the last one of the
// kind at this cash desk proposed) and, when that number occurs more than once, the date
// (txtDate, shown then). The receipt goes through the receipt path titled "چاپ مجدد".
class frmRePrint : public QWidget {
    Q_OBJECT

public:
    explicit frmRePrint(AppContext& context, QWidget* parent = nullptr);

    // Proposes the last number of the chosen kind at this desk.
    void proposeNumber();
    // True when the receipt was printed; false when the date is still needed (the date box
    // is then shown), the document is missing, or nothing printed.
    bool cmdPrint_Click();

private:
    AppContext& m_context;
    QComboBox* cmbType;
    QLineEdit* txtNo;
    QLabel* lblDate;
    QLineEdit* txtDate;
    QPushButton* cmdPrint;
};

}  // namespace sandogh
