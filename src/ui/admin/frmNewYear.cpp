#include "ui/admin/frmNewYear.h"

#include <QFormLayout>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QPushButton>
#include <QThread>
#include <QVBoxLayout>
#include <memory>

#include "app/AppContext.h"
#include "app/NewFiscalYear.h"
#include "data/Database.h"
#include "settings/MessageService.h"

namespace sandogh {

frmNewYear::frmNewYear(AppContext& context, QWidget* parent)
    : QWidget(parent)
    , m_context(context)
    , txtName(new QLineEdit(this))
    , cmdOpen(new QPushButton(QStringLiteral("گشایش سال مالی"), this))
    , cmdExit(new QPushButton(QStringLiteral("خروج"), this)) {
    setObjectName(QStringLiteral("frmNewYear"));
    setLayoutDirection(Qt::RightToLeft);
    setWindowTitle(QStringLiteral("سال مالی جدید"));
    txtName->setObjectName(QStringLiteral("txtName"));
    txtName->setLayoutDirection(Qt::LeftToRight);
    cmdOpen->setObjectName(QStringLiteral("cmdOpen"));
    cmdExit->setObjectName(QStringLiteral("cmdExit"));
    auto* form = new QFormLayout;
    form->addRow(QStringLiteral("نام پایگاه داده سال جدید (لاتین)"), txtName);
    auto* buttons = new QHBoxLayout;
    buttons->addWidget(cmdOpen);
    buttons->addStretch(1);
    buttons->addWidget(cmdExit);
    auto* layout = new QVBoxLayout(this);
    layout->addLayout(form);
    layout->addStretch(1);
    layout->addLayout(buttons);
    connect(cmdOpen, &QPushButton::clicked, this, [this] { openYear(); });
    connect(cmdExit, &QPushButton::clicked, this, &QWidget::close);
}

void frmNewYear::openYear() {
    if (m_busy) {
        return;
    }
    m_busy = true;
    cmdOpen->setEnabled(false);
    auto result = std::make_shared<NewFiscalYear::Result>();
    Database* present = &m_context.database();
    const QString name = txtName->text().trimmed();
    const QString today = m_context.todayJalali();
    // The transfer reads and writes the whole shop: on a thread of its own, the screen live.
    QThread* worker = QThread::create(
        [result, present, name, today] { *result = NewFiscalYear::open(*present, name, today); });
    connect(worker, &QThread::finished, this, [this, result, worker] {
        worker->deleteLater();
        m_busy = false;
        cmdOpen->setEnabled(true);
        if (!result->ok) {
            m_context.messages().show(QStringLiteral("سال مالی جدید گشوده نشد:\n") + result->error,
                                      MessageStyle::Critical);
        } else {
            m_context.messages().show(
                QStringLiteral("سال مالی %1 گشوده شد (%2 کالا با موجودی). برای کار در آن، "
                               "هنگام ورود آن را برگزینید.")
                    .arg(result->database)
                    .arg(result->articles),
                MessageStyle::Information);
        }
        emit finished(result->ok);
    });
    worker->start();
}

}  // namespace sandogh
