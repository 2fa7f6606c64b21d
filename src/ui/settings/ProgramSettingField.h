#pragma once

#include "ui/settings/SettingField.h"

class QLineEdit;
class QToolButton;

namespace sandogh {

// The path of a companion program (the accounting program, the drawer program) with a
// "..." button that chooses the file. A file inside the program folder is kept relative
// to it, so that the folder can be moved with its programs.
class ProgramSettingField final : public SettingField {
public:
    ProgramSettingField(const SettingDescriptor& row, SettingsStore& store,
                        const QString& programFolder, QWidget* parent);

    QString label() const override { return m_row.captionText(); }
    QWidget* editor() const override;
    void load() override;
    bool isChanged() const override;
    bool save() override;

    // The path to keep for a chosen file: relative with "/" inside programFolder, the
    // absolute path elsewhere.
    static QString pathToKeep(const QString& chosenFile, const QString& programFolder);

private:
    void choose();

    SettingDescriptor m_row;
    SettingsStore& m_store;
    QString m_programFolder;
    QWidget* m_editor;
    QLineEdit* m_path;
    QToolButton* m_browse;
    QString m_loaded;
};

}  // namespace sandogh
