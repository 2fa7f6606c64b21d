#include "ui/app/frmLogin.h"

#include <QCloseEvent>
#include <QComboBox>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QMouseEvent>
#include <QPushButton>
#include <QVBoxLayout>
#include <algorithm>

#include "app/AppContext.h"
#include "app/LoginService.h"
#include "app/NewFiscalYear.h"
#include "app/ShopInfo.h"
#include "devices/ProgramLauncher.h"
#include "settings/MessageService.h"
#include "ui/widgets/ButtonCaptions.h"

namespace sandogh {

const QString& frmLogin::wrongLoginMessage() {
    static const QString text = QStringLiteral("نام کاربری یا رمز عبور نادرست است.");
    return text;
}

QString frmLogin::dateCaption(const QString& weekday, const QString& jalaliDate) {
    return QStringLiteral("امروز : ") + weekday + QLatin1Char(' ') + jalaliDate;
}

frmLogin::frmLogin(AppContext& context, QWidget* parent) : QWidget(parent), m_context(context) {
    setObjectName(QStringLiteral("frmLogin"));
    setWindowTitle(QStringLiteral("ورود به سیستم"));
    setLayoutDirection(Qt::RightToLeft);

    lblCompany = new QLabel(this);
    lblCompany->setObjectName(QStringLiteral("lblCompany"));
    lblCompany->setAlignment(Qt::AlignCenter);
    lblCompany->setWordWrap(true);
    QFont companyFont = lblCompany->font();
    companyFont.setPointSizeF(companyFont.pointSizeF() * 1.6);
    companyFont.setBold(true);
    lblCompany->setFont(companyFont);

    lblDate = new QLabel(this);
    lblDate->setObjectName(QStringLiteral("lblDate"));
    lblDate->setAlignment(Qt::AlignCenter);
    lblDate->installEventFilter(this);

    txtUserName = new QLineEdit(this);
    txtUserName->setObjectName(QStringLiteral("txtUserName"));
    txtUserName->setLayoutDirection(Qt::LeftToRight);
    txtPassword = new QLineEdit(this);
    txtPassword->setObjectName(QStringLiteral("txtPassword"));
    txtPassword->setEchoMode(QLineEdit::Password);
    txtPassword->setLayoutDirection(Qt::LeftToRight);

    cmbYear = new QComboBox(this);
    cmbYear->setObjectName(QStringLiteral("cmbYear"));
    cmbYear->setLayoutDirection(Qt::LeftToRight);
    cmbYear->setToolTip(QStringLiteral(
        "سال مالی؛ تنها مدیر سیستم می‌تواند آن را عوض "
        "کند"));

    cmdOK = new QPushButton(QStringLiteral("ورود"), this);
    cmdOK->setObjectName(QStringLiteral("cmdOK"));
    cmdOK->setDefault(true);
    cmdCancel = new QPushButton(ButtonCaptions::cancel(), this);
    cmdCancel->setObjectName(QStringLiteral("cmdCancel"));

    auto* form = new QFormLayout;
    form->addRow(QStringLiteral("نام کاربری:"), txtUserName);
    form->addRow(QStringLiteral("رمز عبور:"), txtPassword);
    lblYear = new QLabel(QStringLiteral("سال مالی:"), this);
    form->addRow(lblYear, cmbYear);
    lblYear->setVisible(false);
    cmbYear->setVisible(false);

    auto* buttons = new QHBoxLayout;
    buttons->addStretch();
    buttons->addWidget(cmdOK);
    buttons->addWidget(cmdCancel);

    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(28, 22, 28, 20);
    layout->setSpacing(12);
    layout->addWidget(lblCompany);
    layout->addWidget(lblDate);
    layout->addSpacing(6);
    layout->addLayout(form);
    layout->addSpacing(4);
    layout->addLayout(buttons);
    setMinimumWidth(420);

    connect(txtUserName, &QLineEdit::returnPressed, this, &frmLogin::txtUserName_Enter);
    connect(txtPassword, &QLineEdit::returnPressed, this, &frmLogin::cmdOK_Click);
    connect(cmdOK, &QPushButton::clicked, this, &frmLogin::cmdOK_Click);
    connect(cmdCancel, &QPushButton::clicked, this, &frmLogin::cmdCancel_Click);
    setTabOrder(txtUserName, txtPassword);
    setTabOrder(txtPassword, cmdOK);
    setTabOrder(cmdOK, cmdCancel);
}

void frmLogin::Form_Load() {
    lblDate->setText(dateCaption(m_context.todayWeekday(), m_context.todayJalali()));
    if (!m_context.hasDatabase()) {
        lblCompany->setText(ShopInfo::defaultShopName());
        return;
    }
    lblCompany->setText(ShopInfo(m_context.database()).shopName());
    // The fiscal years beside the one in use; the chooser shows only where there are more.
    const QString current = m_context.connectionSettings().catalog;
    cmbYear->clear();
    cmbYear->addItems(NewFiscalYear::years(m_context.connectionSettings()));
    cmbYear->setCurrentIndex(std::max(0, cmbYear->findText(current, Qt::MatchFixedString)));
    cmbYear->setVisible(cmbYear->count() > 1);
    lblYear->setVisible(cmbYear->count() > 1);
    const LoginService::AdministratorCheck admin =
        LoginService(m_context.database()).ensureAdministrator();
    if (admin.created) {
        m_context.messages().show(LoginService::administratorCreatedMessage(admin),
                                  MessageStyle::Information);
        txtUserName->setText(admin.userName);
        txtPassword->setFocus();
    } else {
        txtUserName->setFocus();
    }
}

const QString& frmLogin::yearForAdministratorsMessage() {
    static const QString text = QStringLiteral(
        "تنها مدیر سیستم می‌تواند سال مالی دیگری را باز "
        "کند.");
    return text;
}

void frmLogin::txtUserName_Enter() {
    if (!txtUserName->text().trimmed().isEmpty()) {
        txtPassword->setFocus();
        txtPassword->selectAll();
    }
}

void frmLogin::cmdOK_Click() {
    if (m_done || !m_context.hasDatabase()) {
        return;
    }
    const LoginService::Result result = LoginService(m_context.database())
                                            .login(txtUserName->text(), txtPassword->text(),
                                                   m_context.machineSettings().stationId());
    if (result.accepted()) {
        const QString year = cmbYear->currentText();
        if (cmbYear->isVisible() &&
            year.compare(m_context.connectionSettings().catalog, Qt::CaseInsensitive) != 0) {
            if (result.user.level != PermissionLevel::Administrator) {
                m_context.messages().show(yearForAdministratorsMessage(), MessageStyle::Warning);
                return;
            }
            // As the start-up reads it: the next start-up, or the one run now, opens it.
            m_context.machineSettings().setFiscalYearDatabase(year);
            m_done = true;
            emit yearChosen(result.user);
            return;
        }
        m_done = true;
        emit loggedIn(result.user);
        return;
    }
    if (result.outcome != LoginService::Outcome::Failed) {
        // The connection message has already been shown for a database that failed.
        m_context.messages().show(wrongLoginMessage(), MessageStyle::Warning);
    }
    txtPassword->clear();
    txtPassword->setFocus();
}

void frmLogin::cmdCancel_Click() {
    if (m_done) {
        return;
    }
    m_done = true;
    emit cancelled();
}

// The platform's date and time panel; there is none to open elsewhere.
void frmLogin::lblDate_Click() {
#ifdef _WIN32
    static const QString kDateTimePanel =
        QStringLiteral("rundll32.exe shell32.dll,Control_RunDLL  timedate.cpl,,0");
    const int split = kDateTimePanel.indexOf(QLatin1Char(' '));
    m_context.launcher().startDetached(kDateTimePanel.left(split), {kDateTimePanel.mid(split + 1)},
                                       QString(), false);
#endif
}

bool frmLogin::eventFilter(QObject* watched, QEvent* event) {
    if (watched == lblDate && event->type() == QEvent::MouseButtonRelease) {
        lblDate_Click();
        return true;
    }
    return QWidget::eventFilter(watched, event);
}

// Closing the window is cancelling the login.
void frmLogin::closeEvent(QCloseEvent* event) {
    if (!m_done) {
        m_done = true;
        emit cancelled();
    }
    event->accept();
}

}  // namespace sandogh
