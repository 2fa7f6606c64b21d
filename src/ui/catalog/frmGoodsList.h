#pragma once

#include <QString>
#include <QWidget>

#include "data/repositories/GoodsRepository.h"

class QComboBox;
class QLineEdit;
class QPushButton;
class QTableView;

namespace sandogh {

class Clock;
class Database;
class GoodsListModel;
class GoodsSavedHook;
class MessageService;
class frmGood;

// The goods list: every article, read a page at a time, searched by barcode or
// special code (the start of it) or by name (any part of it). New and edit open
// the goods screen; an article can be taken out of use or deleted from here. The hook
// handed in (the scales' export) goes with every save and delete.
class frmGoodsList : public QWidget {
    Q_OBJECT

public:
    frmGoodsList(Database& database, MessageService& messages, const Clock& clock, int userId,
                 GoodsSavedHook* hook, QWidget* parent = nullptr);

    GoodsListModel* model() const { return m_model; }
    // The barcode of the row under the cursor; empty without one.
    QString currentBarcode() const;
    bool selectBarcode(const QString& barcode);

    // Opens the goods screen for an article (empty barcode: a new one) as a window of its
    // own; the list is read again after each save or delete there.
    frmGood* openArticle(const QString& barcode);
    // Takes the article under the cursor out of use, after the question.
    void deactivateCurrent();
    // Deletes the article under the cursor as the goods screen does.
    void deleteCurrent();

private:
    void runSearch();
    void refreshKeeping(const QString& barcode);

    Database& m_database;
    MessageService& m_messages;
    const Clock& m_clock;
    int m_userId;
    GoodsSavedHook* m_hook;
    GoodsRepository m_repository;
    GoodsListModel* m_model;

    QLineEdit* txtSearch;
    QComboBox* cboSearchColumn;
    QTableView* grdGoods;
    QPushButton* cmdNew;
    QPushButton* cmdEdit;
    QPushButton* cmdDeactivate;
    QPushButton* cmdDelete;
    QPushButton* cmdExit;
};

}  // namespace sandogh
