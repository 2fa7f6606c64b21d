#pragma once

#include <memory>
#include <vector>

#include <QList>
#include <QString>
#include <QWidget>

class QListWidget;
class QPushButton;
class QStackedWidget;

namespace sandogh {

class MessageService;
class SettingField;
class SettingsStore;
struct SettingDescriptor;

// The settings screen of this cash desk: one page for each page of the settings
// catalogue, listed on the right, one row for each setting with its Persian caption.
// Editors are named "Section/Key" after the setting they edit.
//
// Save ("ذخيره") writes every changed value, each store in one batch, and confirms;
// Exit ("خروج") closes without writing. A value the person did not change is never
// rewritten, whatever form it is kept in.
class frmSetUp : public QWidget {
    Q_OBJECT

public:
    // stores: one per application name ("Retail", "Factortransfer"), not owned; settings of
    // an application without a store are left off the screen. programFolder: where
    // companion programs are looked for and kept relative to.
    frmSetUp(const QList<SettingsStore*>& stores, const QString& programFolder,
             MessageService& messages, QWidget* parent = nullptr);
    ~frmSetUp() override;

    // Shows what the stores keep now, dropping every change not saved.
    void reload();
    bool hasChanges() const;
    // Writes the changes and tells the person how it went; false when a store refused.
    bool save();

    static QString savedMessage();
    static QString savedTitle();
    static QString notSavedMessage();

signals:
    void saved();

private:
    SettingsStore* storeFor(const SettingDescriptor& row) const;
    void buildPages(const QString& programFolder);
    QWidget* buildPage(const std::vector<SettingDescriptor>& rows, const QString& programFolder);
    std::unique_ptr<SettingField> makeField(const SettingDescriptor& row,
                                            const QString& programFolder, QWidget* page) const;

    QList<SettingsStore*> m_stores;
    MessageService& m_messages;
    std::vector<std::unique_ptr<SettingField>> m_fields;

    QListWidget* lstPages;
    QStackedWidget* stkPages;
    QPushButton* cmdSave;
    QPushButton* cmdExit;
};

}  // namespace sandogh
