#include "sales/ReceiptPainter.h"

#include <QFontDatabase>
#include <QFontMetricsF>
#include <QPageSize>
#include <QPagedPaintDevice>
#include <QPainter>
#include <QPdfWriter>

#include <algorithm>
#include <cmath>

#include "common/AmountText.h"
#include "common/TextHelpers.h"
#include "sales/ReceiptData.h"

namespace sandogh {

namespace {

// Base sizes in pixels at 80 mm and 203 dpi.
constexpr double kShopNameSize = 34;
constexpr double kTitleSize = 26;
constexpr double kTextSize = 22;
constexpr double kSmallSize = 19;
constexpr double kPayableSize = 27;
constexpr double kGap = 6;
constexpr double kRuleGap = 10;
// Columns from the left, in parts of the width: amount, unit price, quantity, name, with
// a gap between each two.
constexpr double kTotalColumnEnd = 0.24;
constexpr double kUnitColumnStart = 0.26;
constexpr double kUnitColumnEnd = 0.45;
constexpr double kQtyColumnStart = 0.47;
constexpr double kQtyColumnEnd = 0.59;
constexpr double kNameColumnStart = 0.61;
// Sizes follow a narrower paper down to this part and a page up to the other.
constexpr double kSmallestScale = 0.66;
constexpr double kLargestScale = 1.3;
constexpr double kMillimetresPerInch = 25.4;
constexpr double kA4MarginMm = 12;
// The white on each side of a raster image, as a part of its width.
constexpr int kImagePaddingPart = 48;
constexpr double kRollMarginMm = 4;

QString persian(const QString& text) {
    return QString::fromStdString(TextHelpers::toPersianDigits(text.toStdString()));
}

// A number, date or telephone inside Persian text, kept reading left to right: after an
// Arabic letter the digits would otherwise be split at "-" and their runs reversed.
QString leftToRight(const QString& text) {
    return QChar(0x200E) + persian(text);
}

// A quantity has no thousands separator, so that its decimal separator (the Arabic one)
// cannot be taken for one: 1250.5 prints as ۱۲۵۰٫۵.
QString quantityText(double value) {
    QString text = persian(
        QString::fromStdString(AmountText::stripSeparators(AmountText::formatDecimals(value))));
    return text.replace(QLatin1Char('.'), QChar(0x066B));  // the Arabic decimal separator
}

double mmToDots(double mm) {
    return mm / kMillimetresPerInch * ReceiptPainter::kDotsPerInch;
}

// The running layout: a cursor going down the receipt, drawing when there is a painter.
class Pen {
public:
    Pen(QPainter* painter, QPaintDevice* device, double width, double scale)
        : m_painter(painter), m_device(device), m_width(width), m_scale(scale) {}

    double y = 0;

    QFont font(double size, bool bold = false) const {
        return ReceiptPainter::font(size * m_scale, bold);
    }
    double width() const { return m_width; }

