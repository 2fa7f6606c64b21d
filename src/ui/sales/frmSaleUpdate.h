#pragma once

#include <QWidget>
#include <memory>
#include <optional>

#include "sales/SaleEdit.h"

class QLabel;
class QLineEdit;
class QPushButton;
class QTableWidget;

namespace sandogh {

class AppContext;

// Edits one saved sale or return (SaleEdit): its lines in the editable grid Grid1
// (barcode, name, quantity, unit price MFee, discount percent, net price, amount), a line
// added by its barcode in txtBarcode (FindBarcode), the chosen line removed (cmdDelRow),
// the header discount in txtDiscount and the amount received in txtReceived; cmdSave saves
// it all in one transaction.
class frmSaleUpdate : public QWidget {
    Q_OBJECT
    Q_PROPERTY(qint64 Code READ Code)
    Q_PROPERTY(qint64 DocumentHID READ DocumentHID)
    Q_PROPERTY(int CompanyId READ CompanyId)
    Q_PROPERTY(QString CompanyName READ CompanyName)
    Q_PROPERTY(QString CompanyNo READ CompanyNo)
    Q_PROPERTY(QString Barcode READ Barcode)
    Q_PROPERTY(int mode READ mode)

public:
    enum Column { ColBarcode, ColName, ColQty, ColMFee, ColDiscount, ColFee, ColPrice, ColCount };

    explicit frmSaleUpdate(AppContext& context, QWidget* parent = nullptr);
    ~frmSaleUpdate() override;

    // Loads the saved document Code = code into the grid; false when it cannot be read.
    bool frmSaleUdateSetup(qint64 code, const QString& companyName = {},
                           const QString& companyNo = {});
    // Adds a line of the article typed in txtBarcode (one, at its sale price).
    bool FindBarcode();
    bool cmdDelRow_Click();
    bool cmdSave_Click();

    qint64 Code() const;
    qint64 DocumentHID() const;
    int CompanyId() const;
    QString CompanyName() const { return m_companyName; }
    QString CompanyNo() const { return m_companyNo; }
    QString Barcode() const { return m_barcode; }
    // The TransType: 2 a sale, 3 a return.
    int mode() const;

private:
    void fillGrid();
    void readGrid();
    void cellChanged(int row, int column);
    void showTotals();

    AppContext& m_context;
    std::unique_ptr<SaleEdit> m_editor;
    std::optional<SaleEditDocument> m_document;
    QString m_companyName;
    QString m_companyNo;
    QString m_barcode;
    bool m_filling = false;

    QLineEdit* txtBarcode;
    QTableWidget* Grid1;
    QLineEdit* txtDiscount;
    QLineEdit* txtReceived;
    QLabel* lblSum;
    QPushButton* cmdDelRow;
    QPushButton* cmdSave;
};

}  // namespace sandogh
