#include "ui/sales/SaleScreenLayout.h"

#include <QApplication>
#include <QCheckBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScrollArea>
#include <QStyle>
#include <QTabWidget>
#include <QVBoxLayout>

#include "ui/sales/SaleCustomerPanel.h"
#include "ui/sales/SaleDetailPanel.h"
#include "ui/sales/SaleFavouritesPanel.h"
#include "ui/sales/SaleGridView.h"
#include "ui/sales/SaleTotalsPanel.h"
#include "ui/sales/frmSale.h"

namespace sandogh {

namespace {

constexpr double kCaptionScale = 1.7;
constexpr double kBarcodeScale = 2.1;
constexpr double kGridScale = 1.3;
constexpr double kButtonScale = 1.1;
constexpr double kSaveScale = 1.3;
constexpr double kSettledScale = 1.5;
constexpr int kSideColumnWidth = 440;
constexpr int kBarcodeMinWidth = 420;

QFont scaled(const QFont& base, double scale, bool bold = false) {
    QFont font = base;
    const qreal size = base.pointSizeF() > 0 ? base.pointSizeF() : 10;
    font.setPointSizeF(size * scale);
    font.setBold(bold);
    return font;
}

}  // namespace

QHBoxLayout* SaleScreenLayout::topBar(frmSale& s) {
    s.lblCaption->setFont(scaled(s.font(), kCaptionScale, true));
    s.txtNo->setMinimumWidth(90);
    s.txtNo->setMaximumWidth(120);
    s.txtNo->setFont(scaled(s.font(), kButtonScale, true));
    auto* bar = new QHBoxLayout;
    bar->addWidget(s.lblCaption);
    auto* lblNo = new QLabel(QStringLiteral("شماره:"), &s);
    lblNo->setBuddy(s.txtNo);
    bar->addSpacing(12);
    bar->addWidget(lblNo);
    bar->addWidget(s.txtNo);
    bar->addSpacing(16);
    bar->addWidget(s.lblDailySale);
    bar->addSpacing(16);
    bar->addWidget(s.lblDailyReceived);
    bar->addStretch(1);
    bar->addWidget(s.btnGoodDefinition);
    bar->addWidget(s.cmdNewSaleForm);
    bar->addWidget(s.btnDetail);
    return bar;
}

QHBoxLayout* SaleScreenLayout::barcodeRow(frmSale& s) {
    s.txtBarcode->setFont(scaled(s.font(), kBarcodeScale, true));
    s.txtBarcode->setMinimumWidth(kBarcodeMinWidth);
    s.txtBarcode->setStyleSheet(
        QStringLiteral("QLineEdit { border: 2px solid #2f6f9f; border-radius: 5px;"
                       " padding: 3px 8px; background: #fffef4; }"
                       "QLineEdit:focus { border: 3px solid #d08a1c; }"));
    auto* label = new QLabel(QStringLiteral("بارکد:"), &s);
    label->setFont(scaled(s.font(), kCaptionScale, true));
    label->setBuddy(s.txtBarcode);
    // The red line of an entry that matched nothing keeps its height while empty, so
    // that nothing below moves when it appears.
    s.lblBarcodeStatus->setStyleSheet(
        QStringLiteral("QLabel { color: #b00020; font-weight: bold; }"));
    s.lblBarcodeStatus->setFont(scaled(s.font(), kButtonScale, true));
    s.lblBarcodeStatus->setMinimumHeight(s.lblBarcodeStatus->fontMetrics().height() + 4);
    auto* entry = new QVBoxLayout;
    auto* box = new QHBoxLayout;
    box->addWidget(label);
    box->addWidget(s.txtBarcode, 1);
    box->addWidget(s.btnBarcodeSearch);
    box->addWidget(s.btnGetScaleWeight);
    entry->addLayout(box);
    entry->addWidget(s.lblBarcodeStatus);

    // The sale just saved: its number and amount, and what the customer handed over and
    // gets back, large enough to read while counting out the change.
    const QFont large = scaled(s.font(), kSettledScale, true);
    s.lblLastReceived->setFont(large);
    s.lblLastChange->setFont(large);
    s.lblLastChange->setStyleSheet(QStringLiteral("QLabel { color: #1f5a38; }"));
    auto* previous = new QHBoxLayout;
    previous->addWidget(s.lblPrevFactor);
    previous->addSpacing(8);
    previous->addWidget(s.lblPrevPrice);
    previous->addStretch(1);
    auto* settled = new QVBoxLayout;
    settled->setSpacing(0);
    settled->addLayout(previous);
    settled->addWidget(s.lblLastReceived);
    settled->addWidget(s.lblLastChange);
    auto* lastSale = new QWidget(&s);
    lastSale->setObjectName(QStringLiteral("fraLastSale"));
    lastSale->setLayout(settled);
    lastSale->layout()->setContentsMargins(8, 0, 8, 0);
    lastSale->setFixedWidth(kSideColumnWidth);

    auto* row = new QHBoxLayout;
    row->addLayout(entry, 1);
    row->addWidget(lastSale);
    return row;
}

// The customer, its buttons and the detail panel: a page of the side column that scrolls
// when the open detail panel would squeeze the fields past reading.
QScrollArea* SaleScreenLayout::customerPage(frmSale& s) {
    auto* customerButtons = new QHBoxLayout;
    customerButtons->addWidget(s.btnCalculateHesab);
    customerButtons->addWidget(s.btnBuyFactor);
    customerButtons->addStretch(1);
    auto* column = new QVBoxLayout;
    column->setContentsMargins(4, 4, 4, 4);
    column->addWidget(s.customerPanel());
    column->addLayout(customerButtons);
    column->addWidget(s.frmDetail);
    column->addStretch(1);
    auto* page = new QWidget(&s);
    page->setObjectName(QStringLiteral("fraSide"));
    page->setLayout(column);
    auto* scroll = new QScrollArea(&s);
    scroll->setObjectName(QStringLiteral("scrSide"));
    scroll->setWidget(page);
    scroll->setWidgetResizable(true);
    scroll->setFrameShape(QFrame::NoFrame);
    scroll->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    return scroll;
}

// The side column: the customer and the favourite goods on two tabs of the full height, so
// that on a low screen each shows its rows rather than both being squeezed. The tab follows
// the keyboard: focus on the customer search shows the customer page.
QTabWidget* SaleScreenLayout::sideColumn(frmSale& s) {
    auto* tabs = new QTabWidget(&s);
    tabs->setObjectName(QStringLiteral("tabSide"));
    tabs->setFixedWidth(kSideColumnWidth + s.style()->pixelMetric(QStyle::PM_ScrollBarExtent));
    QScrollArea* customer = customerPage(s);
    const bool favourites = s.favouritesPanel()->isVisibleTo(&s);
    if (favourites) {
        tabs->addTab(s.favouritesPanel(), QStringLiteral("کالاهای منتخب"));
    }
    tabs->addTab(customer, QStringLiteral("مشتری"));
    QObject::connect(qApp, &QApplication::focusChanged, tabs, [tabs](QWidget*, QWidget* now) {
        for (int i = 0; now != nullptr && i < tabs->count(); ++i) {
            if (tabs->widget(i)->isAncestorOf(now)) {
                tabs->setCurrentIndex(i);
                return;
            }
        }
    });
    // Queued: the panel is shown by the same toggle, after this layout is made.
    QObject::connect(
        s.btnDetail, &QPushButton::toggled, customer,
        [tabs, customer, &s](bool on) {
            if (on) {
                tabs->setCurrentWidget(customer);
                customer->ensureWidgetVisible(s.frmDetail);
            }
        },
        Qt::QueuedConnection);
    return tabs;
}

QHBoxLayout* SaleScreenLayout::buttonRow(frmSale& s) {
    QFont saveFont = scaled(s.font(), kSaveScale, true);
    s.cmdSave->setFont(saveFont);
    s.cmdSave->setMinimumWidth(160);
    s.cmdSave->setStyleSheet(
        QStringLiteral("QPushButton { background: #2e7d4f; color: white; border: 1px solid #1f5a38;"
                       " padding: 6px 18px; }"
                       "QPushButton:focus { border: 2px solid #123d25; }"
                       "QPushButton:disabled { background: #a9c7b4; }"));
    s.chkPrint->setFont(scaled(s.font(), kButtonScale, true));
    auto* row = new QHBoxLayout;
    row->addWidget(s.cmdSave);
    row->addWidget(s.chkPrint);
    row->addSpacing(16);
    row->addWidget(s.btnPaymentType);
    row->addWidget(s.btnParsianPos);
    row->addWidget(s.btnOpenCash);
    row->addSpacing(16);
    row->addWidget(s.cmdDel);
    row->addWidget(s.btnProfit);
    row->addStretch(1);
    row->addWidget(s.cmdExit);
    return row;
}

void SaleScreenLayout::arrange(frmSale& s) {
    s.setLayoutDirection(Qt::RightToLeft);
    // The main window opens a screen so marked maximized.
    s.setProperty("wholeArea", true);
    s.Grid1->setFont(scaled(s.font(), kGridScale));
    s.Grid1->horizontalHeader()->setFont(scaled(s.font(), kButtonScale, true));

    // The goods name takes what the side column leaves.
    auto* body = new QHBoxLayout;
    body->addWidget(s.Grid1, 1);
    body->addWidget(sideColumn(s));

    auto* page = new QVBoxLayout(&s);
    page->setContentsMargins(8, 6, 8, 6);
    page->setSpacing(6);
    page->addLayout(topBar(s));
    page->addLayout(barcodeRow(s));
    page->addLayout(body, 1);
    page->addWidget(s.totalsPanel());
    page->addLayout(buttonRow(s));
}

}  // namespace sandogh
