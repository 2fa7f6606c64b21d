#include "ui/catalog/frmNewCodePara.h"

#include <QFormLayout>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QPushButton>
#include <QSpinBox>
#include <QVBoxLayout>

#include "ui/catalog/CatalogCaptions.h"
#include "ui/catalog/ResultMessage.h"
#include "ui/widgets/ButtonCaptions.h"

namespace sandogh {

namespace {

// Level codes are short: a digit count above this is a typing slip.
constexpr int kMostDigits = 20;
constexpr int kMostLevels = 10;

}  // namespace

frmNewCodePara::frmNewCodePara(Database& database, MessageService& messages,
                               CodeLevelsRepository::Family family,
                               const CodeLevelsRepository::Level& level, QWidget* parent)
    : QDialog(parent)
    , m_messages(messages)
    , m_family(family)
    , m_repository(database)
    , m_level(level)
    , txtTypeNo(new QLineEdit(this))
    , txtName(new QLineEdit(this))
    , txtNameEnglish(new QLineEdit(this))
    , spnDigitQty(new QSpinBox(this))
    , spnParameterLevel(new QSpinBox(this))
    , cmdSave(new QPushButton(catalogcaptions::kSave, this))
    , cmdCancel(new QPushButton(ButtonCaptions::cancel(), this)) {
    using namespace catalogcaptions;
    setObjectName(QStringLiteral("frmNewCodePara"));
    setLayoutDirection(Qt::RightToLeft);
    setWindowTitle(kLevelTitle);
    txtTypeNo->setObjectName(QStringLiteral("txtTypeNo"));
    txtName->setObjectName(QStringLiteral("txtName"));
    txtNameEnglish->setObjectName(QStringLiteral("txtNameEnglish"));
    spnDigitQty->setObjectName(QStringLiteral("spnDigitQty"));
    spnParameterLevel->setObjectName(QStringLiteral("spnParameterLevel"));
    cmdSave->setObjectName(QStringLiteral("cmdSave"));
    cmdCancel->setObjectName(QStringLiteral("cmdCancel"));
    txtTypeNo->setReadOnly(true);
    txtTypeNo->setFocusPolicy(Qt::NoFocus);
    txtNameEnglish->setLayoutDirection(Qt::LeftToRight);
    spnDigitQty->setRange(0, kMostDigits);
    spnParameterLevel->setRange(1, kMostLevels);
    cmdSave->setDefault(true);

    if (m_level.counter == 0) {
        m_level.typeNo = m_repository.nextTypeNo(family);
        m_level.parameterLevel = m_repository.nextParameterLevel(family);
    }
    txtTypeNo->setText(QString::number(m_level.typeNo));
    txtName->setText(m_level.name);
    txtNameEnglish->setText(m_level.nameEnglish);
    spnDigitQty->setValue(m_level.digitQty);
    spnParameterLevel->setValue(qMax(1, m_level.parameterLevel));

    auto* form = new QFormLayout;
    form->addRow(kLevelTypeNo, txtTypeNo);
    form->addRow(kLevelName, txtName);
    form->addRow(kLevelNameEnglish, txtNameEnglish);
    form->addRow(kDigitQty, spnDigitQty);
    form->addRow(kParameterLevel, spnParameterLevel);
    auto* buttons = new QHBoxLayout;
    buttons->addStretch(1);
    buttons->addWidget(cmdSave);
    buttons->addWidget(cmdCancel);
    auto* layout = new QVBoxLayout(this);
    layout->addLayout(form);
    layout->addLayout(buttons);
    resize(380, 220);

    connect(cmdSave, &QPushButton::clicked, this, &frmNewCodePara::save);
    connect(cmdCancel, &QPushButton::clicked, this, &QDialog::reject);
    txtName->setFocus();
}

bool frmNewCodePara::save() {
    CodeLevelsRepository::Level level = m_level;
    level.name = txtName->text();
    level.nameEnglish = txtNameEnglish->text();
    level.digitQty = spnDigitQty->value();
    level.parameterLevel = spnParameterLevel->value();
    if (level.counter == 0) {
        // A new level takes the next number of its family when it is written, so that
        // two seats adding one at a time get two numbers.
        level.typeNo = 0;
    }
    const CheckResult result = m_repository.save(level, m_family);
    ResultMessage::show(m_messages, result);
    if (!result.ok) {
        return false;
    }
    m_level = level;
    txtTypeNo->setText(QString::number(m_level.typeNo));
    emit saved(m_level.typeNo);
    accept();
    return true;
}

}  // namespace sandogh
