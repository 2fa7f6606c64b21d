#include "ui/sales/SaleCustomerPanel.h"

#include <QComboBox>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QTabWidget>

#include "common/AmountText.h"
#include "sales/CustomerSummary.h"
#include "sales/SaleSession.h"
#include "sales/SaleTexts.h"
#include "settings/MessageService.h"

namespace sandogh {

namespace {

constexpr int kResultRows = 5;

QString amount(double value) {
    return QString::fromStdString(AmountText::formatWhole(value));
}

}  // namespace

SaleCustomerPanel::SaleCustomerPanel(SaleSession& sale, Database& database,
                                     MessageService& messages, QWidget* parent)
    : QFrame(parent)
    , txtAccountSearch(new QLineEdit(this))
    , cmbSearchKind(new QComboBox(this))
    , cmdCustomerSearch(new QPushButton(QStringLiteral("جستجو"), this))
    , lstCustomers(new QListWidget(this))
    , txtCustomerName(new QLineEdit(this))
    , txtAccount(new QLineEdit(this))
    , lblCredit(new QLabel(this))
    , btnCustomerDetail(new QPushButton(QStringLiteral("خلاصه"), this))
    , m_sale(sale)
    , m_database(database)
    , m_messages(messages)
    , m_search(database) {
    setObjectName(QStringLiteral("fraCustomer"));
    txtAccountSearch->setObjectName(QStringLiteral("txtAccountSearch"));
    txtAccountSearch->setPlaceholderText(QStringLiteral("جستجوی مشتری"));
    txtAccountSearch->setClearButtonEnabled(true);
    txtAccountSearch->installEventFilter(this);

    cmbSearchKind->setObjectName(QStringLiteral("cmbSearchKind"));
    cmbSearchKind->addItem(QStringLiteral("نام و نام خانوادگی"),
                           static_cast<int>(CustomerSearch::Mode::NameFamily));
    cmbSearchKind->addItem(QStringLiteral("کد مشتری"),
                           static_cast<int>(CustomerSearch::Mode::Code));
    cmbSearchKind->addItem(QStringLiteral("تلفن"),
                           static_cast<int>(CustomerSearch::Mode::Telephone));
    cmbSearchKind->addItem(QStringLiteral("موبایل"),
                           static_cast<int>(CustomerSearch::Mode::Mobile));

    cmdCustomerSearch->setObjectName(QStringLiteral("cmdCustomerSearch"));
    cmdCustomerSearch->setAutoDefault(false);
    lstCustomers->setObjectName(QStringLiteral("lstCustomers"));
    lstCustomers->setFocusPolicy(Qt::NoFocus);
    txtCustomerName->setObjectName(QStringLiteral("txtCustomerName"));
    txtCustomerName->setReadOnly(true);
    txtCustomerName->setFocusPolicy(Qt::NoFocus);
    txtAccount->setObjectName(QStringLiteral("txtAccount"));
    txtAccount->setReadOnly(true);
    txtAccount->setFocusPolicy(Qt::NoFocus);
    txtAccount->setLayoutDirection(Qt::LeftToRight);
    lblCredit->setObjectName(QStringLiteral("lblCredit"));
    btnCustomerDetail->setObjectName(QStringLiteral("btnCustomerDetail"));
    btnCustomerDetail->setAutoDefault(false);

    connect(cmdCustomerSearch, &QPushButton::clicked, this, [this] {
        search();
        txtAccountSearch->setFocus();
    });
    connect(btnCustomerDetail, &QPushButton::clicked, this, &SaleCustomerPanel::showSummary);
    connect(lstCustomers, &QListWidget::currentRowChanged, this, &SaleCustomerPanel::moveTo);
    connect(&m_sale, &SaleSession::customerChanged, this, &SaleCustomerPanel::showCustomer);

    buildLayout();
    showCustomer();
}

void SaleCustomerPanel::buildLayout() {
    cmdCustomerSearch->setToolTip(QStringLiteral("Ctrl+S"));
    btnCustomerDetail->setToolTip(QStringLiteral("خلاصه حساب مشتری"));
    cmbSearchKind->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    cmbSearchKind->setMinimumContentsLength(6);
    txtAccount->setMaximumWidth(110);
    auto* grid = new QGridLayout(this);
    grid->setContentsMargins(6, 6, 6, 6);
    grid->addWidget(new QLabel(QStringLiteral("مشتری:"), this), 0, 0);
    grid->addWidget(txtAccountSearch, 0, 1);
    auto* lblSearchKind = new QLabel(QStringLiteral("با:"), this);
    lblSearchKind->setBuddy(cmbSearchKind);
    auto* kind = new QHBoxLayout;
    kind->setContentsMargins(0, 0, 0, 0);
    kind->addWidget(lblSearchKind);
    kind->addWidget(cmbSearchKind);
    grid->addLayout(kind, 0, 2);
    grid->addWidget(cmdCustomerSearch, 0, 3);
    grid->addWidget(lstCustomers, 1, 1, 1, 3);
    grid->addWidget(new QLabel(QStringLiteral("نام:"), this), 2, 0);
    grid->addWidget(txtCustomerName, 2, 1);
    grid->addWidget(txtAccount, 2, 2, 1, 2);
    grid->addWidget(lblCredit, 3, 1, 1, 2);
    grid->addWidget(btnCustomerDetail, 3, 3);
    grid->setColumnStretch(1, 1);
    // The results always hold their room, five rows, so that nothing moves when they come;
    // the room is measured on a row as the style draws it.
    lstCustomers->setStyleSheet(QStringLiteral("QListWidget::item { padding: 1px 4px; }"));
    lstCustomers->setUniformItemSizes(true);
    lstCustomers->addItem(QStringLiteral("0"));
    const int row = lstCustomers->sizeHintForRow(0);
    lstCustomers->clear();
    lstCustomers->setFixedHeight(row * kResultRows + 2 * lstCustomers->frameWidth() + 2);
}

int SaleCustomerPanel::search() {
    const auto mode = static_cast<CustomerSearch::Mode>(cmbSearchKind->currentData().toInt());
    const QString text = txtAccountSearch->text().trimmed();
    lstCustomers->blockSignals(true);
    lstCustomers->clear();
    const int found = text.isEmpty() ? 0 : m_search.search(mode, text);
    for (const SaleCustomer& c : m_search.results()) {
        QString line = c.displayName();
        if (!c.code.isEmpty()) {
            line += QStringLiteral(" - ") + c.code;
        }
        if (!c.mobile.isEmpty()) {
            line += QStringLiteral(" - ") + c.mobile;
        }
        lstCustomers->addItem(line);
    }
    lstCustomers->blockSignals(false);
    if (found == 0) {
        m_search.clear();
        m_sale.clearCustomer();
        return 0;
    }
    moveTo(0);
    return found;
}

void SaleCustomerPanel::moveTo(int index) {
    if (index < 0 || index >= m_search.results().size()) {
        return;
    }
    m_search.setCurrentIndex(index);
    if (lstCustomers->currentRow() != index) {
        lstCustomers->blockSignals(true);
        lstCustomers->setCurrentRow(index);
        lstCustomers->blockSignals(false);
    }
    m_sale.setCustomer(m_search.current());
}

void SaleCustomerPanel::showCustomer() {
    const SaleCustomer& customer = m_sale.customer();
    if (!customer.isValid()) {
        txtCustomerName->clear();
        txtAccount->clear();
        lblCredit->clear();
        return;
    }
    txtCustomerName->setText(customer.displayName());
    txtAccount->setText(customer.account != 0 ? QString::number(customer.account) : QString());
    const CustomerSummary::Figures figures =
        CustomerSummary(m_database).figures(customer.counter, customer.displayName());
    lblCredit->setText(SaleTexts::customerBalance() + amount(figures.balance));
}

void SaleCustomerPanel::reset() {
    m_search.clear();
    lstCustomers->clear();
    txtAccountSearch->clear();
    showCustomer();
}

void SaleCustomerPanel::focusSearch() {
    // On a low screen the panel shares tabs with the favourites: its page comes to the front
    // first, as a hidden box takes no focus.
    for (QWidget* up = parentWidget(); up != nullptr; up = up->parentWidget()) {
        if (auto* tabs = qobject_cast<QTabWidget*>(up)) {
            for (int i = 0; i < tabs->count(); ++i) {
                if (tabs->widget(i)->isAncestorOf(this)) {
                    tabs->setCurrentIndex(i);
                }
            }
        }
    }
    txtAccountSearch->setFocus(Qt::ShortcutFocusReason);
    txtAccountSearch->selectAll();
}

void SaleCustomerPanel::showSummary() {
    const SaleCustomer& customer = m_sale.customer();
    if (!customer.isValid()) {
        m_messages.show(SaleTexts::customerNotResolved(), MessageStyle::Information);
        return;
    }
    const CustomerSummary::Figures figures =
        CustomerSummary(m_database).figures(customer.counter, customer.displayName());
    m_messages.show(CustomerSummary::lines(figures).join(QStringLiteral("\r\n")),
                    MessageStyle::Information);
}

bool SaleCustomerPanel::eventFilter(QObject* watched, QEvent* event) {
    if (watched != txtAccountSearch || event->type() != QEvent::KeyPress) {
        return QFrame::eventFilter(watched, event);
    }
    const auto* key = static_cast<QKeyEvent*>(event);
    if ((key->modifiers() & ~Qt::KeypadModifier) != Qt::NoModifier) {
        return false;
    }
    switch (key->key()) {
        case Qt::Key_Return:
        case Qt::Key_Enter:
            search();
            return true;
        case Qt::Key_Down:
            // Moving in the results never searches again.
            if (m_search.next()) {
                moveTo(m_search.currentIndex());
            }
            return true;
        case Qt::Key_Up:
            if (m_search.previous()) {
                moveTo(m_search.currentIndex());
            }
            return true;
        default:
            return false;
    }
}

}  // namespace sandogh
