#include "devices/EscPosRaster.h"

#include <QPainter>

namespace sandogh {

namespace {

constexpr char kEsc = 0x1B;
constexpr char kGs = 0x1D;
// Lines fed after the picture so that the end clears the cutter.
constexpr int kFeedLines = 4;

int widthInDots(int dots) {
    const int d = dots > 0 ? dots : EscPosRaster::kWideDots;
    return (d + 7) / 8 * 8;
}

void appendLittleEndian16(QByteArray& out, int value) {
    out.append(static_cast<char>(value & 0xFF));
    out.append(static_cast<char>((value >> 8) & 0xFF));
}

}  // namespace

QImage EscPosRaster::toMono(const QImage& image, int dots) {
    const int width = widthInDots(dots);
    QImage source = image;
    if (source.width() > width) {
        source = source.scaledToWidth(width, Qt::SmoothTransformation);
    }
    const int height = std::max(1, source.height());
    QImage canvas(width, height, QImage::Format_Grayscale8);
    canvas.fill(Qt::white);
    {
        QPainter painter(&canvas);
        painter.drawImage((width - source.width()) / 2, 0, source);
    }
    QImage mono(width, height, QImage::Format_Mono);
    mono.setColorCount(2);
    mono.setColor(0, qRgb(255, 255, 255));
    mono.setColor(1, qRgb(0, 0, 0));
    for (int y = 0; y < height; ++y) {
        const uchar* grey = canvas.constScanLine(y);
        uchar* bits = mono.scanLine(y);
        for (int x = 0; x < width / 8; ++x) {
            uchar byte = 0;
            for (int b = 0; b < 8; ++b) {
                if (grey[x * 8 + b] < kBlackBelow) {
                    byte |= static_cast<uchar>(0x80 >> b);
                }
            }
            bits[x] = byte;
        }
    }
    return mono;
}

QByteArray EscPosRaster::band(const QImage& mono, int firstRow, int rows) {
    const int widthBytes = mono.width() / 8;
    QByteArray out;
    out.reserve(8 + widthBytes * rows);
    out.append(kGs).append('v').append('0').append('\0');
    appendLittleEndian16(out, widthBytes);
    appendLittleEndian16(out, rows);
    for (int y = firstRow; y < firstRow + rows; ++y) {
        out.append(reinterpret_cast<const char*>(mono.constScanLine(y)), widthBytes);
    }
    return out;
}

QByteArray EscPosRaster::job(const QImage& image, int dots) {
    const QImage mono = toMono(image, dots);
    QByteArray out;
    out.append(kEsc).append('@');
    for (int row = 0; row < mono.height(); row += kBandRows) {
        out.append(band(mono, row, std::min(kBandRows, mono.height() - row)));
    }
    out.append(kEsc).append('d').append(static_cast<char>(kFeedLines));
    out.append(kGs).append('V').append('B').append('\0');
    return out;
}

bool EscPosRaster::hasInk(const QByteArray& band) {
    for (int i = 8; i < band.size(); ++i) {
        if (band.at(i) != 0) {
            return true;
        }
    }
    return false;
}

}  // namespace sandogh
