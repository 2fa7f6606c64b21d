#include "ui/parties/frmParties.h"

#include <QCheckBox>
#include <QComboBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QStandardItemModel>
#include <QTableView>
#include <QVBoxLayout>

#include "common/AmountText.h"
#include "data/repositories/PartyMessages.h"
#include "settings/MessageService.h"
#include "ui/catalog/GridSetup.h"
#include "ui/catalog/ResultMessage.h"
#include "ui/parties/PartyCaptions.h"
#include "ui/parties/frmParty.h"

namespace sandogh {

namespace {

using Column = PartiesRepository::SearchColumn;

constexpr Column kSearchColumns[] = {Column::Code, Column::Name, Column::Family, Column::Telephone};

}  // namespace

frmParties::frmParties(Database& database, MessageService& messages, int typeNo, QWidget* parent)
    : QWidget(parent)
    , m_database(database)
    , m_messages(messages)
    , m_typeNo(typeNo == Party::kCompany ? Party::kCompany : Party::kPerson)
    , m_repository(database)
    , txtSearch(new QLineEdit(this))
    , cboSearchColumn(new QComboBox(this))
    , chkOnlyActive(new QCheckBox(partycaptions::kOnlyActive, this))
    , grdParties(new QTableView(this))
    , cmdNew(new QPushButton(partycaptions::kNew, this))
    , cmdEdit(new QPushButton(partycaptions::kEdit, this))
    , cmdDelete(new QPushButton(partycaptions::kDelete, this))
    , cmdExit(new QPushButton(partycaptions::kExit, this)) {
    using namespace partycaptions;
    const bool persons = m_typeNo == Party::kPerson;
    setObjectName(QStringLiteral("frmParties"));
    setLayoutDirection(Qt::RightToLeft);
    setWindowTitle(persons ? kCustomersTitle : kSuppliersTitle);
    txtSearch->setObjectName(QStringLiteral("txtSearch"));
    cboSearchColumn->setObjectName(QStringLiteral("cboSearchColumn"));
    chkOnlyActive->setObjectName(QStringLiteral("chkOnlyActive"));
    grdParties->setObjectName(QStringLiteral("grdParties"));
    cmdNew->setObjectName(QStringLiteral("cmdNew"));
    cmdEdit->setObjectName(QStringLiteral("cmdEdit"));
    cmdDelete->setObjectName(QStringLiteral("cmdDelete"));
    cmdExit->setObjectName(QStringLiteral("cmdExit"));
    const QString name = persons ? kName : kCompanyName;
    const QString family = persons ? kFamily : kContact;
    cboSearchColumn->addItems({kCode, name, family, kTelephone});
    cboSearchColumn->setCurrentIndex(1);
    m_model = GridSetup::configure(
        grdParties, {kCode, name, family, kTelephone, kMobile, kGroup, kCredit, kActive});

    auto* search = new QHBoxLayout;
    search->addWidget(new QLabel(kSearch, this));
    search->addWidget(txtSearch, 1);
    search->addWidget(new QLabel(kSearchIn, this));
    search->addWidget(cboSearchColumn);
    search->addWidget(chkOnlyActive);
    auto* buttons = new QHBoxLayout;
    buttons->addWidget(cmdNew);
    buttons->addWidget(cmdEdit);
    buttons->addWidget(cmdDelete);
    buttons->addStretch(1);
    buttons->addWidget(cmdExit);
    auto* layout = new QVBoxLayout(this);
    layout->addLayout(search);
    layout->addWidget(grdParties, 1);
    layout->addLayout(buttons);
    resize(860, 520);

    connect(txtSearch, &QLineEdit::textChanged, this, &frmParties::reload);
    connect(cboSearchColumn, &QComboBox::currentIndexChanged, this, [this] {
        if (!txtSearch->text().isEmpty()) {
            reload();
        }
    });
    connect(chkOnlyActive, &QCheckBox::toggled, this, &frmParties::reload);
    connect(cmdNew, &QPushButton::clicked, this, [this] { openEditor(0); });
    connect(cmdEdit, &QPushButton::clicked, this, [this] {
        if (const int counter = currentCounter(); counter > 0) {
            openEditor(counter);
        }
    });
    connect(grdParties, &QTableView::doubleClicked, this, [this] {
        if (const int counter = currentCounter(); counter > 0) {
            openEditor(counter);
        }
    });
    connect(cmdDelete, &QPushButton::clicked, this, &frmParties::deleteCurrent);
    connect(cmdExit, &QPushButton::clicked, this, &QWidget::close);
    reload();
}

void frmParties::reload() {
    const int keep = currentCounter();
    const QString text = txtSearch->text();
    const int index = cboSearchColumn->currentIndex();
    const Column column = text.isEmpty() || index < 0 || index >= int(std::size(kSearchColumns))
                              ? Column::None
                              : kSearchColumns[index];
    m_parties = m_repository.list(m_typeNo, column, text, !chkOnlyActive->isChecked());
    m_model->removeRows(0, m_model->rowCount());
    for (const Party& p : m_parties) {
        auto* active = new QStandardItem;
        active->setCheckable(false);
        active->setData(p.active ? Qt::Checked : Qt::Unchecked, Qt::CheckStateRole);
        m_model->appendRow(
            {new QStandardItem(p.code), new QStandardItem(p.name), new QStandardItem(p.family),
             new QStandardItem(p.telephone), new QStandardItem(p.mobile),
             new QStandardItem(p.groupName),
             new QStandardItem(QString::fromStdString(AmountText::formatWhole(p.credit))), active});
    }
    if (keep == 0 || !selectCounter(keep)) {
        GridSetup::selectRow(grdParties, 0);
    }
}

int frmParties::currentCounter() const {
    const int row = GridSetup::selectedRow(grdParties);
    return row >= 0 && row < m_parties.size() ? m_parties.at(row).counter : 0;
}

bool frmParties::selectCounter(int counter) {
    for (qsizetype i = 0; i < m_parties.size(); ++i) {
        if (m_parties.at(i).counter == counter) {
            GridSetup::selectRow(grdParties, int(i));
            return true;
        }
    }
    return false;
}

frmParty* frmParties::openEditor(int counter) {
    auto* editor = new frmParty(m_database, m_messages, m_typeNo, counter, this);
    editor->setAttribute(Qt::WA_DeleteOnClose);
    connect(editor, &frmParty::saved, this, [this](int saved) {
        reload();
        selectCounter(saved);
    });
    editor->open();
    return editor;
}

void frmParties::deleteCurrent() {
    const int counter = currentCounter();
    if (counter <= 0) {
        return;
    }
    const CheckResult allowed = m_repository.canDelete(counter);
    if (!allowed.ok) {
        ResultMessage::show(m_messages, allowed);
        if (m_messages.show(partymessages::kDeactivateQuestion, MessageStyle::QuestionYesNo) &&
            m_repository.setActive(counter, false)) {
            reload();
        }
        return;
    }
    if (!m_messages.show(allowed.message, MessageStyle::QuestionOkCancel)) {
        return;
    }
    const CheckResult removed = m_repository.remove(counter);
    ResultMessage::show(m_messages, removed);
    if (removed.ok) {
        reload();
    }
}

}  // namespace sandogh
