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
    , messages_(messages)
    , typeNo_(typeNo)
    , repository_(database, &messages)
    , txtName(new QLineEdit(this))
    , txtNameEng(new QLineEdit(this))
    , txtCode(new QLineEdit(this))
    , txtNote(new QLineEdit(this))
    , grpParents(new QGroupBox(this))
    , parentBoxes_(nullptr)
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
    parentBoxes_ = new QVBoxLayout(boxes);
    parentBoxes_->setContentsMargins(4, 4, 4, 4);
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

    value_.typeNo = typeNo;
    value_.counter = counter;
    if (counter > 0) {
        for (const TypesRepository::Value& v : repository_.list(typeNo)) {
            if (v.counter == counter) {
                value_ = v;
                break;
            }
        }
        txtName->setText(value_.name);
        txtNameEng->setText(value_.nameEng);
        txtCode->setText(value_.code);
        txtNote->setText(value_.note);
    }

    parentTypeNo_ = parentListOf(typeNo);
    QString parentName;
    if (parentTypeNo_ > 0) {
        CodeLevelsRepository levels(database);
        bool defined = false;
        for (const auto& level : levels.list(CodeLevelsRepository::familyOf(parentTypeNo_))) {
            if (level.typeNo == parentTypeNo_) {
                defined = true;
                parentName = level.name;
            }
        }
        if (!defined) {
            parentTypeNo_ = 0;
        }
    }
    grpParents->setTitle(kLevelHeading + parentName);
    grpParents->setVisible(parentTypeNo_ > 0);
    if (parentTypeNo_ > 0) {
        loadParents();
    }
    if (parentTypeNo_ == 0) {
        resize(420, 200);
    } else {
        resize(420, 440);
    }

    connect(cmdSave, &QPushButton::clicked, this, &frmNewPara::save);
    connect(cmdCancel, &QPushButton::clicked, this, &QDialog::reject);
}

void frmNewPara::loadParents() {
    QWidget* holder = parentBoxes_->parentWidget();
    for (const auto& option : repository_.parentOptions(parentTypeNo_, value_.counter)) {
        auto* box = new QCheckBox(option.code + QStringLiteral(" - ") + option.name, holder);
        box->setObjectName(QStringLiteral("chkParent%1").arg(option.counter));
        box->setProperty("counter", option.counter);
        box->setChecked(option.linked);
        parentBoxes_->addWidget(box);
        chkParents_ << box;
    }
    parentBoxes_->addStretch(1);
}

QList<int> frmNewPara::tickedParents() const {
    QList<int> parents;
    if (parentTypeNo_ == 0) {
        return parents;
    }
    for (const QCheckBox* box : chkParents_) {
        if (box->isChecked()) {
            parents << box->property("counter").toInt();
        }
    }
    return parents;
}

bool frmNewPara::setParentTicked(int parentCounter, bool ticked) {
    for (QCheckBox* box : chkParents_) {
        if (box->property("counter").toInt() == parentCounter) {
            box->setChecked(ticked);
            return true;
        }
    }
    return false;
}

bool frmNewPara::save() {
    TypesRepository::Value value = value_;
    value.name = txtName->text();
    value.nameEng = txtNameEng->text();
    value.code = txtCode->text();
    value.note = txtNote->text();
    const CheckResult result = repository_.save(value, tickedParents());
    if (!result.ok) {
        ResultMessage::show(messages_, result);
        return false;
    }
    value_ = value;
    emit saved(value_.counter);
    accept();
    return true;
}

}  // namespace sandogh
