#pragma once

#include <QObject>
#include <QString>
#include <memory>

#include "sales/EntryOutcome.h"
#include "sales/LoadedDocument.h"
#include "sales/SaleCustomer.h"
#include "sales/SaleLinesModel.h"
#include "sales/SaleMode.h"

namespace sandogh {

class Clock;
class Database;
class LinePricer;
class MachineSettings;
class MessageService;
class PriceChooser;
class QuantityAsker;
class SaleActions;
class SellerChooser;
class TotalDisplay;

// The sale being rung up on one cash desk (frmSale without its widgets): the lines, the
// customer, the kind of document and sales type, the last barcode, and the rules that
// turn the barcode box's text into lines. The screen binds its controls to it; the
// command line drives the same object.
//
// Rows are model rows, 0 for the first line (the grid's row 1).
class SaleSession : public QObject {
    Q_OBJECT

public:
    // rdoSalesType: the first type is the default; 0 means none chosen yet.
    static constexpr int kNoSalesType = 0;
    static constexpr int kFirstSalesType = 1;
    static constexpr int kSecondSalesType = 2;

    // The edges are not owned and must outlive the session.
    SaleSession(Database& database, const MachineSettings& settings, MessageService& messages,
                const Clock& clock, QObject* parent = nullptr);
    ~SaleSession() override;

    // The screen's parts; each may be null, and the step it serves is then skipped
    // (no price chooser: the goods price; no seller chooser: the logged-in user; no
    // quantity asker: quantity 1; no display: nothing shown; no actions: refused).
    void setActions(SaleActions* actions);
    void setPriceChooser(PriceChooser* chooser);
    void setSellerChooser(SellerChooser* chooser);
    void setQuantityAsker(QuantityAsker* asker);
    void setDisplay(TotalDisplay* display);
    // Prices new lines in place of the sale's pricing (another kind of document); null:
    // the sale's own.
    void setLinePricer(LinePricer* pricer);
    SaleActions* actions() const;
    QuantityAsker* quantityAsker() const;

    // The lines (Grid1).
    SaleLinesModel& linesModel();
    const SaleLinesModel& linesModel() const;
    const QList<SaleLine>& lines() const;
    bool isEmpty() const;
    // The document total: the sum of the line totals.
    double total() const;
    // The total as the sale shows it, "##,###".
    QString totalText() const;

    // Where and by whom: the station (cash desk), the logged-in user, the warehouse
    // (empty or "0": the whole shop).
    void setStation(int stationId);
    int station() const;
    void setUser(int userId, const QString& userName);
    int userId() const;
    QString userName() const;
    void setWarehouse(const QString& warehouseCode);
    QString warehouse() const;
    // The sale date, Jalali text; today from the clock unless set.
    QString saleDate() const;
    void setSaleDate(const QString& jalaliDate);
    // Today's Jalali date from the clock.
    QString todayJalali() const;

    // Sale or return (rdoType).
    SaleMode mode() const;
    void setMode(SaleMode mode);
    void toggleMode();
    int transType() const;  // 2 sale, 3 return
    QString caption() const;
    QString amountLabel() const;
    static QString captionOf(SaleMode mode);
    static QString amountLabelOf(SaleMode mode);

    // rdoSalesType. Changing it is allowed only while there are no lines; otherwise the
    // message is shown and false returned.
    int salesType() const;
    bool setSalesType(int salesType);

    // The customer (CompanyId, CompanyName) with the group's rebate and colour.
    const SaleCustomer& customer() const;
    int CompanyId() const;
    QString CompanyName() const;
    void setCustomer(const SaleCustomer& customer);
    void clearCustomer();
    // Looks a customer up by Counter (TypeNo 10 or 11); false when there is none.
    bool selectCustomer(int counter);

    // Barcode: the barcode of the last line rung up; empty before the first.
    QString Barcode() const;
    // The row (model row) and quantity of the last quantity change; -1 and 0 before one.
    int ChangedRowNo() const;
    double ChangedRowQTY() const;

    // Enter in txtBarcode: resolves the text by the rules of the barcode box, in order:
    // apostrophes removed; a card number; a MizanNet ticket; an OnlineSales ticket;
    // "//" and a document number; quick entry of a barcode or a quantity. The settling
    // pause before reading the box is the screen's (SettlingPause).
    EntryOutcome enterText(const QString& text);

    // Adds (or merges) one article by barcode with the unit price chosen by the pricing
    // rules; inGrams divides the quantity by 1,000. False when nothing was added (not in
    // the goods list and the price prompt cancelled, locked, quantity 0, no sales type).
    bool addGoods(const QString& barcode, double quantity = 1, bool inGrams = false);
    // Adds or merges a line whose price is already fixed (favourites, loaded documents).
    bool addLine(SaleLine line, bool inGrams = false);
    // A quantity typed for the line of the last barcode: it replaces a quantity of exactly
    // 1 and is added to any other. Without such a line the quantity-first message is shown
    // and false returned; a quantity of 0 changes nothing.
    bool applyQuantity(double quantity);
    // The quantity change of frmChangeQty: sets ChangedRowNo/ChangedRowQTY, rewrites the
    // row and its total. False for a row that does not exist or a quantity of 0 or less.
    bool changeQuantity(int row, double quantity);
    // cmdDel: deletes a line. False for a row that does not exist.
    bool removeLine(int row);
    // Replaces the lines with those of a loaded document and keeps its header values.
    void loadDocument(const LoadedDocument& document);
    // The document the lines came from, if any (for saving: the pre-invoice to close).
    const LoadedDocument& loadedDocument() const;
    // Esc: a new, empty sale of the same kind; the customer and last barcode cleared.
    void newSale();

    // btnProfit: the article's Cost less the net unit price of its latest purchase line.
    double lineProfit(int row);

    // Leaving the screen: true when there is nothing unsaved or the cashier agrees to
    // leave the unsaved sale.
    bool confirmLeave();
    bool hasUnsavedSale() const;

    // Sends the total to the display (only while the display option is on).
    void showTotalOnDisplay();

signals:
    void totalChanged(double total);
    void customerChanged();
    void modeChanged(sandogh::SaleMode mode);
    void salesTypeChanged(int salesType);

private:
    struct Private;
    std::unique_ptr<Private> d;
};

}  // namespace sandogh
