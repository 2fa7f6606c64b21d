#include "ui/admin/frmBackup.h"

#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QThread>
#include <QVBoxLayout>
#include <memory>

#include "app/ShopBackup.h"
#include "data/Database.h"
#include "settings/MessageService.h"

namespace sandogh {

frmBackup::frmBackup(Database& database, MessageService& messages, const QString& folder,
                     QWidget* parent)
    : QWidget(parent)
    , m_database(database)
    , m_messages(messages)
    , txtArchive(new QLineEdit(ShopBackup::defaultArchive(database.settings(), folder), this))
    , lblState(new QLabel(this))
    , cmdBackup(new QPushButton(QStringLiteral("پشتیبان‌گیری"), this))
    , cmdRestore(new QPushButton(QStringLiteral("بازگردانی پشتیبان"), this))
    , cmdExit(new QPushButton(QStringLiteral("خروج"), this)) {
    setObjectName(QStringLiteral("frmBackup"));
    setLayoutDirection(Qt::RightToLeft);
    setWindowTitle(QStringLiteral("پشتیبان‌گیری و بازگردانی"));
    txtArchive->setObjectName(QStringLiteral("txtArchive"));
    txtArchive->setLayoutDirection(Qt::LeftToRight);
    lblState->setObjectName(QStringLiteral("lblState"));
    cmdBackup->setObjectName(QStringLiteral("cmdBackup"));
    cmdRestore->setObjectName(QStringLiteral("cmdRestore"));
    cmdExit->setObjectName(QStringLiteral("cmdExit"));

    auto* form = new QFormLayout;
    form->addRow(QStringLiteral("پرونده پشتیبان"), txtArchive);
    auto* buttons = new QHBoxLayout;
    buttons->addWidget(cmdBackup);
    buttons->addWidget(cmdRestore);
    buttons->addStretch(1);
    buttons->addWidget(cmdExit);
    auto* layout = new QVBoxLayout(this);
    layout->addLayout(form);
    layout->addWidget(lblState);
    layout->addStretch(1);
    layout->addLayout(buttons);

    connect(cmdBackup, &QPushButton::clicked, this, &frmBackup::backUp);
    connect(cmdRestore, &QPushButton::clicked, this, [this] { restore(); });
    connect(cmdExit, &QPushButton::clicked, this, &QWidget::close);
}

void frmBackup::backUp() {
    if (m_busy) {
        return;
    }
    m_busy = true;
    cmdBackup->setEnabled(false);
    cmdRestore->setEnabled(false);
    lblState->setText(QStringLiteral("در حال پشتیبان‌گیری..."));
    auto result = std::make_shared<ShopBackup::Result>();
    const QString archive = txtArchive->text().trimmed();
    Database* database = &m_database;
    QThread* worker = QThread::create(
        [result, archive, database] { *result = ShopBackup::backup(*database, archive); });
    connect(worker, &QThread::finished, this, [this, result, worker] {
        worker->deleteLater();
        m_busy = false;
        cmdBackup->setEnabled(true);
        cmdRestore->setEnabled(true);
        lblState->setText(result->ok
                              ? QStringLiteral("پشتیبان ساخته شد: ") + result->archive
                              : QStringLiteral("پشتیبان‌گیری انجام نشد: ") +
                                    result->error);
        emit finished(result->ok);
    });
    worker->start();
}

bool frmBackup::restore() {
    if (m_busy ||
        !m_messages.show(QStringLiteral("اطلاعات کنونی فروشگاه با پشتیبان جایگزین "
                                        "می‌شود "
                                        "و "
                                        "برنامه بسته خواهد شد. هیچ صندوقی نباید در حال کار "
                                        "باشد. ادامه می‌دهید؟"),
                         MessageStyle::QuestionCritical)) {
        return false;
    }
    const ShopBackup::Result result =
        ShopBackup::restore(m_database.settings(), txtArchive->text().trimmed());
    if (!result.ok) {
        m_messages.show(QStringLiteral("پشتیبان بازگردانده نشد:\n") + result.error,
                        MessageStyle::Critical);
        return false;
    }
    m_messages.show(QStringLiteral("پشتیبان بازگردانده شد. اطلاعات پیشین کنار آن نگه داشته "
                                   "شد. برنامه را دوباره باز کنید."),
                    MessageStyle::Information);
    emit restored();
    return true;
}

}  // namespace sandogh
