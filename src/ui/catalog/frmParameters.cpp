#include "ui/catalog/frmParameters.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QStandardItemModel>
#include <QTableView>
#include <QVBoxLayout>

#include "settings/MessageService.h"
#include "ui/catalog/CatalogCaptions.h"
#include "ui/catalog/GridSetup.h"
#include "ui/catalog/ParameterLists.h"
#include "ui/catalog/ResultMessage.h"
#include "ui/catalog/frmNewPara.h"

namespace sandogh {

namespace {

using Column = TypesRepository::SearchColumn;

// The search choices in the order of the grid's columns.
constexpr Column kSearchColumns[] = {Column::Code, Column::Name, Column::NameEng, Column::Note};

}  // namespace

frmParameters::frmParameters(Database& database, MessageService& messages, int typeNo,
                             QWidget* parent)
    : QWidget(parent)
    , m_database(database)
    , m_messages(messages)
    , m_typeNo(typeNo)
    , m_repository(database, &messages)
    , txtSearch(new QLineEdit(this))
    , cboSearchColumn(new QComboBox(this))
    , grdList(new QTableView(this))
    , cmdNew(new QPushButton(catalogcaptions::kNew, this))
    , cmdEdit(new QPushButton(catalogcaptions::kEdit, this))
    , cmdDelete(new QPushButton(catalogcaptions::kDelete, this))
    , cmdExit(new QPushButton(catalogcaptions::kExit, this)) {
    using namespace catalogcaptions;
    setObjectName(QStringLiteral("frmParameters"));
    setLayoutDirection(Qt::RightToLeft);
    setWindowTitle(ParameterLists::title(database, typeNo));
    txtSearch->setObjectName(QStringLiteral("txtSearch"));
    cboSearchColumn->setObjectName(QStringLiteral("cboSearchColumn"));
    grdList->setObjectName(QStringLiteral("grdList"));
    cmdNew->setObjectName(QStringLiteral("cmdNew"));
    cmdEdit->setObjectName(QStringLiteral("cmdEdit"));
    cmdDelete->setObjectName(QStringLiteral("cmdDelete"));
    cmdExit->setObjectName(QStringLiteral("cmdExit"));

    cboSearchColumn->addItems({kCode, kName, kNameEng, kNote});
    cboSearchColumn->setCurrentIndex(1);
    m_model = GridSetup::configure(grdList, {kCode, kName, kNameEng, kNote});

    auto* search = new QHBoxLayout;
    search->addWidget(new QLabel(kSearch, this));
    search->addWidget(txtSearch, 1);
    search->addWidget(new QLabel(kSearchIn, this));
    search->addWidget(cboSearchColumn);
    auto* buttons = new QHBoxLayout;
    buttons->addWidget(cmdNew);
    buttons->addWidget(cmdEdit);
    buttons->addWidget(cmdDelete);
    buttons->addStretch(1);
    buttons->addWidget(cmdExit);
    auto* layout = new QVBoxLayout(this);
    layout->addLayout(search);
    layout->addWidget(grdList, 1);
    layout->addLayout(buttons);
    resize(640, 460);

    connect(txtSearch, &QLineEdit::textChanged, this, &frmParameters::reload);
    connect(cboSearchColumn, &QComboBox::currentIndexChanged, this, [this] {
        if (!txtSearch->text().isEmpty()) {
            reload();
        }
    });
    connect(cmdNew, &QPushButton::clicked, this, [this] { openEditor(0); });
    connect(cmdEdit, &QPushButton::clicked, this, [this] {
        if (const int counter = currentCounter(); counter > 0) {
            openEditor(counter);
        }
    });
    connect(grdList, &QTableView::doubleClicked, this, [this] {
        if (const int counter = currentCounter(); counter > 0) {
            openEditor(counter);
        }
    });
    connect(cmdDelete, &QPushButton::clicked, this, &frmParameters::deleteCurrent);
    connect(cmdExit, &QPushButton::clicked, this, &QWidget::close);

    reload();
}

TypesRepository::SearchColumn frmParameters::searchColumn() const {
    const int index = cboSearchColumn->currentIndex();
    return index >= 0 && index < int(std::size(kSearchColumns)) ? kSearchColumns[index]
                                                                : Column::Name;
}

void frmParameters::reload() {
    const int keep = currentCounter();
    const QString text = txtSearch->text();
    m_values = text.isEmpty() ? m_repository.list(m_typeNo)
                              : m_repository.list(m_typeNo, searchColumn(), text);
    fill();
    if (keep == 0 || !selectCounter(keep)) {
        GridSetup::selectRow(grdList, 0);
    }
}

void frmParameters::fill() {
    m_model->removeRows(0, m_model->rowCount());
    for (const TypesRepository::Value& v : m_values) {
        QList<QStandardItem*> row{new QStandardItem(v.code), new QStandardItem(v.name),
                                  new QStandardItem(v.nameEng), new QStandardItem(v.note)};
        row.first()->setData(v.counter, Qt::UserRole);
        m_model->appendRow(row);
    }
    grdList->resizeColumnToContents(0);
}

int frmParameters::currentCounter() const {
    const int row = GridSetup::selectedRow(grdList);
    return row >= 0 && row < m_values.size() ? m_values.at(row).counter : 0;
}

bool frmParameters::selectCounter(int counter) {
    for (qsizetype i = 0; i < m_values.size(); ++i) {
        if (m_values.at(i).counter == counter) {
            GridSetup::selectRow(grdList, int(i));
            return true;
        }
    }
    return false;
}

frmNewPara* frmParameters::openEditor(int counter) {
    auto* editor = new frmNewPara(m_database, m_messages, m_typeNo, counter, this);
    editor->setAttribute(Qt::WA_DeleteOnClose);
    connect(editor, &frmNewPara::saved, this, [this](int savedCounter) {
        reload();
        selectCounter(savedCounter);
    });
    editor->open();
    return editor;
}

void frmParameters::deleteCurrent() {
    const int counter = currentCounter();
    if (counter <= 0) {
        return;
    }
    const CheckResult allowed = m_repository.canDelete(m_typeNo, counter);
    if (!allowed.ok) {
        ResultMessage::show(m_messages, allowed);
        return;
    }
    if (!m_messages.show(allowed.message, MessageStyle::QuestionOkCancel)) {
        return;
    }
    if (m_repository.remove(counter)) {
        reload();
    }
}

}  // namespace sandogh
