#include "ui/sales/frmDeleteFactor.h"

#include <QComboBox>
#include <QFormLayout>
#include <QLineEdit>
#include <QPushButton>

#include "app/AppContext.h"
#include "data/repositories/SaleDeleteRepository.h"
#include "sales/SaleDelete.h"

namespace sandogh {

frmDeleteFactor::frmDeleteFactor(AppContext& context, QWidget* parent)
    : QWidget(parent), m_context(context) {
    setObjectName(QStringLiteral("frmDeleteFactor"));
    setLayoutDirection(Qt::RightToLeft);
    cmbType = new QComboBox(this);
    cmbType->setObjectName(QStringLiteral("cmbType"));
    for (int kind = 1; kind <= 4; ++kind) {
        cmbType->addItem(SaleDeleteRepository::kindName(kind), kind);
    }
    cmbType->setCurrentIndex(1);  // a sale
    txtNo = new QLineEdit(this);
    txtNo->setObjectName(QStringLiteral("txtNo"));
    txtDate = new QLineEdit(context.todayJalali(), this);
    txtDate->setObjectName(QStringLiteral("txtDate"));
    cmdDelete = new QPushButton(QStringLiteral("حذف"), this);
    cmdDelete->setObjectName(QStringLiteral("cmdDelete"));
    auto* layout = new QFormLayout(this);
    layout->addRow(QStringLiteral("نوع"), cmbType);
    layout->addRow(QStringLiteral("شماره"), txtNo);
    layout->addRow(QStringLiteral("تاريخ"), txtDate);
    layout->addRow(cmdDelete);
    connect(cmdDelete, &QPushButton::clicked, this, &frmDeleteFactor::cmdDelete_Click);
}

bool frmDeleteFactor::cmdDelete_Click() {
    SaleDelete deleter(m_context.database(), m_context.messages(), m_context.clock(),
                       {m_context.user().id, m_context.station().id});
    const bool deleted = deleter.deleteOne(cmbType->currentData().toInt(), txtNo->text(),
                                           txtDate->text()) == SaleDelete::Outcome::Deleted;
    if (deleted) {
        txtNo->clear();
    }
    return deleted;
}

}  // namespace sandogh
