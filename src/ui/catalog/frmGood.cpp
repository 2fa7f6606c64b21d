#include "ui/catalog/frmGood.h"

#include <QButtonGroup>
#include <QCheckBox>
#include <QComboBox>
#include <QFormLayout>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QSpinBox>
#include <QToolButton>
#include <QVBoxLayout>

#include "data/repositories/CodeLevelsRepository.h"
#include "data/repositories/GoodsMessages.h"
#include "data/repositories/TypesRepository.h"
#include "settings/MessageService.h"
#include "ui/catalog/CatalogCaptions.h"
#include "ui/catalog/ResultMessage.h"
#include "ui/catalog/frmParametersList.h"
#include "ui/widgets/AmountEdit.h"

namespace sandogh {

namespace {

constexpr int kFirstLevel = CodeLevelsRepository::kFirstGoodsLevel;
constexpr int kFavouriteTabs = 20;

std::size_t slot(int level) {
    return static_cast<std::size_t>(level - 1);
}

QString levelText(const GoodsRepository::LevelValue& value) {
    return value.counter > 0 ? value.code + QStringLiteral(" - ") + value.name : QString();
}

template <typename T>
T* named(T* widget, const char* name) {
    widget->setObjectName(QString::fromLatin1(name));
    return widget;
}

}  // namespace

frmGood::frmGood(Database& database, MessageService& messages, const Clock& clock, int userId,
                 GoodsSavedHook* hook, const QString& barcode, QWidget* parent)
    : QWidget(parent)
    , m_database(database)
    , m_messages(messages)
    , m_repository(database, clock, userId, hook)
    , txtBarcode(named(new QLineEdit(this), "txtBarcode"))
    , txtName(named(new QLineEdit(this), "txtName"))
    , txtEnName(named(new QLineEdit(this), "txtEnName"))
    , txtSpecCode(named(new QLineEdit(this), "txtSpecCode"))
    , txtCost(named(new AmountEdit(this), "txtCost"))
    , txtCost2(named(new AmountEdit(this), "txtCost2"))
    , txtArticlePrice(named(new AmountEdit(this), "txtArticlePrice"))
    , txtTaxValue(named(new AmountEdit(this), "txtTaxValue"))
    , cboUnit(named(new QComboBox(this), "cboUnit"))
    , optCounted(named(new QRadioButton(catalogcaptions::kCounted, this), "optCounted"))
    , optWeighed(named(new QRadioButton(catalogcaptions::kWeighed, this), "optWeighed"))
    , chkFavorite(named(new QCheckBox(catalogcaptions::kFavourite, this), "chkFavorite"))
    , spnFavoriteTab(named(new QSpinBox(this), "spnFavoriteTab"))
    , chkAQIS(named(new QCheckBox(catalogcaptions::kAskQuantity, this), "chkAQIS"))
    , txtComplexCode(named(new QLineEdit(this), "txtComplexCode"))
    , txtStockNo1(named(new QLineEdit(this), "txtStockNo1"))
    , txtStockNo2(named(new QLineEdit(this), "txtStockNo2"))
    , chkActive(named(new QCheckBox(catalogcaptions::kActive, this), "chkActive"))
    , cmdNew(named(new QPushButton(catalogcaptions::kNew, this), "cmdNew"))
    , cmdSave(named(new QPushButton(catalogcaptions::kSave, this), "cmdSave"))
    , cmdDelete(named(new QPushButton(catalogcaptions::kDelete, this), "cmdDelete"))
    , cmdExit(named(new QPushButton(catalogcaptions::kExit, this), "cmdExit")) {
    using namespace catalogcaptions;
    setObjectName(QStringLiteral("frmGood"));
    setLayoutDirection(Qt::RightToLeft);
    setWindowTitle(kGoodTitle);
    // Codes and Latin text read left to right inside the right-to-left screen.
    for (QLineEdit* box : {txtBarcode, txtEnName, txtSpecCode, txtComplexCode}) {
        box->setLayoutDirection(Qt::LeftToRight);
    }
    txtTaxValue->setDecimals(2);
    txtComplexCode->setReadOnly(true);
    txtComplexCode->setFocusPolicy(Qt::NoFocus);
    spnFavoriteTab->setRange(0, kFavouriteTabs);
    auto* kinds = new QButtonGroup(this);
    kinds->addButton(optCounted);
    kinds->addButton(optWeighed);

    auto* article = new QGroupBox(kArticle, this);
    auto* articleForm = new QFormLayout(article);
    articleForm->addRow(kBarcode, txtBarcode);
    articleForm->addRow(kGoodsName, txtName);
    articleForm->addRow(kNameEng, txtEnName);
    articleForm->addRow(kSpecCode, txtSpecCode);
    articleForm->addRow(kUnit, cboUnit);
    auto* kindRow = new QHBoxLayout;
    kindRow->addWidget(optCounted);
    kindRow->addWidget(optWeighed);
    kindRow->addStretch(1);
    articleForm->addRow(QString(), kindRow);
    articleForm->addRow(QString(), chkActive);

    auto* prices = new QGroupBox(kPrices, this);
    auto* pricesForm = new QFormLayout(prices);
    pricesForm->addRow(kCost, txtCost);
    pricesForm->addRow(kCost2, txtCost2);
    pricesForm->addRow(kArticlePrice, txtArticlePrice);
    pricesForm->addRow(kTaxValue, txtTaxValue);

    auto* sale = new QGroupBox(kSale, this);
    auto* saleForm = new QFormLayout(sale);
    auto* favouriteRow = new QHBoxLayout;
    favouriteRow->addWidget(chkFavorite);
    favouriteRow->addWidget(new QLabel(kFavoriteTab, this));
    favouriteRow->addWidget(spnFavoriteTab);
    favouriteRow->addStretch(1);
    saleForm->addRow(favouriteRow);
    saleForm->addRow(chkAQIS);
    saleForm->addRow(kStockNo1, txtStockNo1);
    saleForm->addRow(kStockNo2, txtStockNo2);

    auto* top = new QHBoxLayout;
    top->addWidget(article, 3);
    auto* side = new QVBoxLayout;
    side->addWidget(prices);
    side->addWidget(sale);
    top->addLayout(side, 2);

    auto* buttons = new QHBoxLayout;
    buttons->addWidget(cmdNew);
    buttons->addWidget(cmdSave);
    buttons->addWidget(cmdDelete);
    buttons->addStretch(1);
    buttons->addWidget(cmdExit);

    auto* layout = new QVBoxLayout(this);
    layout->addLayout(top);
    layout->addWidget(buildLevels(), 1);
    layout->addLayout(buttons);

    fillUnits();
    connect(cmdNew, &QPushButton::clicked, this, &frmGood::startNew);
    connect(cmdSave, &QPushButton::clicked, this, &frmGood::save);
    connect(cmdDelete, &QPushButton::clicked, this, &frmGood::deleteArticle);
    connect(cmdExit, &QPushButton::clicked, this, &QWidget::close);

    if (barcode.trimmed().isEmpty() || !load(barcode)) {
        startNew();
    }
}

QGroupBox* frmGood::buildLevels() {
    using namespace catalogcaptions;
    auto* box = new QGroupBox(kLevels, this);
    auto* grid = new QGridLayout(box);
    int row = 0;
    CodeLevelsRepository levels(m_database);
    for (const auto& level : levels.list(CodeLevelsRepository::Family::Goods)) {
        const int n = level.typeNo - kFirstLevel + 1;
        if (n < 1 || n > GoodsArticle::kLevels) {
            continue;
        }
        LevelRow& r = m_levelRows[slot(n)];
        r.digits = level.digitQty;
        r.label =
            new QLabel(level.name.isEmpty() ? QString::number(level.typeNo) : level.name, box);
        r.text = new QLineEdit(box);
        r.text->setObjectName(QStringLiteral("txtLevel%1").arg(n));
        r.text->setReadOnly(true);
        r.text->setFocusPolicy(Qt::NoFocus);
        r.pick = new QToolButton(box);
        r.pick->setObjectName(QStringLiteral("cmdLevel%1").arg(n));
        r.pick->setText(kPick);
        r.clear = new QToolButton(box);
        r.clear->setObjectName(QStringLiteral("cmdClearLevel%1").arg(n));
        r.clear->setText(kClear);
        // Two levels a row, a gap between them.
        const int column = (row % 2) * 5;
        grid->addWidget(r.label, row / 2, column);
        grid->addWidget(r.text, row / 2, column + 1);
        grid->addWidget(r.pick, row / 2, column + 2);
        grid->addWidget(r.clear, row / 2, column + 3);
        ++row;
        connect(r.pick, &QToolButton::clicked, this, [this, n] { openLevelPicker(n); });
        connect(r.clear, &QToolButton::clicked, this, [this, n] { chooseLevel(n, 0); });
    }
    grid->setColumnStretch(1, 1);
    grid->setColumnStretch(6, 1);
    grid->setColumnMinimumWidth(4, 18);
    const int last = (row + 1) / 2;
    grid->addWidget(new QLabel(kComplexCode, box), last, 0);
    grid->addWidget(txtComplexCode, last, 1, 1, 3);
    box->setVisible(row > 0);
    return box;
}

void frmGood::fillUnits() {
    cboUnit->clear();
    cboUnit->addItem(QString(), 0);
    TypesRepository types(m_database, &m_messages);
    for (const auto& unit : types.units()) {
        cboUnit->addItem(unit.name, unit.counter);
    }
}

void frmGood::startNew() {
    GoodsArticle fresh;
    fresh.barcode = m_repository.proposedBarcode();
    display(fresh);
    txtBarcode->setReadOnly(false);
    txtBarcode->setFocus();
    txtBarcode->selectAll();
}

bool frmGood::load(const QString& barcode) {
    const std::optional<GoodsArticle> found = m_repository.find(barcode);
    if (!found) {
        m_messages.show(goodsmessages::kArticleNotFound, MessageStyle::Critical);
        return false;
    }
    display(*found);
    // Documents know the article by its barcode: it stays as it is.
    txtBarcode->setReadOnly(true);
    txtName->setFocus();
    return true;
}

void frmGood::display(const GoodsArticle& a) {
    m_article = a;
    txtBarcode->setText(a.barcode);
    txtName->setText(a.name);
    txtEnName->setText(a.enName);
    txtSpecCode->setText(a.specCode);
    txtCost->setValue(a.cost);
    txtCost2->setValue(a.cost2);
    txtArticlePrice->setValue(a.articlePrice);
    txtTaxValue->setValue(a.taxValue);
    const int unit = cboUnit->findData(a.unit);
    cboUnit->setCurrentIndex(unit >= 0 ? unit : 0);
    optWeighed->setChecked(a.weighed);
    optCounted->setChecked(!a.weighed);
    chkFavorite->setChecked(a.favourite);
    spnFavoriteTab->setValue(a.favoriteTab);
    chkAQIS->setChecked(a.askQuantity);
    txtStockNo1->setText(a.stockNo1);
    txtStockNo2->setText(a.stockNo2);
    chkActive->setChecked(a.active);
    m_levels = a.levels;
    showLevels();
    if (!a.complexCode.isEmpty()) {
        txtComplexCode->setText(a.complexCode);
    }
    cmdDelete->setEnabled(!a.isNew());
}

void frmGood::showLevels() {
    const auto values = m_repository.levelValues(m_levels);
    for (int n = 1; n <= GoodsArticle::kLevels; ++n) {
        if (LevelRow& r = m_levelRows[slot(n)]; r.text != nullptr) {
            r.text->setText(levelText(values[slot(n)]));
        }
    }
    txtComplexCode->setText(m_repository.composeComplexCode(m_levels));
}

GoodsArticle frmGood::article() const {
    GoodsArticle a = m_article;  // keeps the columns the screen does not show
    a.barcode = txtBarcode->text();
    a.name = txtName->text();
    a.enName = txtEnName->text();
    a.specCode = txtSpecCode->text();
    a.cost = txtCost->value();
    a.cost2 = txtCost2->value();
    a.articlePrice = txtArticlePrice->value();
    a.taxValue = txtTaxValue->value();
    a.unit = cboUnit->currentData().toInt();
    a.weighed = optWeighed->isChecked();
    a.favourite = chkFavorite->isChecked();
    a.favoriteTab = spnFavoriteTab->value();
    a.askQuantity = chkAQIS->isChecked();
    a.levels = m_levels;
    a.complexCode = txtComplexCode->text();
    a.stockNo1 = txtStockNo1->text();
    a.stockNo2 = txtStockNo2->text();
    a.active = chkActive->isChecked();
    return a;
}

bool frmGood::hasLevel(int level) const {
    return level >= 1 && level <= GoodsArticle::kLevels && m_levelRows[slot(level)].text != nullptr;
}

frmParametersList* frmGood::openLevelPicker(int level) {
    if (!hasLevel(level)) {
        return nullptr;
    }
    const int parent = level > 1 ? m_levels[slot(level - 1)] : 0;
    auto* picker =
        new frmParametersList(m_database, m_messages, kFirstLevel + level - 1, parent, this);
    picker->setAttribute(Qt::WA_DeleteOnClose);
    picker->selectCounter(m_levels[slot(level)]);
    connect(
        picker, &frmParametersList::chosen, this,
        [this, level](const TypesRepository::Value& value) { chooseLevel(level, value.counter); });
    picker->open();
    return picker;
}

void frmGood::chooseLevel(int level, int counter) {
    if (level < 1 || level > GoodsArticle::kLevels) {
        return;
    }
    m_levels[slot(level)] = counter;
    showLevels();
}

bool frmGood::save() {
    GoodsArticle a = article();
    const CheckResult result = m_repository.save(a);
    ResultMessage::show(m_messages, result);
    if (!result.ok) {
        return false;
    }
    display(a);
    txtBarcode->setReadOnly(true);
    emit saved(a.barcode);
    return true;
}

void frmGood::deleteArticle() {
    if (!isEditing()) {
        return;
    }
    const QString barcode = m_article.barcode;
    const CheckResult allowed = m_repository.canDelete(barcode);
    if (!allowed.ok) {
        ResultMessage::show(m_messages, allowed);
        if (m_article.active &&
            m_messages.show(goodsmessages::kDeactivateQuestion, MessageStyle::QuestionYesNo) &&
            m_repository.setActive(barcode, false)) {
            m_article.active = false;
            chkActive->setChecked(false);
            emit saved(barcode);
        }
        return;
    }
    if (!m_messages.show(allowed.message, MessageStyle::QuestionOkCancel)) {
        return;
    }
    const CheckResult removed = m_repository.remove(barcode);
    if (!removed.ok) {
        ResultMessage::show(m_messages, removed);
        return;
    }
    emit deleted(barcode);
    startNew();
}

}  // namespace sandogh
