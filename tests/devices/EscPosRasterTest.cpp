// Pictures as ESC/POS raster bytes.

#include <gtest/gtest.h>

#include <QPainter>

#include "devices/EscPosRaster.h"

using sandogh::EscPosRaster;

namespace {

int word(const QByteArray& bytes, int at) {
    return static_cast<uchar>(bytes.at(at)) | (static_cast<uchar>(bytes.at(at + 1)) << 8);
}

QImage white(int width, int height) {
    QImage image(width, height, QImage::Format_RGB32);
    image.fill(Qt::white);
    return image;
}

// The GS v 0 bands of a job: {width in bytes, rows, offset of the first data byte}.
struct Band {
    int widthBytes;
    int rows;
    int data;
    // Whether any dot of the band is black.
    bool inked(const QByteArray& job) const {
        return EscPosRaster::hasInk(job.mid(data - 8, 8 + widthBytes * rows));
    }
};
QList<Band> bandsOf(const QByteArray& job) {
    QList<Band> bands;
    int at = 2;  // after ESC @
    while (job.mid(at, 4) == QByteArray("\x1Dv0\0", 4)) {
        const Band b{word(job, at + 4), word(job, at + 6), at + 8};
        bands << b;
        at = b.data + b.widthBytes * b.rows;
    }
    EXPECT_EQ(job.mid(at), QByteArray("\x1B"
                                      "d\x04\x1DVB\0",
                                      7));
    return bands;
}

TEST(EscPosRaster, BandsCoverTheImageAtTheWidthInWholeBytes) {
    const struct {
        int imageWidth, imageHeight, dots;
        int widthBytes;
        QList<int> rows;
    } cases[] = {
        {576, 10, 576, 72, {10}},      {384, 256, 384, 48, {256}},
        {384, 257, 384, 48, {256, 1}}, {576, 600, 576, 72, {256, 256, 88}},
        {100, 3, 0, 72, {3}},       // no width set: 80 mm paper
        {100, 3, 380, 48, {3}},     // rounded up to whole bytes
        {1152, 20, 576, 72, {10}},  // a wider picture is scaled down to the paper
    };
    for (const auto& c : cases) {
        const QByteArray job = EscPosRaster::job(white(c.imageWidth, c.imageHeight), c.dots);
        EXPECT_EQ(job.left(2), QByteArray("\x1B@"));
        const QList<Band> bands = bandsOf(job);
        QList<int> rows;
        for (const Band& b : bands) {
            EXPECT_EQ(b.widthBytes, c.widthBytes) << c.imageWidth << "x" << c.imageHeight;
            rows << b.rows;
            EXPECT_FALSE(b.inked(job));
        }
        EXPECT_EQ(rows, c.rows) << c.imageWidth << "x" << c.imageHeight << " at " << c.dots;
    }
}

TEST(EscPosRaster, DarkPixelsPrintAndANarrowPictureIsCentred) {
    QImage image = white(16, 2);
    image.setPixel(0, 0, qRgb(0, 0, 0));                  // black
    image.setPixel(9, 0, qRgb(100, 100, 100));            // dark grey: prints
    image.setPixel(15, 1, qRgb(200, 200, 200));           // light grey: does not
    const QImage mono = EscPosRaster::toMono(image, 32);  // centred: 8 dots each side
    const QByteArray band = EscPosRaster::band(mono, 0, 2);
    ASSERT_EQ(band.size(), 8 + 4 * 2);
    EXPECT_EQ(band.mid(8).toHex(), QByteArray("0080400000000000"));
    EXPECT_TRUE(EscPosRaster::hasInk(band));

    // A whole job: the band holding a black box is inked, the one below it is not.
    QImage boxed = white(576, 300);
    QPainter(&boxed).fillRect(QRect(100, 50, 300, 120), Qt::black);
    const QByteArray job = EscPosRaster::job(boxed, EscPosRaster::kWideDots);
    const QList<Band> bands = bandsOf(job);
    ASSERT_EQ(bands.size(), 2);
    EXPECT_TRUE(bands[0].inked(job));
    EXPECT_FALSE(bands[1].inked(job));
}

}  // namespace
