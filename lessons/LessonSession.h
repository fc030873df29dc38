#pragma once

#include <cstdint>
#include <optional>
#include <vector>

/// The lists of a lesson: the codes still to teach and those taught to the end, in order.
class LessonSession {
public:
    /// Starts afresh with the given codes.
    void Start(std::vector<std::uint16_t> codes);
    /// The code being taught, or none when the lesson is over or empty.
    std::optional<std::uint16_t> Current() const;
    /// Finishes the current code: its first occurrence leaves the remaining list and joins the
    /// done list. True when codes remain.
    bool Next();
    /// Codes still to teach.
    const std::vector<std::uint16_t>& Remaining() const { return m_remaining; }
    /// Codes taught to the end, in the order they were finished.
    const std::vector<std::uint16_t>& Done() const { return m_done; }

private:
    std::vector<std::uint16_t> m_remaining;
    std::vector<std::uint16_t> m_done;
};

/// What the lesson page enables, decided from its state.
struct LessonControlState {
    bool inputEnabled = false;
    bool nextEnabled = false;
    bool nextIsDefault = false; ///< otherwise Abort is the default button
    bool hintEnabled = false;
    bool clearAndUndoEnabled = false;
};

/// The lesson page's rules: `strokes` expected, `drawn` kept on the input canvas.
LessonControlState DecideLessonControls(bool characterLoaded, int strokes, int drawn, bool allTicked, bool hintShown);
