#pragma once

#include <QDialog>
#include <QList>

#include "data/repositories/GoodsSearchQuery.h"

class QLabel;
class QLineEdit;
class QTableWidget;

namespace sandogh {

class Database;

// The goods search of the till (btnBarcodeSearch, Ctrl+L): the cashier types a word of
// the name, a barcode, a Spec_Code or a structured code and the list follows
// each keystroke; Up and Down move in the list without leaving the box, Enter (or a
// double click) takes the chosen article, Escape none.
class frmGoodsSearch : public QDialog {
    Q_OBJECT

public:
    explicit frmGoodsSearch(Database& database, QWidget* parent = nullptr);

    // Opens the search with an empty box; the barcode of the chosen article, or empty text.
    QString chooseGoods();

    // Fills the list for a typed text (what each keystroke does).
    void search(const QString& typed);
    // The barcode of the chosen row; empty without one.
    QString chosenBarcode() const;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QLineEdit* txtSearch;
    QTableWidget* grdGoods;
    QLabel* lblStatus;

    void moveRow(int step);
    void choose();

    Database& m_database;
    QList<GoodsSearchQuery::Row> m_rows;
};

}  // namespace sandogh
