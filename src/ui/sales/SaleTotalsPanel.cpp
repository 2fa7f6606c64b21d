#include "ui/sales/SaleTotalsPanel.h"

#include <QComboBox>
#include <QGridLayout>
#include <QLabel>
#include <QPushButton>

#include "sales/SaleSession.h"
#include "ui/widgets/AmountEdit.h"

namespace sandogh {

namespace {

constexpr double kTotalScale = 2.4;
constexpr double kAmountScale = 1.35;
constexpr int kPercentDecimals = 2;
// Widths the boxes may shrink to: large digits of a Persian font would otherwise ask for
// the width of its widest glyph and push the panel past the screen.
constexpr int kAmountMinWidth = 100;
constexpr int kPercentMinWidth = 64;
constexpr int kTotalMinWidth = 230;

QFont scaledFont(const QFont& base, double scale, bool bold) {
    QFont font = base;
    const qreal size = base.pointSizeF() > 0 ? base.pointSizeF() : 10;
    font.setPointSizeF(size * scale);
    font.setBold(bold);
    return font;
}

AmountEdit* amountBox(QWidget* parent, const char* name) {
    auto* box = new AmountEdit(parent);
    box->setObjectName(QString::fromLatin1(name));
    box->setFont(scaledFont(parent->font(), kAmountScale, true));
    box->setMinimumWidth(kAmountMinWidth);
    return box;
}

QComboBox* kindBox(QWidget* parent, const char* name) {
    auto* combo = new QComboBox(parent);
    combo->setObjectName(QString::fromLatin1(name));
    combo->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    combo->setMinimumContentsLength(8);
    return combo;
}

}  // namespace

SaleTotalsPanel::SaleTotalsPanel(QWidget* parent)
    : QFrame(parent)
    , txtSum(amountBox(this, "txtSum"))
    , txtDiscountPercent(amountBox(this, "txtDiscountPercent"))
    , txtDiscount(amountBox(this, "txtDiscount"))
    , cmbDiscountType(kindBox(this, "cmbDiscountType"))
    , txtOther(amountBox(this, "txtOther"))
    , cmbOverhead(kindBox(this, "cmbOverhead"))
    , txtSumReceived(amountBox(this, "txtSumReceived"))
    , lblReceivedPrice(new QLabel(this))
    , txtReceivedPrice(amountBox(this, "txtReceivedPrice"))
    , txtReturn(amountBox(this, "txtReturn"))
    , lblReturnCalculator(new QLabel(this))
    , DiscountButton(new QPushButton(QStringLiteral("٪"), this)) {
    setObjectName(QStringLiteral("fraTotals"));
    setFrameShape(QFrame::StyledPanel);

    txtSum->setReadOnly(true);
    txtSum->setFocusPolicy(Qt::NoFocus);
    txtSum->setFont(scaledFont(font(), kTotalScale, true));
    txtSum->setMinimumWidth(kTotalMinWidth);
    txtSum->setStyleSheet(QStringLiteral(
        "QLineEdit { background: #10324a; color: #f7f3d8; border: 2px solid #0b2436; "
        "border-radius: 6px; padding: 2px 10px; }"));
    txtDiscountPercent->setDecimals(kPercentDecimals);
    txtDiscountPercent->setMinimumWidth(kPercentMinWidth);
    txtDiscountPercent->setMaximumWidth(90);
    txtReturn->setReadOnly(true);
    txtReturn->setFocusPolicy(Qt::NoFocus);
    txtReturn->setNegativeAllowed(true);
    txtReturn->setPlaceholderText(QStringLiteral("مانده"));

    lblReceivedPrice->setObjectName(QStringLiteral("lblReceivedPrice"));
    lblReturnCalculator->setObjectName(QStringLiteral("lblReturnCalculator"));
    lblReturnCalculator->setFont(scaledFont(font(), kAmountScale, true));
    lblReturnCalculator->setAlignment(Qt::AlignCenter);

    DiscountButton->setObjectName(QStringLiteral("DiscountButton"));
    DiscountButton->setToolTip(QStringLiteral("اعمال درصد تخفیف"));
    DiscountButton->setAutoDefault(false);

    buildLayout();
    showMode(SaleMode::Sale);
    txtSum->setValue(0);

    for (AmountEdit* box : {txtSum, txtDiscount, txtOther, txtReceivedPrice}) {
        connect(box, &QLineEdit::textChanged, this, [this] { recompute(); });
    }
    connect(DiscountButton, &QPushButton::clicked, this, [this] { applyDiscountPercent(); });
}

void SaleTotalsPanel::buildLayout() {
    auto* grid = new QGridLayout(this);
    grid->setContentsMargins(8, 6, 8, 6);
    grid->setHorizontalSpacing(10);
    grid->setVerticalSpacing(3);

    // Read from the right, in the order the amounts follow from one another: what the
    // lines come to (largest), what comes off and on, what is due, what was handed over
    // and what goes back.
    auto* lblSum = new QLabel(QStringLiteral("جمع کل"), this);
    lblSum->setObjectName(QStringLiteral("lblSum"));
    lblSum->setFont(scaledFont(font(), kAmountScale, true));
    grid->addWidget(lblSum, 0, 0);
    grid->addWidget(txtSum, 1, 0);
    grid->setColumnStretch(0, 2);

    int column = 1;
    // A second control beside a field gets its own caption when it is a list to choose from.
    const auto addField = [&](const QString& caption, QWidget* field, QWidget* second = nullptr,
                              const QString& secondCaption = {}) {
        auto* label = new QLabel(caption, this);
        label->setBuddy(field);
        const bool ownCaption = second != nullptr && !secondCaption.isEmpty();
        grid->addWidget(label, 0, column, 1, second != nullptr && !ownCaption ? 2 : 1);
        grid->addWidget(field, 1, column);
        if (second != nullptr) {
            ++column;
            if (ownCaption) {
                auto* secondLabel = new QLabel(secondCaption, this);
                secondLabel->setBuddy(second);
                grid->addWidget(secondLabel, 0, column);
            }
            grid->addWidget(second, 1, column);
        }
        ++column;
    };
    addField(QStringLiteral("تخفیف ٪"), txtDiscountPercent, DiscountButton);
    addField(QStringLiteral("مبلغ تخفیف (Ctrl+J)"), txtDiscount, cmbDiscountType,
             QStringLiteral("نوع تخفیف"));
    addField(QStringLiteral("هزینه اضافه (Ctrl+Z)"), txtOther, cmbOverhead,
             QStringLiteral("نوع هزینه"));
    addField(QStringLiteral("قابل پرداخت (Ctrl+B)"), txtSumReceived);
    grid->addWidget(lblReceivedPrice, 0, column);
    grid->addWidget(txtReceivedPrice, 1, column++);
    grid->addWidget(lblReturnCalculator, 0, column);
    grid->addWidget(txtReturn, 1, column);
}

void SaleTotalsPanel::showTotal(const QString& totalText) {
    txtSum->setText(totalText);
}

void SaleTotalsPanel::showMode(SaleMode mode) {
    lblReceivedPrice->setText(SaleSession::amountLabelOf(mode));
    lblReceivedPrice->setToolTip(QStringLiteral("Ctrl+C"));
}

void SaleTotalsPanel::fillKinds(QComboBox* combo, const QList<SaleScreenLists::Item>& kinds) {
    combo->clear();
    // The first entry is none: the document is saved without a kind.
    combo->addItem(QString(), QVariant());
    for (const SaleScreenLists::Item& kind : kinds) {
        combo->addItem(kind.name, kind.code);
    }
}

void SaleTotalsPanel::setDiscountKinds(const QList<SaleScreenLists::Item>& kinds) {
    fillKinds(cmbDiscountType, kinds);
}

void SaleTotalsPanel::setOverheadKinds(const QList<SaleScreenLists::Item>& kinds) {
    fillKinds(cmbOverhead, kinds);
}

void SaleTotalsPanel::setDiscountEnabled(bool enabled) {
    txtDiscount->setEnabled(enabled);
    txtDiscountPercent->setEnabled(enabled);
    cmbDiscountType->setEnabled(enabled);
    DiscountButton->setEnabled(enabled);
}

void SaleTotalsPanel::clearSettlement() {
    m_clearing = true;
    for (AmountEdit* box :
         {txtDiscountPercent, txtDiscount, txtOther, txtSumReceived, txtReceivedPrice, txtReturn}) {
        box->clear();
    }
    cmbDiscountType->setCurrentIndex(0);
    cmbOverhead->setCurrentIndex(0);
    lblReturnCalculator->clear();
    m_clearing = false;
    recompute();
}

SettlementCalculator::Amounts SaleTotalsPanel::amounts() const {
    return SettlementCalculator::compute(txtSum->value(), txtDiscount->value(), txtOther->value(),
                                         txtReceivedPrice->value());
}

std::optional<int> SaleTotalsPanel::chosenKind(const QComboBox* combo) {
    const QVariant id = combo->currentData();
    if (!id.isValid() || id.isNull()) {
        return std::nullopt;
    }
    return id.toInt();
}

void SaleTotalsPanel::fillSettlement(SaleSettlement& settlement) const {
    fillAmounts(settlement, txtSum->value());
}

void SaleTotalsPanel::fillSettlement(SaleSettlement& settlement, double linesTotal) const {
    fillAmounts(settlement, linesTotal);
    if (txtSumReceived->value() > 0) {
        settlement.received = txtSumReceived->value();
    }
}

void SaleTotalsPanel::fillAmounts(SaleSettlement& settlement, double total) const {
    SettlementCalculator::fill(settlement, total, txtDiscount->value(), txtDiscountPercent->value(),
                               txtOther->value(), txtReceivedPrice->value());
    settlement.discountTypeId = chosenKind(cmbDiscountType);
    settlement.overheadId = chosenKind(cmbOverhead);
}

QString SaleTotalsPanel::payableText() const {
    return txtSumReceived->value() > 0 ? txtSumReceived->text().trimmed() : QString();
}

QString SaleTotalsPanel::handedOverText() const {
    const QString handedOver = txtReceivedPrice->text().trimmed();
    return handedOver.isEmpty() ? txtSumReceived->text() : handedOver;
}

QString SaleTotalsPanel::changeText() const {
    return txtReceivedPrice->text().trimmed().isEmpty() ? QStringLiteral("0") : txtReturn->text();
}

SaleSettlement SaleTotalsPanel::settlement() const {
    SaleSettlement settlement;
    fillSettlement(settlement);
    return settlement;
}

void SaleTotalsPanel::setDiscount(double discount) {
    if (discount == 0) {
        txtDiscount->clear();
    } else {
        txtDiscount->setValue(discount);
    }
}

bool SaleTotalsPanel::chooseDiscountKind(int id) {
    const int index = cmbDiscountType->findData(id);
    if (index < 0) {
        return false;
    }
    cmbDiscountType->setCurrentIndex(index);
    return true;
}

void SaleTotalsPanel::focusBox(Box box) {
    AmountEdit* edit = txtSumReceived;
    switch (box) {
        case Box::Payable:
            break;
        case Box::HandedOver:
            edit = txtReceivedPrice;
            break;
        case Box::Discount:
            edit = txtDiscount;
            break;
        case Box::Overhead:
            edit = txtOther;
            break;
    }
    // Focused as by a click, so that only Ctrl+J selects the text.
    edit->setFocus(Qt::OtherFocusReason);
    if (box == Box::Discount) {
        edit->selectAll();
    } else {
        edit->deselect();
    }
}

void SaleTotalsPanel::applyDiscountPercent() {
    if (!txtDiscount->isEnabled()) {
        return;
    }
    setDiscount(
        SettlementCalculator::discountOfPercent(txtSum->value(), txtDiscountPercent->value()));
}

void SaleTotalsPanel::recompute() {
    if (m_clearing) {
        return;
    }
    const SettlementCalculator::Amounts a = amounts();
    // An empty sale with nothing typed shows nothing rather than "settled".
    if (a.total == 0 && a.discount == 0 && a.overhead == 0 && a.handedOver == 0) {
        txtSumReceived->clear();
        txtReturn->clear();
        lblReturnCalculator->clear();
        return;
    }
    txtSumReceived->setValue(a.payable);
    txtReturn->setValue(a.shownChange());
    lblReturnCalculator->setText(a.stateText());
}

}  // namespace sandogh
