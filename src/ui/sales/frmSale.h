#pragma once

#include <QWidget>
#include <functional>
#include <memory>

#include "app/Permission.h"
#include "sales/SaleKeyBinding.h"

class QCheckBox;
class QLabel;
class QLineEdit;
class QPushButton;

namespace sandogh {

class Clock;
class CustomerDisplay;
class Database;
class FavouriteGoods;
class MachineSettings;
class MessageService;
class SaleActions;
class SaleCustomerPanel;
class SaleDetailPanel;
class SaleFavouritesPanel;
class SaleGridView;
class SaleSession;
class SaleTotalsPanel;
class TotalDisplay;
class WeightService;
class frmAskQty;
class frmChangeQty;
class frmGoodsSearch;
class frmSelectPrice;
class frmUserSelect;

// The sale screen: the cashier scans into the barcode box txtBarcode, the lines gather
// in Grid1 and the total in txtSum. Beside them stand the customer, the favourite goods
// and the detail panel frmDetail; under them the settlement amounts and the buttons.
// The screen sees every key before its controls and hands the keys of the sale's key
// table to the sale (SaleSession::execute), doing the screen's part itself: focus,
// panels, dialogs and the requests for other screens. Saving, payment, the terminals
// and the drawer go through the SaleActions the owner sets.
//
// Shown as a child window of the main window; closing it (cmdExit or the window's
// close) asks before an unsaved sale is dropped and resets the customer display.
class frmSale : public QWidget {
    Q_OBJECT

public:
    // The edges are not owned and must outlive the screen.
    frmSale(Database& database, MachineSettings& settings, MessageService& messages,
            const Clock& clock, QWidget* parent = nullptr);
    ~frmSale() override;

    SaleSession& session() const { return *m_sale; }

    // The later steps: saving, payment, terminals, drawer, card look-up.
    void setActions(SaleActions* actions);
    // Where the running total is shown (a TotalDisplay over the customer display).
    void setTotalDisplay(TotalDisplay* display);
    // The customer display itself: its price display port is opened now (the screen's
    // load) and reset when the screen closes.
    void setCustomerDisplay(CustomerDisplay* display);
    // btnGetScaleWeight reads the weight of the current line from this service.
    void setWeightService(WeightService* service);
    // Ctrl+L: replaces the goods search dialog frmGoodsSearch; returns the chosen
    // article's barcode, or empty text.
    void setGoodsSearch(std::function<QString()> search);
    // Whether the user may open what a key or button of the screen opens (another sale
    // screen, goods, the invoice delete, the customer search, the drawer); refused, the
    // screen says so. Unset: everything.
    void setAccess(std::function<bool(Permission)> allows);

    SaleCustomerPanel* customerPanel() const { return m_customer; }
    SaleTotalsPanel* totalsPanel() const { return m_totals; }
    SaleDetailPanel* detailPanel() const { return frmDetail; }
    SaleFavouritesPanel* favouritesPanel() const { return m_favourites; }
    frmGoodsSearch* goodsSearch() const { return m_searchGoods; }

    // Enter in the barcode box: the settling pause, then the sale resolves the text.
    void enterBarcode();
    // Carries out one key of the key table.
    void runCommand(const SaleKeyBinding& binding);
    // The day's totals of this desk in the labels (DisplayDailySale); false when off.
    bool showDailyTotals();
    // The desk's previous invoice beside the number: its number and the amount received.
    void showPreviousInvoice(const QString& docNo, double received);
    // txtNo: the number proposed for the sale, and the one a save wrote or took instead.
    QString docNoText() const;
    void showDocNo(const QString& docNo);
    // chkPrint: whether the receipt is printed.
    bool printsReceipt() const;
    // The amount handed over and the change of the sale just saved, in large type until
    // the next entry in the barcode box.
    void showSettled(const QString& received, const QString& change);

signals:
    // F3 / cmdNewSaleForm: the main window opens a second, new sale screen.
    void newSaleFormRequested();
    // F2 / btnGoodDefinition: the goods definition screen.
    void goodDefinitionRequested();
    // Ctrl+P: the invoice delete screen.
    void deleteInvoiceRequested();
    // btnBuyFactor: the customer's loyalty gift, worked out by the settlement.
    void loyaltyGiftRequested();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void closeEvent(QCloseEvent* event) override;

private:
    // The layout places the controls; from outside they are found by their objectName.
    friend class SaleScreenLayout;

    QLabel* lblCaption;
    QLineEdit* txtBarcode;
    SaleGridView* Grid1;
    QLineEdit* txtNo;
    QLabel* lblDailySale;
    QLabel* lblDailyReceived;
    QLabel* lblPrevFactor;
    QLabel* lblPrevPrice;
    QLabel* lblLastReceived;
    QLabel* lblLastChange;
    // Under the barcode box: what the last entry matched nothing with, in red.
    QLabel* lblBarcodeStatus;
    SaleDetailPanel* frmDetail;
    QPushButton* btnDetail;
    QPushButton* btnBarcodeSearch;
    QPushButton* btnGetScaleWeight;
    QPushButton* cmdSave;
    QCheckBox* chkPrint;
    QPushButton* btnPaymentType;
    QPushButton* btnParsianPos;
    QPushButton* btnOpenCash;
    QPushButton* btnBuyFactor;
    QPushButton* btnCalculateHesab;
    QPushButton* btnProfit;
    QPushButton* cmdDel;
    QPushButton* cmdNewSaleForm;
    QPushButton* btnGoodDefinition;
    QPushButton* cmdExit;

    // False, with the refusal shown, when the user may not open what the command opens.
    bool permitted(SaleCommand command);
    void buildControls();
    void buildLayout();
    void connectSale();
    void loadLists();
    bool handleKey(QKeyEvent* key);
    void save(bool printing);
    void newSale();
    void deleteLine();
    void changeQuantity();
    void searchGoods();
    void showProfit();
    void readWeight();
    void focusBarcode();
    void showMode();
    void showEntryOutcome(const QString& text, bool notFound);
    void leave();

    Database& m_database;
    MachineSettings& m_settings;
    MessageService& m_messages;
    std::unique_ptr<SaleSession> m_sale;
    std::unique_ptr<FavouriteGoods> m_favouriteGoods;
    SaleCustomerPanel* m_customer = nullptr;
    SaleTotalsPanel* m_totals = nullptr;
    SaleFavouritesPanel* m_favourites = nullptr;
    frmAskQty* m_askQty = nullptr;
    frmChangeQty* m_changeQty = nullptr;
    frmSelectPrice* m_selectPrice = nullptr;
    frmGoodsSearch* m_searchGoods = nullptr;
    frmUserSelect* m_userSelect = nullptr;
    CustomerDisplay* m_display = nullptr;
    WeightService* m_weight = nullptr;
    std::function<QString()> m_goodsSearch;
    std::function<bool(Permission)> m_allows;
    bool m_entering = false;
    bool m_enterPending = false;
    bool m_left = false;
};

}  // namespace sandogh
