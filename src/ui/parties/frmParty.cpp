#include "ui/parties/frmParty.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

#include "ui/catalog/ResultMessage.h"
#include "ui/parties/PartyCaptions.h"
#include "ui/widgets/AmountEdit.h"
#include "ui/widgets/ButtonCaptions.h"
#include "ui/widgets/JalaliDateEdit.h"

namespace sandogh {

namespace {

template <typename T>
T* named(T* widget, const char* name) {
    widget->setObjectName(QString::fromLatin1(name));
    return widget;
}

}  // namespace

frmParty::frmParty(Database& database, MessageService& messages, int typeNo, int counter,
                   QWidget* parent)
    : QDialog(parent)
    , m_messages(messages)
    , m_repository(database)
    , txtCode(named(new QLineEdit(this), "txtCode"))
    , txtName(named(new QLineEdit(this), "txtName"))
    , txtFamily(named(new QLineEdit(this), "txtFamily"))
    , txtTel(named(new QLineEdit(this), "txtTel"))
    , txtMobile(named(new QLineEdit(this), "txtMobile"))
    , txtEmail(named(new QLineEdit(this), "txtEmail"))
    , txtAddress(named(new QLineEdit(this), "txtAddress"))
    , txtBirthday(named(new JalaliDateEdit(this), "txtBirthday"))
    , cboGroup(named(new QComboBox(this), "cboGroup"))
    , cboAccountingGroup(named(new QComboBox(this), "cboAccountingGroup"))
    , txtCredit(named(new AmountEdit(this), "txtCredit"))
    , chkActive(named(new QCheckBox(partycaptions::kActive, this), "chkActive"))
    , cmdSave(named(new QPushButton(partycaptions::kSave, this), "cmdSave"))
    , cmdCancel(named(new QPushButton(ButtonCaptions::cancel(), this), "cmdCancel")) {
    using namespace partycaptions;
    const bool person = typeNo != Party::kCompany;
    setObjectName(QStringLiteral("frmParty"));
    setLayoutDirection(Qt::RightToLeft);
    setWindowTitle(person ? kCustomerTitle : kSupplierTitle);
    // Numbers, addresses of e-mail and dates read left to right.
    for (QLineEdit* box :
         {txtCode, txtTel, txtMobile, txtEmail, static_cast<QLineEdit*>(txtBirthday)}) {
        box->setLayoutDirection(Qt::LeftToRight);
    }
    cmdSave->setDefault(true);

    auto* form = new QFormLayout;
    form->addRow(kCode, txtCode);
    form->addRow(person ? kName : kCompanyName, txtName);
    form->addRow(person ? kFamily : kContact, txtFamily);
    form->addRow(kTelephone, txtTel);
    form->addRow(kMobile, txtMobile);
    form->addRow(kEmail, txtEmail);
    form->addRow(kAddress, txtAddress);
    form->addRow(kBirthday, txtBirthday);
    form->addRow(kGroup, cboGroup);
    form->addRow(kAccountingGroup, cboAccountingGroup);
    form->addRow(kCredit, txtCredit);
    form->addRow(QString(), chkActive);
    // A company has neither a birthday nor a customer group.
    form->setRowVisible(txtBirthday, person);
    form->setRowVisible(cboGroup, person);
    auto* buttons = new QHBoxLayout;
    buttons->addStretch(1);
    buttons->addWidget(cmdSave);
    buttons->addWidget(cmdCancel);
    auto* layout = new QVBoxLayout(this);
    layout->addLayout(form);
    layout->addLayout(buttons);
    resize(460, 420);

    fillChoices();
    Party party;
    party.typeNo = person ? Party::kPerson : Party::kCompany;
    if (counter > 0) {
        if (const auto found = m_repository.find(counter)) {
            party = *found;
        }
    }
    if (party.isNew()) {
        party.code = m_repository.newCode();
    }
    display(party);

    connect(cmdSave, &QPushButton::clicked, this, &frmParty::save);
    connect(cmdCancel, &QPushButton::clicked, this, &QDialog::reject);
    txtName->setFocus();
}

void frmParty::fillChoices() {
    cboGroup->addItem(QString(), 0);
    for (const auto& group : m_repository.customerGroups()) {
        cboGroup->addItem(group.name, group.id);
    }
    cboAccountingGroup->addItem(QString(), 0);
    for (const auto& ledger : m_repository.accountingGroups()) {
        cboAccountingGroup->addItem(ledger.code + QStringLiteral(" - ") + ledger.name, ledger.id);
    }
}

void frmParty::display(const Party& p) {
    m_party = p;
    txtCode->setText(p.code);
    txtName->setText(p.name);
    txtFamily->setText(p.family);
    txtTel->setText(p.telephone);
    txtMobile->setText(p.mobile);
    txtEmail->setText(p.email);
    txtAddress->setText(p.address);
    txtBirthday->setDateText(p.birthday);
    const int group = cboGroup->findData(p.customerGroup);
    cboGroup->setCurrentIndex(group >= 0 ? group : 0);
    const int ledger = cboAccountingGroup->findData(p.accountingGroupId);
    cboAccountingGroup->setCurrentIndex(ledger >= 0 ? ledger : 0);
    txtCredit->setValue(p.credit);
    chkActive->setChecked(p.active);
}

Party frmParty::party() const {
    Party p = m_party;
    p.code = txtCode->text();
    p.name = txtName->text();
    p.family = txtFamily->text();
    p.telephone = txtTel->text();
    p.mobile = txtMobile->text();
    p.email = txtEmail->text();
    p.address = txtAddress->text();
    // A day that is not in the calendar goes to the checks as typed, to be refused there.
    p.birthday = txtBirthday->isAcceptable() ? txtBirthday->dateText() : txtBirthday->text();
    p.customerGroup = cboGroup->currentData().toInt();
    p.accountingGroupId = cboAccountingGroup->currentData().toInt();
    p.credit = txtCredit->value();
    p.active = chkActive->isChecked();
    return p;
}

bool frmParty::save() {
    Party p = party();
    const CheckResult result = m_repository.save(p);
    if (!result.ok) {
        ResultMessage::show(m_messages, result);
        return false;
    }
    m_party = p;
    emit saved(p.counter);
    accept();
    return true;
}

}  // namespace sandogh
