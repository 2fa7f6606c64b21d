#include "ui/admin/frmUsers.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QTableWidget>
#include <QVBoxLayout>

#include "app/PermissionLevel.h"
#include "settings/MessageService.h"

namespace sandogh {

namespace {

template <typename W>
W* named(W* widget, const char* name) {
    widget->setObjectName(QLatin1String(name));
    return widget;
}

QString levelCaption(int level) {
    return permissionLevelFromColumn(level) == PermissionLevel::Administrator
               ? QStringLiteral("مدیر سیستم")
               : QStringLiteral("صندوقدار");
}

void fillChecks(QListWidget* list, const QList<NamedCode>& rows) {
    list->clear();
    for (const NamedCode& row : rows) {
        auto* item =
            new QListWidgetItem(row.name.isEmpty() ? QString::number(row.code) : row.name, list);
        item->setData(Qt::UserRole, row.code);
        item->setFlags(Qt::ItemIsEnabled | Qt::ItemIsUserCheckable);
        item->setCheckState(Qt::Unchecked);
    }
}

void setChecks(QListWidget* list, const QList<int>& codes) {
    for (int i = 0; i < list->count(); ++i) {
        QListWidgetItem* item = list->item(i);
        item->setCheckState(codes.contains(item->data(Qt::UserRole).toInt()) ? Qt::Checked
                                                                             : Qt::Unchecked);
    }
}

QList<int> checkedCodes(const QListWidget* list) {
    QList<int> codes;
    for (int i = 0; i < list->count(); ++i) {
        if (list->item(i)->checkState() == Qt::Checked) {
            codes << list->item(i)->data(Qt::UserRole).toInt();
        }
    }
    return codes;
}

}  // namespace

frmUsers::frmUsers(Database& database, MessageService& messages, QWidget* parent)
    : QWidget(parent)
    , m_messages(messages)
    , m_service(database)
    , grdUsers(named(new QTableWidget(this), "grdUsers"))
    , txtName(named(new QLineEdit(this), "txtName"))
    , txtUserName(named(new QLineEdit(this), "txtUserName"))
    , cmbLevel(named(new QComboBox(this), "cmbLevel"))
    , chkActive(named(new QCheckBox(QStringLiteral("فعال"), this), "chkActive"))
    , txtPassword(named(new QLineEdit(this), "txtPassword"))
    , lstStations(named(new QListWidget(this), "lstStations"))
    , lstWarehouses(named(new QListWidget(this), "lstWarehouses"))
    , cmdNew(named(new QPushButton(QStringLiteral("جدید"), this), "cmdNew"))
    , cmdSave(named(new QPushButton(QStringLiteral("ذخیره"), this), "cmdSave"))
    , cmdPassword(named(new QPushButton(QStringLiteral("تغییر رمز"), this), "cmdPassword"))
    , cmdExit(named(new QPushButton(QStringLiteral("خروج"), this), "cmdExit")) {
    setObjectName(QStringLiteral("frmUsers"));
    setLayoutDirection(Qt::RightToLeft);
    setWindowTitle(QStringLiteral("کاربران"));

    grdUsers->setColumnCount(4);
    grdUsers->setHorizontalHeaderLabels({QStringLiteral("نام"), QStringLiteral("نام ورود"),
                                         QStringLiteral("نقش"), QStringLiteral("فعال")});
    grdUsers->setSelectionBehavior(QAbstractItemView::SelectRows);
    grdUsers->setSelectionMode(QAbstractItemView::SingleSelection);
    grdUsers->setEditTriggers(QAbstractItemView::NoEditTriggers);
    grdUsers->horizontalHeader()->setStretchLastSection(true);
    cmbLevel->addItem(levelCaption(1), 1);
    cmbLevel->addItem(levelCaption(2), 2);
    txtPassword->setEchoMode(QLineEdit::Password);
    txtPassword->setPlaceholderText(QStringLiteral("خالی: رمز کنونی می‌ماند"));

    auto* form = new QFormLayout;
    form->addRow(QStringLiteral("نام"), txtName);
    form->addRow(QStringLiteral("نام ورود"), txtUserName);
    form->addRow(QStringLiteral("نقش"), cmbLevel);
    form->addRow(QString(), chkActive);
    form->addRow(QStringLiteral("رمز تازه"), txtPassword);
    auto* lists = new QHBoxLayout;
    for (const auto& [caption, list] :
         {std::pair{QStringLiteral("صندوق‌ها (هیچ: همه)"), lstStations},
          std::pair{QStringLiteral("انبارها"), lstWarehouses}}) {
        auto* column = new QVBoxLayout;
        column->addWidget(new QLabel(caption, this));
        column->addWidget(list);
        lists->addLayout(column);
    }
    auto* buttons = new QHBoxLayout;
    for (QPushButton* button : {cmdNew, cmdSave, cmdPassword}) {
        buttons->addWidget(button);
    }
    buttons->addStretch(1);
    buttons->addWidget(cmdExit);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(grdUsers, 1);
    layout->addLayout(form);
    layout->addLayout(lists);
    layout->addLayout(buttons);

    connect(grdUsers, &QTableWidget::currentCellChanged, this, [this](int row) {
        if (row >= 0 && row < m_users.size()) {
            display(m_users.at(row));
        }
    });
    connect(cmdNew, &QPushButton::clicked, this, &frmUsers::startNew);
    connect(cmdSave, &QPushButton::clicked, this, [this] { save(); });
    connect(cmdPassword, &QPushButton::clicked, this, [this] { resetPassword(); });
    connect(cmdExit, &QPushButton::clicked, this, &QWidget::close);

    m_stations = m_service.stations();
    m_warehouses = m_service.warehouses();
    fillChecks(lstStations, m_stations);
    fillChecks(lstWarehouses, m_warehouses);
    reload();
}

void frmUsers::reload() {
    const int keep = m_currentId;
    m_users = m_service.users();
    grdUsers->setRowCount(static_cast<int>(m_users.size()));
    for (int row = 0; row < m_users.size(); ++row) {
        const UserRow& user = m_users.at(row);
        const QStringList cells{user.name, user.userName, levelCaption(user.level),
                                user.active ? QStringLiteral("بله") : QStringLiteral("خیر")};
        for (int column = 0; column < cells.size(); ++column) {
            grdUsers->setItem(row, column, new QTableWidgetItem(cells.at(column)));
        }
    }
    if (keep == 0 || !selectUser(keep)) {
        if (!m_users.isEmpty()) {
            selectUser(m_users.first().id);
        } else {
            startNew();
        }
    }
}

bool frmUsers::selectUser(int id) {
    for (int row = 0; row < m_users.size(); ++row) {
        if (m_users.at(row).id == id) {
            grdUsers->setCurrentCell(row, 0);
            display(m_users.at(row));
            return true;
        }
    }
    return false;
}

void frmUsers::display(const UserRow& user) {
    m_currentId = user.id;
    txtName->setText(user.name);
    txtUserName->setText(user.userName);
    cmbLevel->setCurrentIndex(
        cmbLevel->findData(static_cast<int>(permissionLevelFromColumn(user.level))));
    chkActive->setChecked(user.active);
    txtPassword->clear();
    setChecks(lstStations, user.stations);
    setChecks(lstWarehouses, user.warehouses);
}

void frmUsers::startNew() {
    UserRow user;
    user.level = static_cast<int>(PermissionLevel::Cashier);
    display(user);
    grdUsers->clearSelection();
    txtName->setFocus();
}

UserRow frmUsers::userOnScreen() const {
    UserRow user;
    user.id = m_currentId;
    user.name = txtName->text();
    user.userName = txtUserName->text();
    user.level = cmbLevel->currentData().toInt();
    user.active = chkActive->isChecked();
    user.stations = checkedCodes(lstStations);
    user.warehouses = checkedCodes(lstWarehouses);
    return user;
}

bool frmUsers::save() {
    UserRow user = userOnScreen();
    const QString refused = m_service.save(user, txtPassword->text());
    if (!refused.isEmpty()) {
        m_messages.show(refused, MessageStyle::Critical);
        return false;
    }
    m_currentId = user.id;
    reload();
    return true;
}

bool frmUsers::resetPassword() {
    if (m_currentId == 0) {
        return save();
    }
    const QString refused = m_service.setPassword(m_currentId, txtPassword->text());
    if (!refused.isEmpty()) {
        m_messages.show(refused, MessageStyle::Critical);
        return false;
    }
    txtPassword->clear();
    m_messages.show(QStringLiteral("رمز کاربر عوض شد."), MessageStyle::Information);
    return true;
}

}  // namespace sandogh
