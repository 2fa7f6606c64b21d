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
    : frmDeleteFactor(context, DocumentFamily::Ordinary, parent) {}

frmDeleteFactor::frmDeleteFactor(AppContext& context, DocumentFamily family, QWidget* parent)
    : QWidget(parent), m_context(context), m_family(family) {
    const bool internal = family == DocumentFamily::Internal;
    setObjectName(internal ? QStringLiteral("frmDeleteFactorInternal")
                           : QStringLiteral("frmDeleteFactor"));
    setLayoutDirection(Qt::RightToLeft);
    cmbType = new QComboBox(this);
    cmbType->setObjectName(QStringLiteral("cmbType"));
    // Internal documents are sales (2) and returns (3) only.
    for (int kind = internal ? 2 : 1; kind <= (internal ? 3 : 4); ++kind) {
        cmbType->addItem(SaleDeleteRepository::kindName(kind), kind);
    }
    cmbType->setCurrentIndex(cmbType->findData(2));  // a sale
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
    // An internal document is found by its kind and number alone.
    layout->setRowVisible(txtDate, !internal);
    connect(cmdDelete, &QPushButton::clicked, this, &frmDeleteFactor::cmdDelete_Click);
}

bool frmDeleteFactor::cmdDelete_Click() {
    SaleDelete deleter(m_context.database(), m_context.messages(), m_context.clock(),
                       {m_context.user().id, m_context.station().id});
    const int kind = cmbType->currentData().toInt();
    const SaleDelete::Outcome outcome =
        m_family == DocumentFamily::Internal
            ? deleter.deleteInternal(kind, txtNo->text())
            : deleter.deleteOne(kind, txtNo->text(), txtDate->text());
    const bool deleted = outcome == SaleDelete::Outcome::Deleted;
    if (deleted) {
        txtNo->clear();
    }
    return deleted;
}

}  // namespace sandogh
