#pragma once

#include "CanvasRect.h"
#include "Element.h"
#include "OwnFrame.h"
#include "StrokeChecker.h"
#include "StrokePath.h"
#include "StrokeVerdict.h"

#include <cstdint>
#include <memory>
#include <optional>
#include <utility>
#include <vector>

/// Writing one character stroke by stroke, as the lesson and the drawing test share it: which
/// stroke comes next, whether a drawn stroke is accepted, whether the start of the next stroke
/// is being hinted, and whether the model was revealed before the drawing was complete. It
/// never draws; the pages keep their own rules on top and do the painting.
class WritingQuiz {
public:
    /// Starts on the first form of `glyph` laid out on a canvas of this size (or clears the quiz
    /// for a null glyph).
    void Start(std::unique_ptr<Element> glyph, CanvasRect canvas);

    /// The form being written, or null: the standard stroke order, or the other order the learner
    /// has taken.
    const Form* Glyph() const { return m_glyph ? &m_glyph->GetForm(m_form) : nullptr; }
    /// Which form of the glyph is being written (0: the standard order).
    std::uint8_t FormIndex() const { return m_form; }
    /// Strokes the character has (0 without one).
    std::uint16_t StrokeCount() const { return m_checker ? m_checker->StrokeCount() : 0; }
    /// Strokes accepted and kept so far: the index of the stroke expected next.
    std::uint16_t Kept() const { return m_kept; }
    /// Every stroke has been written.
    bool IsComplete() const { return m_glyph && m_kept >= StrokeCount(); }

    /// Judges each stroke's place (and size) in the learner's own character, fitted to the
    /// strokes accepted so far (OwnFrame), instead of on the model's place on the canvas. Off,
    /// every stroke is judged exactly as the checker judges it.
    void SetOwnFrame(bool on) { m_ownFrame = on; }
    bool OwnFrameOn() const { return m_ownFrame; }
    /// The frame the next stroke is judged in: the model's place without the own frame; with
    /// it, the fit of the accepted strokes, or for a first stroke its room toward the model.
    OwnFrame FrameFor(const StrokePath& ink) const;

    /// Accepts the other stroke orders the glyph records (its forms after the first): a stroke
    /// refused in the order being written but right as the same stroke of another order, whose
    /// earlier strokes the learner has written as they stand, is accepted, and once kept the
    /// learner is judged in that order. Off, only the order being written counts.
    void SetOtherOrders(bool on) { m_otherOrders = on; }
    bool OtherOrdersOn() const { return m_otherOrders; }
    /// The stroke just kept took another stroke order than the one written before; true once.
    bool TakeOrderChange() { return std::exchange(m_orderChanged, false); }

    /// Whether a drawn stroke is accepted as the stroke expected next: only a score of exactly
    /// 1.0 is (of the ink mapped through the frame). A stroke after the last one is scored at
    /// that index too, which refuses it.
    bool Accepts(const StrokePath& ink) const;
    /// Why a drawn stroke is refused (or that it is accepted, exactly when Accepts says so). A
    /// misplaced stroke is told the way to where it belongs in the learner's own character.
    StrokeVerdict Judge(const StrokePath& ink) const;
    /// A drawn stroke was refused: one more miss of the stroke expected next.
    void StrokeRefused() { ++m_misses; }
    /// Refusals of the stroke expected next since it became next.
    int Misses() const { return m_misses; }
    /// Refusals of one stroke after which a lesson shows where it starts.
    static constexpr int MissesBeforeHelp = 3;
    /// The stroke expected next has been missed often enough to show its start, which is not
    /// shown yet.
    bool NeedsHelp() const { return m_misses >= MissesBeforeHelp && !m_hintShown && !IsComplete(); }
    /// An accepted stroke, `ink`, was kept: it joins the learner's character; the hint, if any,
    /// is spent.
    void StrokeKept(const StrokePath& ink);
    /// The last kept stroke was taken back.
    void StrokeUndone();
    /// Every stroke was wiped: the character starts again.
    void Restart();

    /// The start of the next stroke is being shown.
    void ShowHint() { m_hintShown = true; }
    bool HintShown() const { return m_hintShown; }

    /// The model was shown; before the drawing is complete, that counts as peeking.
    void Reveal();
    bool Revealed() const { return m_revealed; }
    bool Peeked() const { return m_peeked; }

private:
    /// Where drawn ink lies and how long it is, against expected stroke `index`.
    OwnFrame::Pair PairOf(const StrokeChecker::Ink& drawn, std::uint16_t index) const;
    /// The verdict on `ink` as stroke `index` of form `form` (own frame and all).
    StrokeVerdict JudgeIn(const StrokeChecker& checker, const StrokePath& ink) const;
    /// The checker of form `form`, made when first needed.
    const StrokeChecker& CheckerOf(std::uint8_t form) const;
    /// Another order (a form of the glyph) in which every kept stroke and `ink` as the next are
    /// right, the standard one first; none without.
    std::optional<std::uint8_t> OtherOrderFor(const StrokePath& ink) const;

    std::unique_ptr<Element> m_glyph;
    const StrokeChecker* m_checker = nullptr; ///< the checker of the form being written
    mutable std::vector<std::unique_ptr<StrokeChecker>> m_checkers; ///< by form, made when needed
    std::uint8_t m_form = 0;
    bool m_otherOrders = false;
    bool m_orderChanged = false;
    std::vector<StrokePath> m_keptInk; ///< the kept strokes as judged, in order
    CanvasRect m_canvas;
    std::vector<OwnFrame::Pair> m_accepted; ///< the kept strokes' places, in order
    bool m_ownFrame = false;
    std::uint16_t m_kept = 0;
    int m_misses = 0;
    bool m_hintShown = false;
    bool m_revealed = false;
    bool m_peeked = false;
};
