#include "ui/settings/ProgramSettingField.h"

#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QToolButton>

namespace sandogh {

ProgramSettingField::ProgramSettingField(const SettingDescriptor& row, SettingsStore& store,
                                         const QString& programFolder, QWidget* parent)
    : m_row(row)
    , m_store(store)
    , m_programFolder(programFolder)
    , m_editor(new QWidget(parent))
    , m_path(new QLineEdit(m_editor))
    , m_browse(new QToolButton(m_editor)) {
    m_editor->setObjectName(controlName(row) + QStringLiteral("/program"));
    m_path->setObjectName(controlName(row));
    m_path->setLayoutDirection(Qt::LeftToRight);
    m_browse->setObjectName(controlName(row) + QStringLiteral("/browse"));
    m_browse->setText(QStringLiteral("..."));
    m_browse->setToolTip(row.captionText());

    auto* layout = new QHBoxLayout(m_editor);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_path, 1);
    layout->addWidget(m_browse);

    QObject::connect(m_browse, &QToolButton::clicked, m_path, [this] { choose(); });
}

QWidget* ProgramSettingField::editor() const {
    return m_editor;
}

QString ProgramSettingField::pathToKeep(const QString& chosenFile, const QString& programFolder) {
    const QString file = QDir::cleanPath(QFileInfo(chosenFile).absoluteFilePath());
    if (!programFolder.isEmpty()) {
        const QString relative = QDir(programFolder).relativeFilePath(file);
        if (!relative.startsWith(QStringLiteral("..")) && !QDir::isAbsolutePath(relative)) {
            return relative;
        }
    }
    return QDir::fromNativeSeparators(file);
}

void ProgramSettingField::choose() {
    QString start = m_path->text().trimmed();
    start.replace(u'\\', u'/');
    if (!start.isEmpty() && QDir::isRelativePath(start)) {
        start = QDir(m_programFolder).filePath(start);
    }
    if (start.isEmpty()) {
        start = m_programFolder;
    }
#ifdef Q_OS_WIN
    const QString filter = QStringLiteral("*.exe *.bat *.cmd;;*.*");
#else
    const QString filter;
#endif
    const QString chosen =
        QFileDialog::getOpenFileName(m_editor, m_row.captionText(), start, filter);
    if (!chosen.isEmpty()) {
        m_path->setText(pathToKeep(chosen, m_programFolder));
    }
}

void ProgramSettingField::load() {
    m_loaded = keptOrDefault(m_store, m_row);
    m_path->setText(m_loaded);
    m_path->setCursorPosition(0);
}

bool ProgramSettingField::isChanged() const {
    return m_path->text() != m_loaded;
}

bool ProgramSettingField::save() {
    if (!isChanged()) {
        return true;
    }
    return write(m_store, m_row, m_path->text().trimmed());
}

}  // namespace sandogh
