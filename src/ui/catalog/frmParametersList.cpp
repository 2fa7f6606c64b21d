#include "ui/catalog/frmParametersList.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QStandardItemModel>
#include <QTableView>
#include <QVBoxLayout>

#include "ui/catalog/CatalogCaptions.h"
#include "ui/catalog/GridSetup.h"
#include "ui/catalog/ParameterLists.h"
#include "ui/widgets/ButtonCaptions.h"

namespace sandogh {

frmParametersList::frmParametersList(Database& database, MessageService& messages, int typeNo,
                                     int parentCounter, QWidget* parent)
    : QDialog(parent)
    , m_typeNo(typeNo)
    , m_parentCounter(parentCounter)
    , m_repository(database, &messages)
    , txtSearch(new QLineEdit(this))
    , cboSearchColumn(new QComboBox(this))
    , grdList(new QTableView(this))
    , cmdOk(new QPushButton(catalogcaptions::kChoose, this))
    , cmdCancel(new QPushButton(ButtonCaptions::cancel(), this)) {
    using namespace catalogcaptions;
    setObjectName(QStringLiteral("frmParametersList"));
    setLayoutDirection(Qt::RightToLeft);
    setWindowTitle(kPickerTitle + QStringLiteral(" - ") + ParameterLists::title(database, typeNo));
    txtSearch->setObjectName(QStringLiteral("txtSearch"));
    cboSearchColumn->setObjectName(QStringLiteral("cboSearchColumn"));
    grdList->setObjectName(QStringLiteral("grdList"));
    cmdOk->setObjectName(QStringLiteral("cmdOk"));
    cmdCancel->setObjectName(QStringLiteral("cmdCancel"));
    cboSearchColumn->addItems({kCode, kName});
    cboSearchColumn->setCurrentIndex(1);
    m_model = GridSetup::configure(grdList, {kCode, kName});
    cmdOk->setDefault(true);

    auto* search = new QHBoxLayout;
    search->addWidget(new QLabel(kSearch, this));
    search->addWidget(txtSearch, 1);
    search->addWidget(new QLabel(kSearchIn, this));
    search->addWidget(cboSearchColumn);
    auto* buttons = new QHBoxLayout;
    buttons->addStretch(1);
    buttons->addWidget(cmdOk);
    buttons->addWidget(cmdCancel);
    auto* layout = new QVBoxLayout(this);
    layout->addLayout(search);
    layout->addWidget(grdList, 1);
    layout->addLayout(buttons);
    resize(420, 420);

    connect(txtSearch, &QLineEdit::textChanged, this, &frmParametersList::reload);
    connect(cboSearchColumn, &QComboBox::currentIndexChanged, this, [this] {
        if (!txtSearch->text().isEmpty()) {
            reload();
        }
    });
    connect(grdList, &QTableView::doubleClicked, this, &frmParametersList::confirm);
    connect(cmdOk, &QPushButton::clicked, this, &frmParametersList::confirm);
    connect(cmdCancel, &QPushButton::clicked, this, &QDialog::reject);
    reload();
    txtSearch->setFocus();
}

void frmParametersList::reload() {
    const QString text = txtSearch->text();
    const auto column = cboSearchColumn->currentIndex() == 0 ? TypesRepository::SearchColumn::Code
                                                             : TypesRepository::SearchColumn::Name;
    m_values = text.isEmpty() ? m_repository.picker(m_typeNo, m_parentCounter)
                              : m_repository.picker(m_typeNo, m_parentCounter, column, text);
    m_model->removeRows(0, m_model->rowCount());
    for (const TypesRepository::Value& v : m_values) {
        m_model->appendRow({new QStandardItem(v.code), new QStandardItem(v.name)});
    }
    grdList->resizeColumnToContents(0);
    GridSetup::selectRow(grdList, 0);
}

bool frmParametersList::selectCounter(int counter) {
    for (qsizetype i = 0; i < m_values.size(); ++i) {
        if (m_values.at(i).counter == counter) {
            GridSetup::selectRow(grdList, int(i));
            return true;
        }
    }
    return false;
}

TypesRepository::Value frmParametersList::current() const {
    const int row = GridSetup::selectedRow(grdList);
    return row >= 0 && row < m_values.size() ? m_values.at(row) : TypesRepository::Value{};
}

bool frmParametersList::confirm() {
    const TypesRepository::Value value = current();
    if (value.counter <= 0) {
        return false;
    }
    emit chosen(value);
    accept();
    return true;
}

}  // namespace sandogh
