#pragma once

#include <QList>
#include <QWidget>

#include "data/repositories/InternalTransferRepository.h"

class QComboBox;
class QLabel;
class QPushButton;
class QTableWidget;

namespace sandogh {

class AppContext;

// Sends internal sale invoices to a branch: the branch (cboBranch), its invoices in Grid1
// with a tick box, number, date, amount and state, and cmdSend writing the ticked ones to
// RptFactors.txt in the folder shown in lblFolder.
class frmTransFactor : public QWidget {
    Q_OBJECT

public:
    explicit frmTransFactor(AppContext& context, QWidget* parent = nullptr);

    void FillGrid();
    // True when the ticked invoices were written and marked sent.
    bool cmdSend_Click();
    QString folder() const;

private:
    AppContext& m_context;
    QList<InternalTransferRepository::Invoice> m_rows;
    QComboBox* cboBranch;
    QLabel* lblFolder;
    QPushButton* cmdSend;
    QTableWidget* Grid1;
};

}  // namespace sandogh
