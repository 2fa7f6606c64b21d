#pragma once

#include <QList>
#include <QWidget>

#include "data/repositories/SaleDeleteRepository.h"

class QLineEdit;
class QPushButton;
class QTableWidget;

namespace sandogh {

class AppContext;

// Deletes the documents ticked in a list of every kind of one date (txtDate): the grid
// Grid1 has a tick box, the number, the kind's name, the customer and the date of each.
class frmDeleteFactorGroup : public QWidget {
    Q_OBJECT

public:
    explicit frmDeleteFactorGroup(AppContext& context, QWidget* parent = nullptr);

    void FillGrid();
    // True when every ticked document was deleted.
    bool cmdDelete_Click();

private:
    AppContext& m_context;
    QList<SaleDeleteRepository::ListRow> m_rows;
    QLineEdit* txtDate;
    QPushButton* cmdShow;
    QPushButton* cmdDelete;
    QTableWidget* Grid1;
};

}  // namespace sandogh
