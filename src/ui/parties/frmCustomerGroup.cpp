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
    , messages_(messages)
    , repository_(database)
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
    model_ = GridSetup::configure(
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
                if (current.isValid() && current.row() < groups_.size()) {
                    display(groups_.at(current.row()));
                }
            });
    connect(cmdColor, &QPushButton::clicked, this, &frmCustomerGroup::chooseColor);
    connect(cmdNew, &QPushButton::clicked, this, &frmCustomerGroup::startNew);
    connect(cmdSave, &QPushButton::clicked, this, &frmCustomerGroup::save);
    connect(cmdDelete, &QPushButton::clicked, this, &frmCustomerGroup::deleteCurrent);
    connect(cmdExit, &QPushButton::clicked, this, &QWidget::close);
    reload();
    if (groups_.isEmpty()) {
        startNew();
    }
}

void frmCustomerGroup::reload() {
    const int keep = group_.code;
    groups_ = repository_.list(txtSearch->text());
    model_->removeRows(0, model_->rowCount());
    for (const CustomerGroup& g : groups_) {
        auto* color = new QStandardItem;
        color->setData(QColor(QRgb(g.color)), Qt::DecorationRole);
        model_->appendRow({new QStandardItem(QString::number(g.code)), new QStandardItem(g.name),
                           new QStandardItem(amount(g.discountPercent, 2)),
                           new QStandardItem(amount(g.buyFactor, 3)),
                           new QStandardItem(amount(g.amountRebate, 0)), color});
    }
    if (keep == 0 || !selectCode(keep)) {
        GridSetup::selectRow(grdGroups, 0);
    }
}

bool frmCustomerGroup::selectCode(int code) {
    for (qsizetype i = 0; i < groups_.size(); ++i) {
        if (groups_.at(i).code == code) {
            GridSetup::selectRow(grdGroups, int(i));
            display(groups_.at(i));
            return true;
        }
    }
    return false;
}

void frmCustomerGroup::display(const CustomerGroup& g) {
    group_ = g;
    txtCode->setText(g.code > 0 ? QString::number(g.code) : QString());
    txtName->setText(g.name);
    txtDiscountPercent->setValue(g.discountPercent);
    txtBuyFactor->setValue(g.buyFactor);
    txtAmountRebate->setValue(g.amountRebate);
    setColor(g.color);
    cmdDelete->setEnabled(g.code > 0);
}

void frmCustomerGroup::setColor(qint64 rgb) {
    group_.color = rgb;
    const QColor color{QRgb(rgb)};
    cmdColor->setText(color.name());
    cmdColor->setStyleSheet(QStringLiteral("background: %1; color: %2;")
                                .arg(color.name(), color.lightness() > 128
                                                       ? QStringLiteral("black")
                                                       : QStringLiteral("white")));
}

void frmCustomerGroup::chooseColor() {
    const QColor chosen = QColorDialog::getColor(QColor(QRgb(group_.color)), this);
    if (chosen.isValid()) {
        setColor(chosen.rgb() & 0xffffff);
    }
}

CustomerGroup frmCustomerGroup::group() const {
    CustomerGroup g = group_;
    g.name = txtName->text();
    g.discountPercent = txtDiscountPercent->value();
    g.buyFactor = txtBuyFactor->value();
    g.amountRebate = txtAmountRebate->value();
    return g;
}

void frmCustomerGroup::startNew() {
    grdGroups->clearSelection();
    display(CustomerGroup{});
    txtCode->setText(QString::number(repository_.nextCode()));
    txtName->setFocus();
}

bool frmCustomerGroup::save() {
    CustomerGroup g = group();
    const CheckResult result = repository_.save(g);
    ResultMessage::show(messages_, result);
    if (!result.ok) {
        return false;
    }
    group_ = g;
    reload();
    return true;
}

void frmCustomerGroup::deleteCurrent() {
    if (group_.code <= 0) {
        return;
    }
    const CheckResult allowed = repository_.canDelete(group_.code);
    if (!allowed.ok) {
        ResultMessage::show(messages_, allowed);
        return;
    }
    if (!messages_.show(allowed.message, MessageStyle::QuestionOkCancel)) {
        return;
    }
    const CheckResult removed = repository_.remove(group_.code);
    ResultMessage::show(messages_, removed);
    if (removed.ok) {
        group_ = {};
        reload();
        if (groups_.isEmpty()) {
            startNew();
        }
    }
}

}  // namespace sandogh
