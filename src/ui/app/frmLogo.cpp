#include "ui/app/frmLogo.h"

#include <QCoreApplication>
#include <QDir>
#include <QGuiApplication>
#include <QPainter>
#include <QPainterPath>
#include <QRegion>
#include <QScreen>

#include "data/ConnectionFile.h"
#include "settings/MessageService.h"

namespace sandogh {

namespace {

const QSize kPanelSize(520, 300);
constexpr qreal kPanelRadius = 24;
// The picture never covers more than this share of the screen.
constexpr double kMaxScreenShare = 0.8;

}  // namespace

frmLogo::frmLogo(const QString& programFolder, MessageService& messages, QWidget* parent)
    : QWidget(parent, Qt::SplashScreen | Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint)
    , m_messages(messages)
    , m_image(imagePath(programFolder)) {
    setObjectName(QStringLiteral("frmLogo"));
    setAttribute(Qt::WA_TranslucentBackground);
    setWindowTitle(productName());

    tmrLogo.setObjectName(QStringLiteral("tmrLogo"));
    tmrLogo.setSingleShot(true);
    tmrLogo.setInterval(kTickMs);
    connect(&tmrLogo, &QTimer::timeout, this, &frmLogo::onTick);

    tmrPause.setObjectName(QStringLiteral("tmrPause"));
    tmrPause.setSingleShot(true);
    tmrPause.setInterval(kPauseMs);
    connect(&tmrPause, &QTimer::timeout, this, &frmLogo::onPauseOver);

    placeOnScreen();
}

QString frmLogo::imagePath(const QString& programFolder) {
    return QDir(programFolder).filePath(QStringLiteral("Program/Intro.png"));
}

QString frmLogo::missingConnectionFileMessage() {
    return ConnectionFile::missingMessage();
}

QString frmLogo::productName() {
    return QStringLiteral("صندوق");
}

void frmLogo::placeOnScreen() {
    QSize size = hasImage() ? m_image.size() : kPanelSize;
    QRect area(QPoint(0, 0), size);
    if (const QScreen* screen = QGuiApplication::primaryScreen()) {
        area = screen->availableGeometry();
        const QSize most = (QSizeF(area.size()) * kMaxScreenShare).toSize();
        if (size.width() > most.width() || size.height() > most.height()) {
            size.scale(most, Qt::KeepAspectRatio);
        }
    }
    resize(size);
    move(area.center() - QPoint(size.width() / 2, size.height() / 2));
    if (!hasImage()) {
        // Without a compositor the see-through corners would show black; the panel's own
        // shape cuts them off everywhere.
        QPainterPath outline;
        outline.addRoundedRect(QRectF(rect()), kPanelRadius, kPanelRadius);
        setMask(QRegion(outline.toFillPolygon().toPolygon()));
    }
}

void frmLogo::start() {
    if (m_step && !m_step()) {
        m_messages.show(missingConnectionFileMessage(), MessageStyle::Information);
        emit failed();
        return;
    }
    show();
    raise();
    tmrLogo.start();
}

void frmLogo::onTick() {
    // The old splash slept here; the pause is a second timer so the screen keeps painting.
    tmrPause.start();
}

void frmLogo::onPauseOver() {
    close();
    emit finished();
}

void frmLogo::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    if (hasImage()) {
        painter.drawPixmap(rect(), m_image);
        return;
    }

    const QRectF panel = QRectF(rect()).adjusted(1, 1, -1, -1);
    QPainterPath outline;
    outline.addRoundedRect(panel, kPanelRadius, kPanelRadius);
    QLinearGradient fill(panel.topLeft(), panel.bottomLeft());
    fill.setColorAt(0, QColor(0x2f, 0x6f, 0x9f));
    fill.setColorAt(1, QColor(0x1d, 0x4a, 0x6e));
    painter.fillPath(outline, fill);
    painter.setPen(QPen(QColor(255, 255, 255, 90), 2));
    painter.drawPath(outline);

    QFont title = font();
    title.setPointSizeF(title.pointSizeF() * 4.2);
    title.setBold(true);
    painter.setFont(title);
    painter.setPen(Qt::white);
    QRectF nameArea = panel;
    nameArea.setBottom(panel.center().y() + panel.height() * 0.12);
    painter.drawText(nameArea, Qt::AlignHCenter | Qt::AlignBottom, productName());

    const QString version = QCoreApplication::applicationVersion();
    if (!version.isEmpty()) {
        QFont small = font();
        painter.setFont(small);
        painter.setPen(QColor(255, 255, 255, 200));
        QRectF versionArea = panel;
        versionArea.setTop(nameArea.bottom() + panel.height() * 0.08);
        painter.drawText(versionArea, Qt::AlignHCenter | Qt::AlignTop, version);
    }
}

}  // namespace sandogh
