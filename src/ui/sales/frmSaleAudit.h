#pragma once

#include <QWidget>

class QLineEdit;
class QPushButton;
class QSpinBox;
class QTableWidget;

namespace sandogh {

class AppContext;

// The record of deleted and edited documents: dated from txtFromDate to txtToDate, of one
// user (spnUser, 0 for everyone), newest first, each with the document as it stood before.
class frmSaleAudit : public QWidget {
    Q_OBJECT

public:
    explicit frmSaleAudit(AppContext& context, QWidget* parent = nullptr);

    void FillGrid();

private:
    AppContext& m_context;
    QLineEdit* txtFromDate;
    QLineEdit* txtToDate;
    QSpinBox* spnUser;
    QPushButton* cmdShow;
    QTableWidget* Grid1;
};

}  // namespace sandogh
