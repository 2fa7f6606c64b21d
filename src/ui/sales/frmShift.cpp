#include "ui/sales/frmShift.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include "data/Database.h"
#include "settings/MessageService.h"

namespace sandogh {

namespace {

const QString kTitle = QStringLiteral("شیفت صندوق");
const QString kActiveCaption = QStringLiteral("شیفت فعال: ");
const QString kNoActive = QStringLiteral("(هیچ شیفتی فعال نیست)");
const QString kChooseCaption = QStringLiteral("شیفت جدید:");
const QString kChange = QStringLiteral("تغییر شیفت");

}  // namespace

frmShift::frmShift(Database& database, MessageService& messages, QWidget* parent)
    : QWidget(parent)
    , m_shifts(database)
    , m_messages(messages)
    , lblActiveShift(new QLabel(this))
    , cmbShift(new QComboBox(this))
    , cmdChange(new QPushButton(kChange, this)) {
    setObjectName(QStringLiteral("frmShift"));
    setLayoutDirection(Qt::RightToLeft);
    setWindowTitle(kTitle);
    lblActiveShift->setObjectName(QStringLiteral("lblActiveShift"));
    cmbShift->setObjectName(QStringLiteral("cmbShift"));
    cmdChange->setObjectName(QStringLiteral("cmdChange"));

    auto* choose = new QHBoxLayout;
    choose->addWidget(new QLabel(kChooseCaption, this));
    choose->addWidget(cmbShift, 1);
    choose->addWidget(cmdChange);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(lblActiveShift);
    layout->addLayout(choose);
    layout->addStretch(1);
    resize(360, 120);

    connect(cmdChange, &QPushButton::clicked, this, &frmShift::cmdChange_Click);
    reload();
}

void frmShift::reload() {
    const std::optional<Shift> active = m_shifts.active();
    lblActiveShift->setText(kActiveCaption + (active ? active->name : kNoActive));
    cmbShift->clear();
    for (const Shift& shift : m_shifts.all()) {
        cmbShift->addItem(shift.name, shift.code);
        if (active && shift.code == active->code) {
            cmbShift->setCurrentIndex(cmbShift->count() - 1);
        }
    }
    cmdChange->setEnabled(cmbShift->count() > 0);
}

bool frmShift::cmdChange_Click() {
    if (cmbShift->currentIndex() < 0) {
        return false;
    }
    const bool switched = m_shifts.switchTo(cmbShift->currentData().toInt());
    if (!switched) {
        m_messages.show(Database::connectionFailureMessage(), MessageStyle::Critical);
    }
    reload();
    return switched;
}

}  // namespace sandogh
