#pragma once

#include <QWidget>
#include <memory>

class QCheckBox;
class QComboBox;
class QLabel;
class QLineEdit;
class QPushButton;

namespace sandogh {

class AppContext;
class InternalSaleSaver;
class InternalSaleSession;
class SaleGridView;
struct InternalSaleResult;

// The internal sale screen: goods handed to one of the shop's branches. The barcode box,
// the line grid and the keys are the sale screen's (its session and SaleKeyMap); the branch
// list stands in the customer's place, with the invoice number and, for a return, the number
// of the invoice it returns (txtAtf). Saving goes through InternalSaleSaver; after it the
// receipt is printed when chkPrint is ticked, the screen is cleared and the desk's previous
// internal invoice shown.
class frmSaleInter : public QWidget {
    Q_OBJECT

public:
    explicit frmSaleInter(AppContext& context, QWidget* parent = nullptr);
    ~frmSaleInter() override;

    // frmSaleInterUpdate: the same screen with a saved internal document brought in to be
    // corrected; saving writes it again under its key and closes the screen. Null (with
    // nothing shown) when the document cannot be read.
    static frmSaleInter* editor(AppContext& context, qint64 code, QWidget* parent = nullptr);

    InternalSaleSession& session() const { return *m_sale; }

    // Enter in the barcode box.
    void enterBarcode();
    // cmdSave: true when the sale was saved and the screen cleared.
    bool save();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void closeEvent(QCloseEvent* event) override;

private:
    QLabel* lblCaption;
    QComboBox* cboBranch;
    QLineEdit* txtNo;
    QLabel* lblAtf;
    QLineEdit* txtAtf;
    QLineEdit* txtBarcode;
    SaleGridView* Grid1;
    QLabel* lblStock;
    QLineEdit* txtSum;
    QLabel* lblPrevFactor;
    QLabel* lblPrevPrice;
    QLabel* lblDailySale;
    QLabel* lblDailyReceived;
    QCheckBox* chkPrint;
    QCheckBox* chkReturn;
    QPushButton* cmdSave;
    QPushButton* cmdDel;
    QPushButton* cmdExit;

    void buildControls();
    void buildLayout();
    void loadBranches();
    void showMode();
    void showTotals();
    void showDesk();
    void print(const InternalSaleResult& saved);
    void showBranch();

    AppContext& m_context;
    std::unique_ptr<InternalSaleSession> m_sale;
    std::unique_ptr<InternalSaleSaver> m_saver;
    bool m_left = false;
};

}  // namespace sandogh
