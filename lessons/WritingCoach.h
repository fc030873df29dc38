#pragma once

#include <QCoreApplication>

#include "CoachingPreferences.h"
#include "Form.h"
#include "StrokePath.h"
#include "StrokeVerdict.h"

class FeedbackLine;
class InputCanvas;

/// The aids around a writing canvas, as the lesson and the drawing test give them: the line that
/// says why a stroke was refused, the refusal shown on the canvas for a moment, and the guide
/// lines. In the drawing test nothing gives the character away: a misplaced stroke is only
/// "Wrong place." and no arrow or start mark is drawn.
class WritingCoach {
    Q_DECLARE_TR_FUNCTIONS(WritingCoach)
public:
    /// What the feedback line says of a refused stroke, in the learner's language; in a lesson a
    /// misplaced stroke is told which way it belongs.
    static QString Explain(const StrokeVerdict& verdict, bool lesson);

    enum class Mode { Lesson, Test };

    WritingCoach(InputCanvas* canvas, FeedbackLine* line, Mode mode);

    /// Switches the aids; all off, the canvas and the page are as they always were.
    void SetPreferences(const CoachingPreferences& preferences);
    const CoachingPreferences& Preferences() const { return m_preferences; }

    /// A stroke was refused with this verdict; `ink` is what was drawn, `glyph` the model.
    void Refused(const StrokeVerdict& verdict, const StrokePath& ink, const Form* glyph);
    /// The learner has taken another stroke order than the standard one: the line says it is
    /// correct too.
    void OtherOrderTaken();
    /// A stroke begins, or the character changes: the line empties.
    void Quiet();

private:
    InputCanvas* m_canvas;
    FeedbackLine* m_line;
    Mode m_mode;
    CoachingPreferences m_preferences;
};
