#include "ui/catalog/frmNewPara.h"

#include <QCheckBox>
#include <QFormLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QPushButton>
#include <QScrollArea>
#include <QVBoxLayout>

#include "data/repositories/CodeLevelsRepository.h"
#include "ui/catalog/CatalogCaptions.h"
#include "ui/catalog/ParameterLists.h"
#include "ui/catalog/ResultMessage.h"
#include "ui/widgets/ButtonCaptions.h"

namespace sandogh {

int frmNewPara::parentListOf(int typeNo) {
    const bool goods = typeNo > 501 && typeNo <= 509;
    const bool accounts = typeNo > 201 && typeNo <= 210;
    return goods || accounts ? typeNo - 1 : 0;
}

frmNewPara::frmNewPara(Database& database, MessageService& messages, int typeNo, int counter,
                       QWidget* parent)
    : QDialog(parent)
    , m_messages(messages)
    , m_typeNo(typeNo)
    , m_repository(database, &messages)
    , txtName(new QLineEdit(this))
    , txtNameEng(new QLineEdit(this))
    , txtCode(new QLineEdit(this))
    , txtNote(new QLineEdit(this))
    , grpParents(new QGroupBox(this))
    , m_parentBoxes(nullptr)
    , cmdSave(new QPushButton(catalogcaptions::kSave, this))
    , cmdCancel(new QPushButton(ButtonCaptions::cancel(), this)) {
    using namespace catalogcaptions;
    setObjectName(QStringLiteral("frmNewPara"));
    setLayoutDirection(Qt::RightToLeft);
    setWindowTitle(kValueTitle + QStringLiteral(" - ") + ParameterLists::title(database, typeNo));
    txtName->setObjectName(QStringLiteral("txtName"));
    txtNameEng->setObjectName(QStringLiteral("txtNameEng"));
    txtCode->setObjectName(QStringLiteral("txtCode"));
    txtNote->setObjectName(QStringLiteral("txtNote"));
    grpParents->setObjectName(QStringLiteral("grpParents"));
    cmdSave->setObjectName(QStringLiteral("cmdSave"));
    cmdCancel->setObjectName(QStringLiteral("cmdCancel"));
    txtNameEng->setLayoutDirection(Qt::LeftToRight);
    cmdSave->setDefault(true);

    auto* form = new QFormLayout;
    form->addRow(kName, txtName);
    form->addRow(kNameEng, txtNameEng);
    form->addRow(kCode, txtCode);
    form->addRow(kNote, txtNote);
    auto* scroll = new QScrollArea(grpParents);
    scroll->setObjectName(QStringLiteral("scrParents"));
    scroll->setWidgetResizable(true);
    scroll->setFrameShape(QFrame::NoFrame);
    auto* boxes = new QWidget(scroll);
    m_parentBoxes = new QVBoxLayout(boxes);
    m_parentBoxes->setContentsMargins(4, 4, 4, 4);
    scroll->setWidget(boxes);
    auto* parents = new QVBoxLayout(grpParents);
    parents->addWidget(scroll);
    auto* buttons = new QHBoxLayout;
    buttons->addStretch(1);
    buttons->addWidget(cmdSave);
    buttons->addWidget(cmdCancel);
    auto* layout = new QVBoxLayout(this);
    layout->addLayout(form);
    layout->addWidget(grpParents, 1);
    layout->addLayout(buttons);

    m_value.typeNo = typeNo;
    m_value.counter = counter;
    if (counter > 0) {
        for (const TypesRepository::Value& v : m_repository.list(typeNo)) {
            if (v.counter == counter) {
                m_value = v;
                break;
            }
        }
        txtName->setText(m_value.name);
        txtNameEng->setText(m_value.nameEng);
        txtCode->setText(m_value.code);
        txtNote->setText(m_value.note);
    }

    m_parentTypeNo = parentListOf(typeNo);
    QString parentName;
    if (m_parentTypeNo > 0) {
        CodeLevelsRepository levels(database);
        bool defined = false;
        for (const auto& level : levels.list(CodeLevelsRepository::familyOf(m_parentTypeNo))) {
            if (level.typeNo == m_parentTypeNo) {
                defined = true;
                parentName = level.name;
            }
        }
        if (!defined) {
            m_parentTypeNo = 0;
        }
    }
    grpParents->setTitle(kLevelHeading + parentName);
    grpParents->setVisible(m_parentTypeNo > 0);
    if (m_parentTypeNo > 0) {
        loadParents();
    }
    if (m_parentTypeNo == 0) {
        resize(420, 200);
    } else {
        resize(420, 440);
    }

    connect(cmdSave, &QPushButton::clicked, this, &frmNewPara::save);
    connect(cmdCancel, &QPushButton::clicked, this, &QDialog::reject);
}

void frmNewPara::loadParents() {
    QWidget* holder = m_parentBoxes->parentWidget();
    for (const auto& option : m_repository.parentOptions(m_parentTypeNo, m_value.counter)) {
        auto* box = new QCheckBox(option.code + QStringLiteral(" - ") + option.name, holder);
        box->setObjectName(QStringLiteral("chkParent%1").arg(option.counter));
        box->setProperty("counter", option.counter);
        box->setChecked(option.linked);
        m_parentBoxes->addWidget(box);
        m_chkParents << box;
    }
    m_parentBoxes->addStretch(1);
}

QList<int> frmNewPara::tickedParents() const {
    QList<int> parents;
    if (m_parentTypeNo == 0) {
        return parents;
    }
    for (const QCheckBox* box : m_chkParents) {
        if (box->isChecked()) {
            parents << box->property("counter").toInt();
        }
    }
    return parents;
}

bool frmNewPara::setParentTicked(int parentCounter, bool ticked) {
    for (QCheckBox* box : m_chkParents) {
        if (box->property("counter").toInt() == parentCounter) {
            box->setChecked(ticked);
            return true;
        }
    }
    return false;
}

bool frmNewPara::save() {
    TypesRepository::Value value = m_value;
    value.name = txtName->text();
    value.nameEng = txtNameEng->text();
    value.code = txtCode->text();
    value.note = txtNote->text();
    const CheckResult result = m_repository.save(value, tickedParents());
    if (!result.ok) {
        ResultMessage::show(m_messages, result);
        return false;
    }
    m_value = value;
    emit saved(m_value.counter);
    accept();
    return true;
}

}  // namespace sandogh