    // Text in [left, left + width) at the cursor; returns its height without moving.
    double text(const QString& value, const QFont& font, int align, double left, double width) {
        const QRectF box(left, y, width, 1.0e6);
        // Sides are meant as seen on paper, not as the reading direction would swap them.
        const int flags = align | Qt::AlignAbsolute | Qt::AlignTop | Qt::TextWordWrap;
        const QRectF used = QFontMetricsF(font, m_device).boundingRect(box, flags, value);
        if (m_painter != nullptr && !value.isEmpty()) {
            m_painter->setFont(font);
            m_painter->drawText(QRectF(left, y, width, used.height()), flags, value);
        }
        return value.isEmpty() ? 0 : used.height();
    }
    // A line of text across the receipt; moves the cursor below it.
    void line(const QString& value, const QFont& font, int align) {
        y += text(value, font, align, 0, m_width) + kGap * m_scale;
    }
    // A label on the right and an amount ending at the amount column's right edge.
    void pair(const QString& label, const QString& value, const QFont& font) {
        const double h1 = text(label, font, Qt::AlignRight, m_width * kUnitColumnEnd,
                               m_width * (1 - kUnitColumnEnd));
        const double h2 = text(value, font, Qt::AlignRight, 0, m_width * kTotalColumnEnd);
        y += std::max(h1, h2) + kGap * m_scale;
    }
    void rule(bool solid = false) {
        y += kRuleGap * m_scale / 2;
        if (m_painter != nullptr) {
            QPen pen(Qt::black, solid ? 2.5 * m_scale : 1.5 * m_scale,
                     solid ? Qt::SolidLine : Qt::DashLine);
            m_painter->setPen(pen);
            m_painter->drawLine(QPointF(0, y), QPointF(m_width, y));
            m_painter->setPen(Qt::black);
        }
        y += kRuleGap * m_scale;
    }
    void frame(double top, double bottom) {
        if (m_painter != nullptr) {
            m_painter->setPen(QPen(Qt::black, 2 * m_scale));
            m_painter->drawRect(QRectF(1, top, m_width - 2, bottom - top));
            m_painter->setPen(Qt::black);
        }
    }

private:
    QPainter* m_painter;
    QPaintDevice* m_device;
    double m_width;
    double m_scale;
};

}  // namespace

ReceiptPainter::ReceiptPainter(const ReceiptData& receipt, double width)
    : m_receipt(receipt)
    , m_width(width)
    , m_scale(std::clamp(width / kRollDots, kSmallestScale, kLargestScale)) {}

QString ReceiptPainter::fontFamily() {
    static const QString family = [] {
        const QStringList installed = QFontDatabase::families();
        for (const QString& wanted :
             {QStringLiteral("Vazirmatn"), QStringLiteral("Noto Sans Arabic")}) {
            if (installed.contains(wanted, Qt::CaseInsensitive)) {
                return wanted;
            }
        }
        return QString();
    }();
    return family;
}

QFont ReceiptPainter::font(double pixelSize, bool bold) {
    QFont f;
    if (!fontFamily().isEmpty()) {
        f.setFamily(fontFamily());
    }
    f.setPixelSize(std::max(1, static_cast<int>(std::lround(pixelSize))));
    f.setBold(bold);
    return f;
}

QString ReceiptPainter::amount(double value) {
    return persian(QString::fromStdString(AmountText::formatWhole(value)));
}

double ReceiptPainter::height(QPaintDevice* device) const {
    return run(nullptr, device);
}

void ReceiptPainter::paint(QPainter& painter) const {
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setRenderHint(QPainter::TextAntialiasing);
    painter.setPen(Qt::black);
    painter.setLayoutDirection(Qt::RightToLeft);
    run(&painter, painter.device());
    painter.restore();
}

double ReceiptPainter::run(QPainter* painter, QPaintDevice* device) const {
    const ReceiptData& r = m_receipt;
    Pen pen(painter, device, m_width, m_scale);
    const double w = m_width;

    if (!r.title.isEmpty()) {
        const double top = pen.y;
        pen.y += kGap * m_scale;
        pen.line(r.title, pen.font(kTitleSize, true), Qt::AlignHCenter);
        pen.frame(top, pen.y);
        pen.y += kGap * m_scale;
    }
    pen.line(r.shopName, pen.font(kShopNameSize, true), Qt::AlignHCenter);
    if (!r.shopAddress.isEmpty()) {
        pen.line(persian(r.shopAddress), pen.font(kSmallSize), Qt::AlignHCenter);
    }
    if (!r.shopTel.isEmpty()) {
        pen.line(QStringLiteral("تلفن: ") + leftToRight(r.shopTel), pen.font(kSmallSize),
                 Qt::AlignHCenter);
    }
    pen.rule(true);

    const QFont text = pen.font(kTextSize);
    const QFont bold = pen.font(kTextSize, true);
    const QFont small = pen.font(kSmallSize);
    const QString kind =
        r.transType == 3 ? QStringLiteral("فاکتور مرجوعی فروش") : QStringLiteral("فاکتور فروش");
    pen.line(kind, bold, Qt::AlignHCenter);
    {
        const double half = w / 2;
        const double h1 = pen.text(QStringLiteral("شماره: ") + leftToRight(r.docNo), text,
                                   Qt::AlignRight, half, half);
        const double h2 = pen.text(QStringLiteral("تاریخ: ") + leftToRight(r.docDate), text,
                                   Qt::AlignLeft, 0, half);
        pen.y += std::max(h1, h2) + kGap * m_scale;
        const QString customer =
            r.customerName.isEmpty() ? QString() : QStringLiteral("مشتری: ") + r.customerName;
        const QString time =
            r.docTime.isEmpty() ? QString() : QStringLiteral("ساعت: ") + leftToRight(r.docTime);
        const double h3 = pen.text(customer, text, Qt::AlignRight, w * 0.3, w * 0.7);
        const double h4 = pen.text(time, small, Qt::AlignLeft, 0, w * 0.3);
        pen.y += std::max(h3, h4) + kGap * m_scale;
    }
    pen.rule();

    // The lines: name on the right, then quantity, unit price and amount.
    const auto row = [&](const QString& name, const QString& qty, const QString& unit,
                         const QString& total, const QFont& font) {
        const double hName =
            pen.text(name, font, Qt::AlignRight, w * kNameColumnStart, w * (1 - kNameColumnStart));
        const double hQty = pen.text(qty, font, Qt::AlignHCenter, w * kQtyColumnStart,
                                     w * (kQtyColumnEnd - kQtyColumnStart));
        const double hUnit = pen.text(unit, font, Qt::AlignRight, w * kUnitColumnStart,
                                      w * (kUnitColumnEnd - kUnitColumnStart));
        const double hTotal = pen.text(total, font, Qt::AlignRight, 0, w * kTotalColumnEnd);
        pen.y += std::max({hName, hQty, hUnit, hTotal}) + kGap * m_scale;
    };
    row(QStringLiteral("شرح کالا"), QStringLiteral("تعداد"), QStringLiteral("فی"),
        QStringLiteral("مبلغ"), bold);
    pen.rule();
    for (const ReceiptLine& line : r.lines) {
        row(line.name.isEmpty() ? persian(line.barcode) : line.name, quantityText(line.quantity),
            amount(line.unitPrice), amount(line.total), text);
    }
    pen.rule();

    pen.pair(QStringLiteral("جمع کل"), amount(r.docSum), text);
    if (r.discount != 0) {
        const QString label = r.discountName.isEmpty()
                                  ? QStringLiteral("تخفیف")
                                  : QStringLiteral("تخفیف (") + r.discountName + QLatin1Char(')');
        pen.pair(label, amount(r.discount), text);
    }
    if (r.overhead != 0) {
        const QString label = r.overheadName.isEmpty()
                                  ? QStringLiteral("اضافات")
                                  : QStringLiteral("اضافات (") + r.overheadName + QLatin1Char(')');
        pen.pair(label, amount(r.overhead), text);
    }
    pen.pair(QStringLiteral("قابل پرداخت"), amount(r.payable()), pen.font(kPayableSize, true));
    pen.pair(QStringLiteral("دریافتی"), amount(r.received), text);
    if (r.change) {
        pen.pair(QStringLiteral("پول خرد (برگشتی به مشتری)"), amount(*r.change), text);
    }
    // How it was paid: each account of the voucher, and the gift cards' part.
    if (!r.payments.isEmpty() || r.giftCard != 0) {
        pen.line(QStringLiteral("پرداخت:"), small, Qt::AlignRight);
        for (const ReceiptPayment& p : r.payments) {
            pen.pair(p.account, amount(p.amount), small);
        }
        if (r.giftCard != 0) {
            pen.pair(QStringLiteral("از آن با کارت هدیه"), amount(r.giftCard), small);
        }
    } else if (!r.payTypeName.isEmpty()) {
        pen.line(QStringLiteral("نوع پرداخت: ") + r.payTypeName, small, Qt::AlignRight);
    }
    if (!r.totalInWords.trimmed().isEmpty()) {
        pen.line(QStringLiteral("مبلغ به حروف: ") + r.totalInWords, small, Qt::AlignRight);
    }
    pen.rule(true);
    if (!r.sentence.isEmpty()) {
        pen.line(r.sentence, small, Qt::AlignHCenter);
    }
    return std::ceil(pen.y);
}

QImage ReceiptPainter::image(const ReceiptData& receipt, int width) {
    // A few dots of white on each side, so that nothing is printed at the very edge.
    const int pad = std::max(2, width / kImagePaddingPart);
    const ReceiptPainter layout(receipt, width - 2 * pad);
    QImage probe(1, 1, QImage::Format_RGB32);
    const int dotsPerMeter = static_cast<int>(std::lround(kDotsPerInch / 0.0254));
    probe.setDotsPerMeterX(dotsPerMeter);
    probe.setDotsPerMeterY(dotsPerMeter);
    const int height = static_cast<int>(layout.height(&probe)) + 2 * pad;
    QImage image(width, std::max(1, height), QImage::Format_RGB32);
    image.setDotsPerMeterX(dotsPerMeter);
    image.setDotsPerMeterY(dotsPerMeter);
    image.fill(Qt::white);
    QPainter painter(&image);
    painter.translate(pad, pad);
    layout.paint(painter);
    painter.end();
    return image;
}

bool ReceiptPainter::writePdf(const ReceiptData& receipt, const QString& path, bool a4) {
    QPdfWriter writer(path);
    writer.setResolution(kDotsPerInch);
    writer.setCreator(QStringLiteral("Sandogh"));
    writer.setTitle(receipt.shopName);
    return printPages(writer, receipt, a4, kRollPaperMm - 2 * kRollMarginMm);
}

bool ReceiptPainter::printPages(QPagedPaintDevice& device, const ReceiptData& receipt, bool a4,
                                double rollWidthMm) {
    const double marginMm = a4 ? kA4MarginMm : kRollMarginMm;
    const double printWidthMm =
        a4 ? QPageSize(QPageSize::A4).size(QPageSize::Millimeter).width() - 2 * marginMm
           : rollWidthMm;
    const double width = mmToDots(printWidthMm);
    const ReceiptPainter layout(receipt, width);
    QImage probe(1, 1, QImage::Format_RGB32);
    const double height = layout.height(&probe);

    if (a4) {
        device.setPageSize(QPageSize(QPageSize::A4));
    } else {
        const double heightMm = height / kDotsPerInch * kMillimetresPerInch + 2 * marginMm;
        device.setPageSize(QPageSize(QSizeF(printWidthMm + 2 * marginMm, heightMm),
                                     QPageSize::Millimeter, QStringLiteral("Receipt")));
    }
    device.setPageMargins(QMarginsF(marginMm, marginMm, marginMm, marginMm),
                          QPageLayout::Millimeter);
    QPainter painter;
    if (!painter.begin(&device)) {
        return false;
    }
    // The layout is in dots at kDotsPerInch; the device may have another resolution.
    const double toDevice = static_cast<double>(device.logicalDpiY()) / kDotsPerInch;
    painter.scale(toDevice, toDevice);
    const double pageHeight =
        device.pageLayout().paintRectPixels(device.logicalDpiY()).height() / toDevice;
    const int pages = a4 ? std::max(1, static_cast<int>(std::ceil(height / pageHeight))) : 1;
    for (int page = 0; page < pages; ++page) {
        if (page > 0) {
            device.newPage();
        }
        painter.save();
        painter.setClipRect(QRectF(0, 0, width, a4 ? pageHeight : height + 1));
        painter.translate(0, -page * pageHeight);
        layout.paint(painter);
        painter.restore();
    }
    return painter.end();
}

}  // namespace sandogh
