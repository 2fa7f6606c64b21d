#pragma once

#include <QFont>
#include <QImage>
#include <QString>

class QPainter;
class QPaintDevice;
class QPagedPaintDevice;

namespace sandogh {

struct ReceiptData;

// Lays a receipt out with Qt, so that Persian is shaped and reads right to left: the shop
// heading, the invoice details, the lines (name, quantity, unit price, amount) with the
// amounts aligned in their columns, the totals, the total in words, the payment and the
// sentence of the day. Sizes are in device pixels at kDotsPerInch, the resolution of
// thermal receipt printers, so that the same layout serves a raster image and a PDF page.
class ReceiptPainter {
public:
    static constexpr int kDotsPerInch = 203;
    // The print width of 80 mm paper, at which the base sizes below hold.
    static constexpr double kRollDots = 576;
    // The paper of a roll PDF, in millimetres.
    static constexpr double kRollPaperMm = 80;

    // width: the printed width in pixels; sizes scale with it up to kRollDots.
    ReceiptPainter(const ReceiptData& receipt, double width);

    // The height the receipt takes, measured on device (fonts are measured there).
    double height(QPaintDevice* device) const;
    // Draws the receipt with its top-left corner at the painter's origin.
    void paint(QPainter& painter) const;

    // The receipt drawn black on white, width pixels wide.
    static QImage image(const ReceiptData& receipt, int width);
    // The receipt as a PDF: one page of roll paper as long as the receipt, or A4 pages.
    static bool writePdf(const ReceiptData& receipt, const QString& path, bool a4);
    // The receipt on a paged device (a PDF writer, a printer): a roll page rollWidthMm
    // wide (plus margins) and as long as the receipt, or A4 pages.
    static bool printPages(QPagedPaintDevice& device, const ReceiptData& receipt, bool a4,
                           double rollWidthMm);

    // The font the receipt is printed in: Vazirmatn or Noto Sans Arabic when installed.
    static QString fontFamily();
    static QFont font(double pixelSize, bool bold = false);

    // Amount text as printed: "," between thousands, Persian digits.
    static QString amount(double value);

private:
    double run(QPainter* painter, QPaintDevice* device) const;

    const ReceiptData& m_receipt;
    double m_width;
    double m_scale;
};

}  // namespace sandogh
