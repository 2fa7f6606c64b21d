#pragma once

#include <QByteArray>
#include <QImage>

namespace sandogh {

// A picture as ESC/POS bytes for a thermal receipt printer. Such printers cannot shape
// Persian text themselves, so the receipt is drawn here and sent as a 1-bit raster image
// ("GS v 0"), cut into bands that the printer's buffer holds, then fed and cut.
class EscPosRaster {
public:
    // Print widths in dots of the two usual papers at 203 dpi: 80 mm and 58 mm.
    static constexpr int kWideDots = 576;
    static constexpr int kNarrowDots = 384;
    // Rows per GS v 0 command; common printers buffer no more than this at once.
    static constexpr int kBandRows = 256;
    // A pixel darker than this grey level (0..255) prints black.
    static constexpr int kBlackBelow = 128;

    // The whole job: initialise (ESC @), the image bands, feed and a partial cut. The
    // image is drawn on white, scaled down when wider than dots and centred when
    // narrower. dots is rounded up to whole bytes; a non-positive dots is kWideDots.
    static QByteArray job(const QImage& image, int dots);

    // One GS v 0 command (normal density) for the rows [firstRow, firstRow + rows) of an
    // image exactly widthBytes * 8 dots wide in QImage::Format_Mono, 1 = black.
    static QByteArray band(const QImage& mono, int firstRow, int rows);

    // The image as 1-bit, dots wide (see job()), 1 = black.
    static QImage toMono(const QImage& image, int dots);

    // Whether a GS v 0 band holds any black dot (for checks).
    static bool hasInk(const QByteArray& band);
};

}  // namespace sandogh
