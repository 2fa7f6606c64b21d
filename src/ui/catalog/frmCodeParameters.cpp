#include "ui/catalog/frmCodeParameters.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QStandardItemModel>
#include <QTableView>
#include <QVBoxLayout>

#include "settings/MessageService.h"
#include "ui/catalog/CatalogCaptions.h"
#include "ui/catalog/GridSetup.h"
#include "ui/catalog/ResultMessage.h"
#include "ui/catalog/frmNewCodePara.h"
#include "ui/catalog/frmParameters.h"

namespace sandogh {

frmCodeParameters::frmCodeParameters(Database& database, MessageService& messages,
                                     CodeLevelsRepository::Family family, QWidget* parent)
    : QWidget(parent)
    , m_database(database)
    , m_messages(messages)
    , m_family(family)
    , m_repository(database)
    , txtSearch(new QLineEdit(this))
    , cboSearchColumn(new QComboBox(this))
    , grdLevels(new QTableView(this))
    , cmdNew(new QPushButton(catalogcaptions::kNew, this))
    , cmdEdit(new QPushButton(catalogcaptions::kEdit, this))
    , cmdDelete(new QPushButton(catalogcaptions::kDelete, this))
    , cmdValues(new QPushButton(catalogcaptions::kValues, this))
    , cmdExit(new QPushButton(catalogcaptions::kExit, this)) {
    using namespace catalogcaptions;
    setObjectName(QStringLiteral("frmCodeParameters"));
    setLayoutDirection(Qt::RightToLeft);
    setWindowTitle(family == CodeLevelsRepository::Family::Goods ? kGoodsLevelsTitle
                                                                 : kAccountLevelsTitle);
    txtSearch->setObjectName(QStringLiteral("txtSearch"));
    cboSearchColumn->setObjectName(QStringLiteral("cboSearchColumn"));
    grdLevels->setObjectName(QStringLiteral("grdLevels"));
    cmdNew->setObjectName(QStringLiteral("cmdNew"));
    cmdEdit->setObjectName(QStringLiteral("cmdEdit"));
    cmdDelete->setObjectName(QStringLiteral("cmdDelete"));
    cmdValues->setObjectName(QStringLiteral("cmdValues"));
    cmdExit->setObjectName(QStringLiteral("cmdExit"));
    cboSearchColumn->addItems({kLevelName, kLevelNameEnglish});
    m_model = GridSetup::configure(
        grdLevels, {kLevelTypeNo, kLevelName, kLevelNameEnglish, kDigitQty, kParameterLevel});

    auto* search = new QHBoxLayout;
    search->addWidget(new QLabel(kSearch, this));
    search->addWidget(txtSearch, 1);
    search->addWidget(new QLabel(kSearchIn, this));
    search->addWidget(cboSearchColumn);
    auto* buttons = new QHBoxLayout;
    buttons->addWidget(cmdNew);
    buttons->addWidget(cmdEdit);
    buttons->addWidget(cmdDelete);
    buttons->addWidget(cmdValues);
    buttons->addStretch(1);
    buttons->addWidget(cmdExit);
    auto* layout = new QVBoxLayout(this);
    layout->addLayout(search);
    layout->addWidget(grdLevels, 1);
    layout->addLayout(buttons);
    resize(680, 400);

    connect(txtSearch, &QLineEdit::textChanged, this, &frmCodeParameters::reload);
    connect(cboSearchColumn, &QComboBox::currentIndexChanged, this, [this] {
        if (!txtSearch->text().isEmpty()) {
            reload();
        }
    });
    connect(cmdNew, &QPushButton::clicked, this, [this] { openEditor(0); });
    connect(cmdEdit, &QPushButton::clicked, this, [this] {
        if (const auto level = currentLevel(); level.counter > 0) {
            openEditor(level.counter);
        }
    });
    connect(grdLevels, &QTableView::doubleClicked, this, [this] {
        if (const auto level = currentLevel(); level.counter > 0) {
            openEditor(level.counter);
        }
    });
    connect(cmdDelete, &QPushButton::clicked, this, &frmCodeParameters::deleteCurrent);
    connect(cmdValues, &QPushButton::clicked, this, &frmCodeParameters::openValues);
    connect(cmdExit, &QPushButton::clicked, this, &QWidget::close);
    reload();
}

void frmCodeParameters::reload() {
    const int keep = currentLevel().typeNo;
    const QString text = txtSearch->text();
    const auto column = cboSearchColumn->currentIndex() == 1
                            ? CodeLevelsRepository::SearchColumn::NameEnglish
                            : CodeLevelsRepository::SearchColumn::Name;
    m_levels =
        text.isEmpty() ? m_repository.list(m_family) : m_repository.list(m_family, column, text);
    m_model->removeRows(0, m_model->rowCount());
    for (const auto& level : m_levels) {
        QList<QStandardItem*> row{new QStandardItem(QString::number(level.typeNo)),
                                  new QStandardItem(level.name),
                                  new QStandardItem(level.nameEnglish),
                                  new QStandardItem(QString::number(level.digitQty)),
                                  new QStandardItem(QString::number(level.parameterLevel))};
        m_model->appendRow(row);
    }
    if (keep == 0 || !selectTypeNo(keep)) {
        GridSetup::selectRow(grdLevels, 0);
    }
}

CodeLevelsRepository::Level frmCodeParameters::currentLevel() const {
    const int row = GridSetup::selectedRow(grdLevels);
    return row >= 0 && row < m_levels.size() ? m_levels.at(row) : CodeLevelsRepository::Level{};
}

bool frmCodeParameters::selectTypeNo(int typeNo) {
    for (qsizetype i = 0; i < m_levels.size(); ++i) {
        if (m_levels.at(i).typeNo == typeNo) {
            GridSetup::selectRow(grdLevels, int(i));
            return true;
        }
    }
    return false;
}

frmNewCodePara* frmCodeParameters::openEditor(int counter) {
    CodeLevelsRepository::Level level;
    for (const auto& l : m_levels) {
        if (l.counter == counter) {
            level = l;
        }
    }
    auto* editor = new frmNewCodePara(m_database, m_messages, m_family, level, this);
    editor->setAttribute(Qt::WA_DeleteOnClose);
    connect(editor, &frmNewCodePara::saved, this, [this](int typeNo) {
        reload();
        selectTypeNo(typeNo);
    });
    editor->open();
    return editor;
}

frmParameters* frmCodeParameters::openValues() {
    const auto level = currentLevel();
    if (level.typeNo <= 0) {
        return nullptr;
    }
    auto* values = new frmParameters(m_database, m_messages, level.typeNo, this);
    values->setWindowFlag(Qt::Window);
    values->setAttribute(Qt::WA_DeleteOnClose);
    values->show();
    return values;
}

void frmCodeParameters::deleteCurrent() {
    const auto level = currentLevel();
    if (level.counter <= 0) {
        return;
    }
    const CheckResult allowed = m_repository.canDelete(level.typeNo);
    if (!allowed.ok) {
        ResultMessage::show(m_messages, allowed);
        return;
    }
    if (!m_messages.show(allowed.message, MessageStyle::QuestionOkCancel)) {
        return;
    }
    if (m_repository.remove(level.counter)) {
        reload();
    }
}

}  // namespace sandogh
