#pragma once

#include "CoachingPreferences.h"
#include "Element.h"
#include "WritingCoach.h"
#include "WritingQuiz.h"

#include <QObject>

#include <memory>

class FeedbackLine;
class InputCanvas;
class QWidget;

/// The writing canvas of a page with everything the lesson and the drawing test share around
/// it: the character being written (WritingQuiz), every stroke judged when it ends and wiped
/// when refused, the coach that says why, and the feedback line under the canvas. Each page
/// places the line, keeps its own rules and listens to what happened to each stroke.
class WritingPanel : public QObject {
    Q_OBJECT
public:
    /// Takes over `canvas` (a square with the writing cursor) on `page`; the feedback line is
    /// made for the page to place under the canvas.
    WritingPanel(InputCanvas* canvas, WritingCoach::Mode mode, QWidget* page);
    ~WritingPanel() override;

    /// The line under the canvas that says why a stroke was refused.
    FeedbackLine* Line() const { return m_line; }
    /// The character being written.
    const WritingQuiz& Quiz() const { return m_quiz; }
    WritingQuiz& Quiz() { return m_quiz; }

    /// Starts writing `glyph` (none clears) on the canvas as it is now: the ink and the line
    /// are cleared.
    void Start(std::unique_ptr<Element> glyph);
    /// Switches the writing aids.
    void SetCoaching(const CoachingPreferences& preferences)
    {
        m_coach.SetPreferences(preferences);
        m_quiz.SetOwnFrame(preferences.ownFrame);
        m_quiz.SetOtherOrders(preferences.otherOrders);
    }
    const CoachingPreferences& Coaching() const { return m_coach.Preferences(); }

signals:
    /// A stroke was refused, wiped from the canvas, counted as a miss and explained.
    void strokeRefused();
    /// A stroke was accepted and kept: the quiz expects the next one.
    void strokeKept();

private:
    void OnStrokeEnded();

    InputCanvas* m_canvas;
    FeedbackLine* m_line;
    WritingCoach m_coach;
    WritingQuiz m_quiz;
    StrokePath m_acceptedInk; ///< the stroke just accepted, until the canvas keeps it
};
