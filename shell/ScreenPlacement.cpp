#include "ScreenPlacement.h"

#include <QGuiApplication>
#include <QScreen>

#include <algorithm>
#include <limits>

namespace {

/// Squared distance between two rectangles (0 when they overlap).
qint64 DistanceSquared(const QRect& a, const QRect& b)
{
    const qint64 dx = std::max<qint64>({0, qint64(b.left()) - a.right(), qint64(a.left()) - b.right()});
    const qint64 dy = std::max<qint64>({0, qint64(b.top()) - a.bottom(), qint64(a.top()) - b.bottom()});
    return dx * dx + dy * dy;
}

qint64 Area(const QRect& r)
{
    return r.isEmpty() ? 0 : qint64(r.width()) * r.height();
}

/// Clamps `start` so that a span of `length` starting there lies within [low, high], or starts at
/// `low` when it is longer than that.
int Clamp(int start, int length, int low, int high)
{
    return std::max(low, std::min(start, high - length + 1));
}

} // namespace

QPoint PlaceOnScreens(const QRect& frame, const QList<QRect>& screens)
{
    if (screens.isEmpty())
        return frame.topLeft();
    // The screen it is on (the largest overlap), else the nearest.
    const QRect* home = nullptr;
    qint64 bestOverlap = 0;
    for (const QRect& screen : screens)
        if (const qint64 overlap = Area(frame.intersected(screen)); overlap > bestOverlap) {
            bestOverlap = overlap;
            home = &screen;
        }
    if (!home) {
        qint64 nearest = std::numeric_limits<qint64>::max();
        for (const QRect& screen : screens)
            if (const qint64 d = DistanceSquared(frame, screen); d < nearest) {
                nearest = d;
                home = &screen;
            }
        return QPoint(Clamp(frame.left(), frame.width(), home->left(), home->right()),
            Clamp(frame.top(), frame.height(), home->top(), home->bottom()));
    }
    for (const QRect& screen : screens)
        if (screen.contains(frame.topLeft()))
            return frame.topLeft();
    // On a screen, but its top-left corner is not on any: brought in from the top and left.
    QPoint place = frame.topLeft();
    if (place.x() < home->left() || place.x() > home->right())
        place.setX(Clamp(place.x(), frame.width(), home->left(), home->right()));
    if (place.y() < home->top() || place.y() > home->bottom())
        place.setY(Clamp(place.y(), frame.height(), home->top(), home->bottom()));
    return place;
}

QPoint StartPosition(const QRect& frame, std::optional<QPoint> stored, bool keepOnScreen)
{
    QRect placed = frame;
    if (const QScreen* screen = QGuiApplication::primaryScreen())
        placed.moveCenter(screen->availableGeometry().center());
    if (stored)
        placed.moveTopLeft(*stored);
    if (!keepOnScreen)
        return placed.topLeft();
    QList<QRect> screens;
    for (const QScreen* screen : QGuiApplication::screens())
        screens << screen->availableGeometry();
    return PlaceOnScreens(placed, screens);
}
