#pragma once

#include <QList>
#include <QWidget>

#include "data/repositories/CustomerGroupRepository.h"

class QLineEdit;
class QPushButton;
class QStandardItemModel;
class QTableView;

namespace sandogh {

class AmountEdit;
class Database;
class MessageService;

// The customer groups (tblCustomerGroup): the list above, the group under the cursor in
// the boxes below it. New empties the boxes for a group that takes the next code; save
// writes the group; a group given to customers is not deleted.
class frmCustomerGroup : public QWidget {
    Q_OBJECT

public:
    frmCustomerGroup(Database& database, MessageService& messages, QWidget* parent = nullptr);

    void reload();
    const QList<CustomerGroup>& groups() const { return m_groups; }
    bool selectCode(int code);
    // The group as the boxes show it.
    CustomerGroup group() const;
    void setColor(qint64 rgb);

    void startNew();
    bool save();
    void deleteCurrent();

private:
    void display(const CustomerGroup& group);
    void chooseColor();

    MessageService& m_messages;
    CustomerGroupRepository m_repository;
    QList<CustomerGroup> m_groups;
    CustomerGroup m_group;

    QLineEdit* txtSearch;
    QTableView* grdGroups;
    QStandardItemModel* m_model;
    QLineEdit* txtCode;
    QLineEdit* txtName;
    AmountEdit* txtDiscountPercent;
    AmountEdit* txtBuyFactor;
    AmountEdit* txtAmountRebate;
    QPushButton* cmdColor;
    QPushButton* cmdNew;
    QPushButton* cmdSave;
    QPushButton* cmdDelete;
    QPushButton* cmdExit;
};

}  // namespace sandogh
