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
    : row_(row)
    , store_(store)
    , programFolder_(programFolder)
    , editor_(new QWidget(parent))
    , path_(new QLineEdit(editor_))
    , browse_(new QToolButton(editor_)) {
    editor_->setObjectName(controlName(row) + QStringLiteral("/program"));
    path_->setObjectName(controlName(row));
    path_->setLayoutDirection(Qt::LeftToRight);
    browse_->setObjectName(controlName(row) + QStringLiteral("/browse"));
    browse_->setText(QStringLiteral("..."));
    browse_->setToolTip(row.captionText());

    auto* layout = new QHBoxLayout(editor_);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(path_, 1);
    layout->addWidget(browse_);

    QObject::connect(browse_, &QToolButton::clicked, path_, [this] { choose(); });
}

QWidget* ProgramSettingField::editor() const {
    return editor_;
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
    QString start = path_->text().trimmed();
    start.replace(u'\\', u'/');
    if (!start.isEmpty() && QDir::isRelativePath(start)) {
        start = QDir(programFolder_).filePath(start);
    }
    if (start.isEmpty()) {
        start = programFolder_;
    }
#ifdef Q_OS_WIN
    const QString filter = QStringLiteral("*.exe *.bat *.cmd;;*.*");
#else
    const QString filter;
#endif
    const QString chosen = QFileDialog::getOpenFileName(editor_, row_.captionText(), start, filter);
    if (!chosen.isEmpty()) {
        path_->setText(pathToKeep(chosen, programFolder_));
    }
}

void ProgramSettingField::load() {
    loaded_ = keptOrDefault(store_, row_);
    path_->setText(loaded_);
    path_->setCursorPosition(0);
}

bool ProgramSettingField::isChanged() const {
    return path_->text() != loaded_;
}

bool ProgramSettingField::save() {
    if (!isChanged()) {
        return true;
    }
    return write(store_, row_, path_->text().trimmed());
}

}  // namespace sandogh
