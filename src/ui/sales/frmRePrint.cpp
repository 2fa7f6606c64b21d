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

frmRePrint::frmRePrint(AppContext& context, QWidget* parent)
    : frmRePrint(context, DocumentFamily::Ordinary, parent) {}

frmRePrint::frmRePrint(AppContext& context, DocumentFamily family, QWidget* parent)
    : QWidget(parent), m_context(context), m_family(family) {
    const bool internal = family == DocumentFamily::Internal;
    setObjectName(internal ? QStringLiteral("frmRePrintInter") : QStringLiteral("frmRePrint"));
    setLayoutDirection(Qt::RightToLeft);
    cmbType = new QComboBox(this);
    cmbType->setObjectName(QStringLiteral("cmbType"));
    // Internal documents are sales (2) and returns (3) only.
    for (int kind = internal ? 2 : 1; kind <= (internal ? 3 : 4); ++kind) {
        cmbType->addItem(SaleDeleteRepository::kindName(kind), kind);
    }
    cmbType->setCurrentIndex(cmbType->findData(2));
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
    txtNo->setText(SaleReprint(m_context.database(), m_context.messages(), m_family)
                       .lastNumber(cmbType->currentData().toInt(), m_context.station().id));
    lblDate->hide();
    txtDate->hide();
}

bool frmRePrint::cmdPrint_Click() {
    SaleReprint reprint(m_context.database(), m_context.messages(), m_family);
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
    return SaleReprint::print(receipt, found.code, false, m_family);
}

}  // namespace sandogh
