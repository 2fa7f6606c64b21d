#pragma once

class QHBoxLayout;
class QScrollArea;
class QTabWidget;

namespace sandogh {

class frmSale;

// Places the sale screen's controls, right to left, for a cashier working fast:
//   - a top bar with the document's caption, its number, the day's totals of the desk
//     and the detail button;
//   - the barcode box, the widest and largest entry on the screen, with the goods search
//     and the scale beside it;
//   - the line grid taking most of the room, with the customer, the detail panel and the
//     favourite goods in a column beside it;
//   - the amounts under the grid, the total largest;
//   - one row of buttons, saving first.
class SaleScreenLayout {
public:
    static void arrange(frmSale& screen);

private:
    static QHBoxLayout* topBar(frmSale& s);
    static QHBoxLayout* barcodeRow(frmSale& s);
    static QScrollArea* customerPage(frmSale& s);
    static QTabWidget* sideColumn(frmSale& s);
    static QHBoxLayout* buttonRow(frmSale& s);
};

}  // namespace sandogh
