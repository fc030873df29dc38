#pragma once

#include <QList>
#include <QRect>

#include <optional>

/// Where a window of frame `frame` goes so that the learner can reach it, given the available
/// areas of the screens: a frame that lies entirely outside every screen is moved onto the
/// nearest one (as far into it as it fits); a frame whose top-left corner is off its screen
/// (too big for it, or pushed past its top or left edge) is moved so that the corner, with the
/// title bar and the menu, is visible. Any other frame stays where it is. Sizes never change.
QPoint PlaceOnScreens(const QRect& frame, const QList<QRect>& screens);

/// Where the main window of frame `frame` opens: centred on the primary screen's available
/// area, or at `stored` (even off every screen); with `keepOnScreen`, then placed by
/// PlaceOnScreens on the screens there are.
QPoint StartPosition(const QRect& frame, std::optional<QPoint> stored, bool keepOnScreen);
