#include "ui/parties/frmCustomerGroup.h"

#include <QColorDialog>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QItemSelectionModel>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QStandardItemModel>
#include <QTableView>
#include <QVBoxLayout>

#include "common/AmountText.h"
#include "settings/MessageService.h"
#include "ui/catalog/GridSetup.h"
#include "ui/catalog/ResultMessage.h"
#include "ui/parties/PartyCaptions.h"
#include "ui/widgets/AmountEdit.h"

namespace sandogh {

namespace {

template <typename T>
T* named(T* widget, const char* name) {
    widget->setObjectName(QString::fromLatin1(name));
    return widget;
}

QString amount(double value, int decimals) {
    return QString::fromStdString(AmountText::format(value, decimals));
}

}  // namespace

frmCustomerGroup::frmCustomerGroup(Database& database, MessageService& messages, QWidget* parent)
    : QWidget(parent)
    , m_messages(messages)
    , m_repository(database)
    , txtSearch(named(new QLineEdit(this), "txtSearch"))
    , grdGroups(named(new QTableView(this), "grdGroups"))
    , txtCode(named(new QLineEdit(this), "txtCode"))
    , txtName(named(new QLineEdit(this), "txtName"))
    , txtDiscountPercent(named(new AmountEdit(this), "txtDiscountPercent"))
    , txtBuyFactor(named(new AmountEdit(this), "txtBuyFactor"))
    , txtAmountRebate(named(new AmountEdit(this), "txtAmountRebate"))
    , cmdColor(named(new QPushButton(this), "cmdColor"))
    , cmdNew(named(new QPushButton(partycaptions::kNew, this), "cmdNew"))
    , cmdSave(named(new QPushButton(partycaptions::kSave, this), "cmdSave"))
    , cmdDelete(named(new QPushButton(partycaptions::kDelete, this), "cmdDelete"))
    , cmdExit(named(new QPushButton(partycaptions::kExit, this), "cmdExit")) {
    using namespace partycaptions;
    setObjectName(QStringLiteral("frmCustomerGroup"));
    setLayoutDirection(Qt::RightToLeft);
    setWindowTitle(kGroupsTitle);
    cmdColor->setLayoutDirection(Qt::LeftToRight);  // "#rrggbb"
    txtCode->setReadOnly(true);
    txtCode->setFocusPolicy(Qt::NoFocus);
    txtDiscountPercent->setDecimals(2);
    txtBuyFactor->setDecimals(3);
    m_model = GridSetup::configure(
        grdGroups, {kCode, kName, kDiscountPercent, kBuyFactor, kAmountRebate, kColor});

    auto* search = new QHBoxLayout;
    search->addWidget(new QLabel(kSearch, this));
    search->addWidget(txtSearch, 1);
    auto* form = new QFormLayout;
    form->addRow(kCode, txtCode);
    form->addRow(kName, txtName);
    form->addRow(kDiscountPercent, txtDiscountPercent);
    form->addRow(kBuyFactor, txtBuyFactor);
    form->addRow(kAmountRebate, txtAmountRebate);
    form->addRow(kColor, cmdColor);
    auto* buttons = new QHBoxLayout;
    buttons->addWidget(cmdNew);
    buttons->addWidget(cmdSave);
    buttons->addWidget(cmdDelete);
    buttons->addStretch(1);
    buttons->addWidget(cmdExit);
    auto* layout = new QVBoxLayout(this);
    layout->addLayout(search);
    layout->addWidget(grdGroups, 1);
    layout->addLayout(form);
    layout->addLayout(buttons);
    resize(640, 560);

    connect(txtSearch, &QLineEdit::textChanged, this, &frmCustomerGroup::reload);
    connect(grdGroups->selectionModel(), &QItemSelectionModel::currentRowChanged, this,
            [this](const QModelIndex& current) {
                if (current.isValid() && current.row() < m_groups.size()) {
                    display(m_groups.at(current.row()));
                }
            });
    connect(cmdColor, &QPushButton::clicked, this, &frmCustomerGroup::chooseColor);
    connect(cmdNew, &QPushButton::clicked, this, &frmCustomerGroup::startNew);
    connect(cmdSave, &QPushButton::clicked, this, &frmCustomerGroup::save);
    connect(cmdDelete, &QPushButton::clicked, this, &frmCustomerGroup::deleteCurrent);
    connect(cmdExit, &QPushButton::clicked, this, &QWidget::close);
    reload();
    if (m_groups.isEmpty()) {
        startNew();
    }
}

void frmCustomerGroup::reload() {
    const int keep = m_group.code;
    m_groups = m_repository.list(txtSearch->text());
    m_model->removeRows(0, m_model->rowCount());
    for (const CustomerGroup& g : m_groups) {
        auto* color = new QStandardItem;
        color->setData(QColor(QRgb(g.color)), Qt::DecorationRole);
        m_model->appendRow({new QStandardItem(QString::number(g.code)), new QStandardItem(g.name),
                            new QStandardItem(amount(g.discountPercent, 2)),
                            new QStandardItem(amount(g.buyFactor, 3)),
                            new QStandardItem(amount(g.amountRebate, 0)), color});
    }
    if (keep == 0 || !selectCode(keep)) {
        GridSetup::selectRow(grdGroups, 0);
    }
}

bool frmCustomerGroup::selectCode(int code) {
    for (qsizetype i = 0; i < m_groups.size(); ++i) {
        if (m_groups.at(i).code == code) {
            GridSetup::selectRow(grdGroups, int(i));
            display(m_groups.at(i));
            return true;
        }
    }
    return false;
}

void frmCustomerGroup::display(const CustomerGroup& g) {
    m_group = g;
    txtCode->setText(g.code > 0 ? QString::number(g.code) : QString());
    txtName->setText(g.name);
    txtDiscountPercent->setValue(g.discountPercent);
    txtBuyFactor->setValue(g.buyFactor);
    txtAmountRebate->setValue(g.amountRebate);
    setColor(g.color);
    cmdDelete->setEnabled(g.code > 0);
}

void frmCustomerGroup::setColor(qint64 rgb) {
    m_group.color = rgb;
    const QColor color{QRgb(rgb)};
    cmdColor->setText(color.name());
    cmdColor->setStyleSheet(QStringLiteral("background: %1; color: %2;")
                                .arg(color.name(), color.lightness() > 128
                                                       ? QStringLiteral("black")
                                                       : QStringLiteral("white")));
}

void frmCustomerGroup::chooseColor() {
    const QColor chosen = QColorDialog::getColor(QColor(QRgb(m_group.color)), this);
    if (chosen.isValid()) {
        setColor(chosen.rgb() & 0xffffff);
    }
}

CustomerGroup frmCustomerGroup::group() const {
    CustomerGroup g = m_group;
    g.name = txtName->text();
    g.discountPercent = txtDiscountPercent->value();
    g.buyFactor = txtBuyFactor->value();
    g.amountRebate = txtAmountRebate->value();
    return g;
}

void frmCustomerGroup::startNew() {
    grdGroups->clearSelection();
    display(CustomerGroup{});
    txtCode->setText(QString::number(m_repository.nextCode()));
    txtName->setFocus();
}

bool frmCustomerGroup::save() {
    CustomerGroup g = group();
    const CheckResult result = m_repository.save(g);
    ResultMessage::show(m_messages, result);
    if (!result.ok) {
        return false;
    }
    m_group = g;
    reload();
    return true;
}

void frmCustomerGroup::deleteCurrent() {
    if (m_group.code <= 0) {
        return;
    }
    const CheckResult allowed = m_repository.canDelete(m_group.code);
    if (!allowed.ok) {
        ResultMessage::show(m_messages, allowed);
        return;
    }
    if (!m_messages.show(allowed.message, MessageStyle::QuestionOkCancel)) {
        return;
    }
    const CheckResult removed = m_repository.remove(m_group.code);
    ResultMessage::show(m_messages, removed);
    if (removed.ok) {
        m_group = {};
        reload();
        if (m_groups.isEmpty()) {
            startNew();
        }
    }
}

}  // namespace sandogh
