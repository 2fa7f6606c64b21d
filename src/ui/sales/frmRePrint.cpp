#include "ui/sales/frmRePrint.h"

#include <QComboBox>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

#include "app/AppContext.h"
#include "data/repositories/SaleDeleteRepository.h"
#include "sales/SaleReceipt.h"
#include "sales/SaleReprint.h"
#include "settings/MessageService.h"

namespace sandogh {

frmRePrint::frmRePrint(AppContext& context, QWidget* parent) : QWidget(parent), m_context(context) {
    setObjectName(QStringLiteral("frmRePrint"));
    setLayoutDirection(Qt::RightToLeft);
    cmbType = new QComboBox(this);
    cmbType->setObjectName(QStringLiteral("cmbType"));
    for (int kind = 1; kind <= 4; ++kind) {
        cmbType->addItem(SaleDeleteRepository::kindName(kind), kind);
    }
    cmbType->setCurrentIndex(1);
    txtNo = new QLineEdit(this);
    txtNo->setObjectName(QStringLiteral("txtNo"));
    lblDate = new QLabel(QStringLiteral("تاريخ"), this);
    txtDate = new QLineEdit(context.todayJalali(), this);
    txtDate->setObjectName(QStringLiteral("txtDate"));
    cmdPrint = new QPushButton(QStringLiteral("چاپ"), this);
    cmdPrint->setObjectName(QStringLiteral("cmdPrint"));
    auto* layout = new QFormLayout(this);
    layout->addRow(QStringLiteral("نوع"), cmbType);
    layout->addRow(QStringLiteral("شماره"), txtNo);
    layout->addRow(lblDate, txtDate);
    layout->addRow(cmdPrint);
    lblDate->hide();
    txtDate->hide();
    connect(cmbType, &QComboBox::currentIndexChanged, this, &frmRePrint::proposeNumber);
    connect(txtNo, &QLineEdit::textEdited, this, [this] {
        lblDate->hide();
        txtDate->hide();
    });
    connect(cmdPrint, &QPushButton::clicked, this, &frmRePrint::cmdPrint_Click);
    proposeNumber();
}

void frmRePrint::proposeNumber() {
    txtNo->setText(SaleReprint(m_context.database(), m_context.messages())
                       .lastNumber(cmbType->currentData().toInt(), m_context.station().id));
    lblDate->hide();
    txtDate->hide();
}

bool frmRePrint::cmdPrint_Click() {
    SaleReprint reprint(m_context.database(), m_context.messages());
    const QString date = txtDate->isHidden() ? QString() : txtDate->text();
    const SaleReprint::Lookup found =
        reprint.find(cmbType->currentData().toInt(), txtNo->text(), date);
    if (found.status == SaleReprint::Lookup::Status::NeedsDate) {
        lblDate->show();
        txtDate->show();
        txtDate->setFocus();
        txtDate->selectAll();
        return false;
    }
    if (found.status != SaleReprint::Lookup::Status::Found) {
        return false;
    }
    SaleReceipt receipt(m_context.database(), m_context.machineSettings(), m_context.messages(),
                        m_context.launcher(), m_context.programFolder(), &m_context.rawPrinter(),
                        nullptr);
    return SaleReprint::print(receipt, found.code);
}

}  // namespace sandogh
