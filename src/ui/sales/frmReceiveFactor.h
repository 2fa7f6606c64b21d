#pragma once

#include <QWidget>
#include <functional>
#include <optional>

#include "sales/TransferBatch.h"

class QLabel;
class QLineEdit;
class QPushButton;
class QTableWidget;

namespace sandogh {

class AppContext;

// Receives internal sale invoices from the centre: cmdOpen picks RptFactors.txt (txtFile),
// the file is checked and its lines shown in Grid1 (invoice number, date, barcode,
// quantity, unit price, amount) under the sender lblSender, "مرکز"; cmdReceive brings them
// into the shop. With the transfer setting ShowPrice at 2 the two price columns are hidden.
class frmReceiveFactor : public QWidget {
    Q_OBJECT

public:
    // The file the user picks; empty when cancelled. A file dialog unless replaced.
    using FilePicker = std::function<QString()>;

    explicit frmReceiveFactor(AppContext& context, QWidget* parent = nullptr);
    void setFilePicker(FilePicker picker) { m_pick = std::move(picker); }

    // True when a file was picked, read and checked.
    bool cmdOpen_Click();
    // True when the invoices shown were received.
    bool cmdReceive_Click();
    bool showsPrices() const;

private:
    void FillGrid();

    AppContext& m_context;
    FilePicker m_pick;
    std::optional<TransferBatch> m_batch;
    QLabel* lblSender;
    QLineEdit* txtFile;
    QPushButton* cmdOpen;
    QPushButton* cmdReceive;
    QTableWidget* Grid1;
};

}  // namespace sandogh
