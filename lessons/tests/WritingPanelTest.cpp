// The writing panel that the lesson and the drawing test share: a stroke drawn with the mouse
// is judged when it ends, kept when right, wiped and explained when wrong.

#include "FeedbackLine.h"
#include "InputCanvas.h"
#include "Named.h"
#include "TestSupport.h"
#include "WritingPanel.h"

#include <QSignalSpy>
#include <QVBoxLayout>

using namespace testsupport;

namespace {

/// A glyph element of two strokes: across at y 30, then down the middle.
std::unique_ptr<Element> Cross()
{
    auto element = std::make_unique<Element>(0);
    element->AppendForm(SmallDatabase::Lines({{20, 30, 89, 30}, {54, 10, 54, 99}}));
    return element;
}

} // namespace

class WritingPanelTest : public QObject {
    Q_OBJECT

private slots:
    void init()
    {
        m_page = std::make_unique<QWidget>();
        auto* layout = new QVBoxLayout(m_page.get());
        m_canvas = new InputCanvas(m_page.get());
        m_canvas->setFixedSize(300, 300);
        layout->addWidget(m_canvas);
        m_panel = new WritingPanel(m_canvas, WritingCoach::Mode::Lesson, m_page.get());
        layout->addWidget(m_panel->Line());
        m_page->show();
        QVERIFY(QTest::qWaitForWindowExposed(m_page.get()));
        m_panel->Start(Cross());
        m_form = m_panel->Quiz().Glyph();
        QVERIFY(m_form);
    }
    void cleanup() { m_page.reset(); }

    void theRightStrokeIsKeptAndTheNextIsExpected()
    {
        QSignalSpy kept(m_panel, &WritingPanel::strokeKept);
        QSignalSpy refused(m_panel, &WritingPanel::strokeRefused);
        DrawInk(m_canvas, StrokeAsMouse(*m_form, 0, m_canvas->ClientRect().width()));
        QCOMPARE(kept.count(), 1);
        QCOMPARE(refused.count(), 0);
        QCOMPARE(m_canvas->StrokeCount(), 1);
        QCOMPARE(m_panel->Quiz().Kept(), 1);
        DrawInk(m_canvas, StrokeAsMouse(*m_form, 1, m_canvas->ClientRect().width()));
        QVERIFY(m_panel->Quiz().IsComplete());
    }

    void aWrongStrokeIsWipedCountedAndExplained()
    {
        QSignalSpy kept(m_panel, &WritingPanel::strokeKept);
        QSignalSpy refused(m_panel, &WritingPanel::strokeRefused);
        // The second stroke first: wrong order.
        DrawInk(m_canvas, StrokeAsMouse(*m_form, 1, m_canvas->ClientRect().width()));
        QCOMPARE(kept.count(), 0);
        QCOMPARE(refused.count(), 1);
        QCOMPARE(m_canvas->StrokeCount(), 0);
        QCOMPARE(m_panel->Quiz().Misses(), 1);
        auto* line = Named<FeedbackLine>(m_page, "strokeFeedback");
        QCOMPARE(line->text(), QStringLiteral("Wrong order: that is stroke 2. Write stroke 1 first."));
        // A new stroke empties the line.
        QTest::mousePress(m_canvas, Qt::LeftButton, Qt::NoModifier, QPoint(40, 40));
        QCOMPARE(line->text(), QString());
        QTest::mouseRelease(m_canvas, Qt::LeftButton, Qt::NoModifier, QPoint(40, 40));
    }

    void startingAgainClearsTheInkAndTheLine()
    {
        DrawInk(m_canvas, StrokeAsMouse(*m_form, 0, m_canvas->ClientRect().width()));
        DrawInk(m_canvas, {{10, 280}, {12, 282}}); // a scribble in the corner: refused
        QVERIFY(!Named<FeedbackLine>(m_page, "strokeFeedback")->text().isEmpty());
        m_panel->Start(Cross());
        QCOMPARE(m_canvas->StrokeCount(), 0);
        QCOMPARE(m_panel->Quiz().Kept(), 0);
        QCOMPARE(Named<FeedbackLine>(m_page, "strokeFeedback")->text(), QString());
    }

private:
    std::unique_ptr<QWidget> m_page;
    InputCanvas* m_canvas = nullptr;
    WritingPanel* m_panel = nullptr;
    const Form* m_form = nullptr;
};

QTEST_MAIN(WritingPanelTest)
#include "WritingPanelTest.moc"
