#include "ui/admin/frmPermissions.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QListWidget>
#include <QPushButton>
#include <QVBoxLayout>

#include "app/Permissions.h"
#include "settings/MessageService.h"

namespace sandogh {

namespace {

// What permissions without a menu command of their own open.
QString ownCaption(Permission permission) {
    switch (permission) {
        case Permission::CustomerSearch:
            return QStringLiteral("جستجوی مشتری در صندوق");
        case Permission::Purchases:
            return QStringLiteral("خرید و اسناد انبار");
        case Permission::Reports:
            return QStringLiteral("گزارش‌ها");
        default:
            return permissionName(permission);
    }
}

QListWidgetItem* itemOf(QListWidget* list, Permission permission) {
    for (int i = 0; i < list->count(); ++i) {
        if (list->item(i)->data(Qt::UserRole).toInt() == static_cast<int>(permission)) {
            return list->item(i);
        }
    }
    return nullptr;
}

}  // namespace

frmPermissions::frmPermissions(Database& database, MessageService& messages,
                               QHash<Permission, QString> captions, QWidget* parent)
    : QWidget(parent)
    , m_messages(messages)
    , m_service(database)
    , m_captions(std::move(captions))
    , cmbOwner(new QComboBox(this))
    , lstPermissions(new QListWidget(this))
    , cmdSave(new QPushButton(QStringLiteral("ذخیره"), this))
    , cmdExit(new QPushButton(QStringLiteral("خروج"), this)) {
    setObjectName(QStringLiteral("frmPermissions"));
    setLayoutDirection(Qt::RightToLeft);
    setWindowTitle(QStringLiteral("دسترسی‌ها"));
    cmbOwner->setObjectName(QStringLiteral("cmbOwner"));
    lstPermissions->setObjectName(QStringLiteral("lstPermissions"));
    cmdSave->setObjectName(QStringLiteral("cmdSave"));
    cmdExit->setObjectName(QStringLiteral("cmdExit"));

    m_owners = {{PermissionLevel::Administrator, 0}, {PermissionLevel::Cashier, 0}};
    cmbOwner->addItem(QStringLiteral("نقش: مدیر سیستم"));
    cmbOwner->addItem(QStringLiteral("نقش: صندوقدار"));
    for (const UserRow& user : m_service.users()) {
        m_owners.append({permissionLevelFromColumn(user.level), user.id});
        cmbOwner->addItem(QStringLiteral("کاربر: ") + user.name + QStringLiteral(" (") +
                          user.userName + QLatin1Char(')'));
    }
    for (Permission permission : allPermissions()) {
        const QString caption = m_captions.value(permission);
        auto* item = new QListWidgetItem(caption.isEmpty() ? ownCaption(permission) : caption,
                                         lstPermissions);
        item->setData(Qt::UserRole, static_cast<int>(permission));
    }

    auto* buttons = new QHBoxLayout;
    buttons->addWidget(cmdSave);
    buttons->addStretch(1);
    buttons->addWidget(cmdExit);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(cmbOwner);
    layout->addWidget(lstPermissions, 1);
    layout->addLayout(buttons);

    connect(cmbOwner, &QComboBox::currentIndexChanged, this, &frmPermissions::choose);
    connect(cmdSave, &QPushButton::clicked, this, [this] { save(); });
    connect(cmdExit, &QPushButton::clicked, this, &QWidget::close);
    choose(0);
}

void frmPermissions::choose(int index) {
    if (index < 0 || index >= m_owners.size()) {
        return;
    }
    if (cmbOwner->currentIndex() != index) {
        cmbOwner->setCurrentIndex(index);  // comes back here
        return;
    }
    const Owner owner = m_owners.at(index);
    const QHash<Permission, bool> list = m_service.permissionList(owner.level, owner.userId);
    for (Permission permission : allPermissions()) {
        QListWidgetItem* item = itemOf(lstPermissions, permission);
        const bool fixed = Permissions::isFixed(owner.level, permission);
        item->setFlags(fixed ? Qt::ItemIsUserCheckable
                             : Qt::ItemIsEnabled | Qt::ItemIsUserCheckable);
        item->setCheckState(list.value(permission) ? Qt::Checked : Qt::Unchecked);
    }
}

void frmPermissions::setAllowed(Permission permission, bool allowed) {
    if (QListWidgetItem* item = itemOf(lstPermissions, permission);
        item != nullptr && item->flags().testFlag(Qt::ItemIsEnabled)) {
        item->setCheckState(allowed ? Qt::Checked : Qt::Unchecked);
    }
}

bool frmPermissions::isAllowed(Permission permission) const {
    const QListWidgetItem* item = itemOf(lstPermissions, permission);
    return item != nullptr && item->checkState() == Qt::Checked;
}

bool frmPermissions::save() {
    const Owner owner = m_owners.value(cmbOwner->currentIndex());
    QHash<Permission, bool> list;
    for (Permission permission : allPermissions()) {
        list.insert(permission, isAllowed(permission));
    }
    if (!m_service.setPermissionList(owner.level, owner.userId, list)) {
        m_messages.show(QStringLiteral("دسترسی‌ها ذخیره نشد."),
                        MessageStyle::Critical);
        return false;
    }
    m_messages.show(
        QStringLiteral(
            "دسترسی‌ها ذخیره شد. در ورود بعدی کاربر به کار "
            "می‌آید."),
        MessageStyle::Information);
    return true;
}

}  // namespace sandogh
