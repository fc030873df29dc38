#include "SplashWindow.h"

#include "StoredPicture.h"

#include <QGuiApplication>
#include <QPainter>
#include <QProgressBar>
#include <QScreen>
#include <QStyle>
#include <QStyleFactory>

namespace {

/// The start-up picture for the screen's device pixel ratio: drawn at twice the size for any
/// ratio above 1, so that it is shown sharp (or scaled down smoothly), never scaled up.
QString SplashPictureName()
{
    const QScreen* screen = QGuiApplication::primaryScreen();
    const bool sharp = screen && screen->devicePixelRatio() > 1.0;
    return sharp ? QStringLiteral("splash@2x") : QStringLiteral("splash");
}

} // namespace

SplashWindow::SplashWindow(QWidget* parent)
    : QWidget(parent, Qt::SplashScreen | Qt::FramelessWindowHint), m_pictureName(SplashPictureName()),
      m_picture(StoredPicture(m_pictureName))
{
    setObjectName(QStringLiteral("SplashWindow"));
    setAccessibleName(tr("Zavoren! is starting"));
    if (m_picture.isNull())
        return;
    setFixedSize(m_picture.deviceIndependentSize().toSize());
    m_bar = new QProgressBar(this);
    // A plain bar of blocks, the look of the classic progress control. The usual style's
    // rounded, striped bar costs several times as much to paint each step shown while the
    // database loads, and its stripes start drawing threads the program has no other use for.
    // Owned by the window and made after the bar, so that it is deleted after the bar.
    if (QStyle* plain = QStyleFactory::create(QStringLiteral("Windows"))) {
        plain->setParent(this);
        m_bar->setStyle(plain);
    }
    m_bar->setTextVisible(false);
    m_bar->setGeometry(20, 230, width() - 40, 10);
    m_bar->setRange(0, 100);
    m_bar->setValue(75);
    m_bar->setAccessibleName(tr("Loading the characters"));
    if (const QScreen* screen = QGuiApplication::primaryScreen())
        move(screen->availableGeometry().center() - rect().center());
}

SplashWindow::~SplashWindow()
{
    // The picture is not shown again in this session.
    m_picture = QImage();
    ReleaseStoredPicture(m_pictureName);
}

void SplashWindow::SetPosition(std::uint32_t position)
{
    if (!m_bar)
        return;
    m_position = static_cast<int>(position);
    ShowProgress(position + 1 >= static_cast<std::uint32_t>(m_highest));
}

void SplashWindow::SetRange(std::uint32_t lowest, std::uint32_t highest)
{
    if (!m_bar)
        return;
    m_position = static_cast<int>(lowest);
    // The bar shows its new range with the next report that changes its fill.
    m_bar->setRange(static_cast<int>(lowest), static_cast<int>(highest));
    m_lowest = m_bar->minimum();
    m_highest = m_bar->maximum();
    m_shownFill = -1;
    m_heldFill = -1;
}

void SplashWindow::ShowProgress(bool force)
{
    // Called for every record of the database: the common case (the fill has not moved, or it
    // moved to where it was already held back) asks neither the bar nor the clock.
    constexpr qint64 FrameMs = 16;
    const qint64 span = qint64(m_highest) - m_lowest;
    const int fill = span > 0 ? static_cast<int>((qint64(m_position) - m_lowest) * m_bar->width() / span) : 0;
    if (fill == m_shownFill)
        return;
    if (!force) {
        if (fill == m_heldFill)
            return;
        m_heldFill = fill;
        if (m_sinceRepaint.isValid() && m_sinceRepaint.elapsed() < FrameMs)
            return;
    }
    m_shownFill = fill;
    m_sinceRepaint.start();
    // The bar's value is set only here, with its own repaint held back: a progress bar repaints
    // itself whenever its value moves it by a chunk, which would paint it twice.
    m_bar->setUpdatesEnabled(false);
    m_bar->setValue(m_position);
    m_bar->setUpdatesEnabled(true);
    m_bar->repaint();
}

void SplashWindow::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.drawImage(QRectF(rect()), m_picture);
}
