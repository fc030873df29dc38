#pragma once

#include "CoachingPreferences.h"

#include <QByteArray>
#include <QPoint>
#include <QRect>

#include <optional>

/// The program's per-user settings file (~/.config/Zavoren/Zavoren.conf): the window's placement
/// and the coaching aids. Nothing else opens that file.
class ProgramSettings {
public:
    /// The window placement value ("WindowPosition"): left, top, right and bottom of the frame
    /// as little-endian 32-bit numbers, 16 bytes.
    static QByteArray EncodePlacement(const QRect& frame);
    /// Where a window of frame `frame` goes for a stored placement value: its left and top. A
    /// shorter value replaces only its leading fields; an empty or a longer one is no
    /// placement.
    static std::optional<QPoint> DecodePlacement(const QByteArray& value, const QRect& frame);

    /// Where the window of frame `frame` was last placed, or none.
    std::optional<QPoint> StoredPosition(const QRect& frame) const;
    /// Keeps the window's placement; the file is written only when the value changed (every
    /// write locks, writes and syncs it).
    void StorePlacement(const QRect& frame);

    /// The coaching aids as last chosen (all on the first time).
    CoachingPreferences Coaching() const;
    /// Keeps the coaching aids for the next start.
    void StoreCoaching(const CoachingPreferences& preferences);
};
