// The writing aids on the lesson page and the drawing test, driven by real mouse, pen and touch
// events: what the learner reads and hears after a refused stroke, what the canvas shows, and
// that with every aid off the pages are as they always were.

#include "Named.h"
#include "DrawingTestPage.h"
#include "FeedbackLine.h"
#include "InputCanvas.h"
#include "LessonPage.h"
#include "RecordingPrompt.h"
#include "TestSupport.h"

#include <QAccessible>
#include <QPointingDevice>
#include <QPushButton>
#include <QSignalSpy>
#include <QTabletEvent>
#include <QTest>

using namespace testsupport;

namespace {

QList<QAccessible::Event> g_events;
QObject* g_watched = nullptr;

void RecordAccessibility(QAccessibleEvent* event)
{
    if (event->object() == g_watched)
        g_events << event->type();
}

std::vector<Point> Shifted(std::vector<Point> points, float dx, float dy)
{
    for (Point& p : points)
        p = {p.x + dx, p.y + dy};
    return points;
}

/// Pixels of the image within `tolerance` of `colour` in each channel.

} // namespace

class WritingCoachTest : public QObject {
    Q_OBJECT

private slots:
    void theLinesSayEachVerdictInEnglishWithoutATranslation()
    {
        using Kind = StrokeVerdict::Kind;
        auto verdict = [](Kind kind, float dx = 0, float dy = 0) {
            StrokeVerdict v;
            v.kind = kind;
            v.drawnAs = 3;
            v.expected = 1;
            v.dx = dx;
            v.dy = dy;
            return v;
        };
        QCOMPARE(WritingCoach::Explain(verdict(Kind::Accepted), true), QString());
        QCOMPARE(WritingCoach::Explain(verdict(Kind::WrongOrder), true),
            QStringLiteral("Wrong order: that is stroke 4. Write stroke 2 first."));
        QCOMPARE(WritingCoach::Explain(verdict(Kind::WrongDirection), false),
            QStringLiteral("Wrong direction: start this stroke from the other end."));
        QCOMPARE(WritingCoach::Explain(verdict(Kind::TooShort), true), QStringLiteral("Too short: this stroke is longer."));
        QCOMPARE(WritingCoach::Explain(verdict(Kind::TooLong), true), QStringLiteral("Too long: this stroke is shorter."));
        QCOMPARE(WritingCoach::Explain(verdict(Kind::WrongShape), true),
            QStringLiteral("Wrong shape: compare it with the model."));
        QCOMPARE(WritingCoach::Explain(verdict(Kind::CharacterComplete), true),
            QStringLiteral("The character is already complete."));
        // Misplaced: in a lesson the way to go, in a test nothing that gives the character away.
        const std::pair<QPointF, const char*> ways[] = {{QPointF(0, -40), "up"}, {QPointF(0, 40), "down"},
            {QPointF(-40, 0), "left"}, {QPointF(40, 0), "right"}, {QPointF(-30, -30), "up and to the left"},
            {QPointF(30, -30), "up and to the right"}, {QPointF(-30, 30), "down and to the left"},
            {QPointF(30, 30), "down and to the right"}};
        for (const auto& [way, words] : ways) {
            const StrokeVerdict v
                = verdict(Kind::WrongPlace, static_cast<float>(way.x()), static_cast<float>(way.y()));
            QCOMPARE(WritingCoach::Explain(v, true),
                QStringLiteral("Wrong place: this stroke belongs further %1.").arg(QLatin1String(words)));
            QCOMPARE(WritingCoach::Explain(v, false), QStringLiteral("Wrong place."));
        }
    }

    void initTestCase()
    {
        // One character: a line across at y 30, then a line down the middle.
        m_small.writer.AddCharacter(
            m_small.writer.AddStrokeElement(SmallDatabase::Lines({{10, 30, 99, 30}, {54, 10, 54, 99}})), "", "kun",
            "ten");
        m_small.writer.AddCategory("Test", {0});
        m_db = m_small.Open();
        QAccessible::installUpdateHandler(RecordAccessibility);
        QAccessible::setActive(true);
    }

    void init()
    {
        m_lesson = std::make_unique<LessonPage>(*m_db, m_prompt);
        m_lesson->show();
        QVERIFY(QTest::qWaitForWindowExposed(m_lesson.get()));
        m_lesson->StartLesson({0});
        g_events.clear();
        g_watched = Named<FeedbackLine>(m_lesson, "strokeFeedback");
    }
    void cleanup() { m_lesson.reset(); }

    void aRefusedStrokeIsExplainedAndAnnounced()
    {
        FeedbackLine* line = Named<FeedbackLine>(m_lesson, "strokeFeedback");
        QSignalSpy announced(line, &FeedbackLine::announced);
        QCOMPARE(line->accessibleName(), QStringLiteral("Stroke feedback"));
        QVERIFY(line->isVisible());
        // The second stroke first.
        DrawInk(Named<InputCanvas>(m_lesson, "inputCanvas"), Stroke(1));
        QCOMPARE(Named<InputCanvas>(m_lesson, "inputCanvas")->StrokeCount(), 0);
        QCOMPARE(line->text(), QStringLiteral("Wrong order: that is stroke 2. Write stroke 1 first."));
        // What a screen reader reads: the name, and the message as the description.
        QAccessibleInterface* face = QAccessible::queryAccessibleInterface(line);
        QVERIFY(face);
        QCOMPARE(face->text(QAccessible::Name), QStringLiteral("Stroke feedback"));
        QCOMPARE(face->text(QAccessible::Description), line->text());
        QCOMPARE(announced.count(), 1);
        QCOMPARE(announced[0][0].toString(), line->text());
        // Where a bridge is running (not offscreen), the change and an alert reach it too.
        if (QAccessible::isActive()) {
            QVERIFY(g_events.contains(QAccessible::DescriptionChanged));
            QVERIFY(g_events.contains(QAccessible::Alert));
        }
        // It never covers the canvas.
        QVERIFY(!line->geometry().intersects(Named<InputCanvas>(m_lesson, "inputCanvas")->geometry()));
        // The next stroke starting empties it; the right stroke is kept.
        DrawInk(Named<InputCanvas>(m_lesson, "inputCanvas"), Stroke(0));
        QCOMPARE(line->text(), QString());
        QCOMPARE(line->accessibleDescription(), QString());
        QCOMPARE(Named<InputCanvas>(m_lesson, "inputCanvas")->StrokeCount(), 1);
        // Backwards.
        std::vector<Point> reversed = Stroke(1);
        std::reverse(reversed.begin(), reversed.end());
        DrawInk(Named<InputCanvas>(m_lesson, "inputCanvas"), reversed);
        QCOMPARE(line->text(), QStringLiteral("Wrong direction: start this stroke from the other end."));
    }

    void aMisplacedStrokeShowsTheWayThenFades()
    {
        InputCanvas* canvas = Named<InputCanvas>(m_lesson, "inputCanvas");
        const QColor mark = canvas->palette().color(QPalette::Highlight);
        QCOMPARE(CountNear(canvas->grab().toImage(), mark, 30), 0);
        DrawInk(canvas, Shifted(Stroke(0), 0, 80));
        QCOMPARE(Named<FeedbackLine>(m_lesson, "strokeFeedback")->text(), QStringLiteral("Wrong place: this stroke belongs further up."));
        QVERIFY(canvas->RefusalShown());
        QVERIFY(canvas->isEnabled()); // the next stroke may start at once
        QVERIFY(CountNear(canvas->grab().toImage(), mark, 30) > 40); // the arrow
        QTRY_VERIFY_WITH_TIMEOUT(!canvas->RefusalShown(), InputCanvas::FadeMilliseconds + 2000);
        QCOMPARE(CountNear(canvas->grab().toImage(), mark, 30), 0);
    }

    void guideLinesNeverReachTheInkOrTheChecker()
    {
        InputCanvas* canvas = Named<InputCanvas>(m_lesson, "inputCanvas");
        QVERIFY(canvas->GuideLines());
        const QColor paper = canvas->BackBuffer().pixelColor(0, 0);
        QCOMPARE(CountNot(canvas->BackBuffer(), paper.rgb()), 0); // not in the buffer
        const QImage shown = canvas->grab().toImage();
        const QRect client = canvas->contentsRect();
        const int middleX = client.left() + client.width() / 2;
        int guide = 0;
        for (int y = client.top(); y < client.bottom(); ++y)
            for (int x = middleX - 2; x <= middleX + 2; ++x)
                guide += shown.pixelColor(x, y) != paper;
        QVERIFY2(guide > 60, qPrintable(QString::number(guide))); // dashed: on screen, part of the way
        DrawInk(canvas, Stroke(0));
        QCOMPARE(canvas->StrokeCount(), 1);
        // The ink is on top: where the first stroke crosses the vertical guide, it is ink.
        const QColor ink(Qt::black);
        const int row = static_cast<int>(Stroke(0).front().y) + client.top();
        for (int x = middleX - 2; x <= middleX + 2; ++x)
            QCOMPARE(canvas->grab().toImage().pixelColor(x, row), ink);
    }

    void threeMissesShowTheStartInALesson()
    {
        QVERIFY(Named<QPushButton>(m_lesson, "hintButton")->isEnabled());
        for (int miss = 0; miss < 2; ++miss)
            DrawInk(Named<InputCanvas>(m_lesson, "inputCanvas"), Shifted(Stroke(0), 0, 80));
        QVERIFY(Named<QPushButton>(m_lesson, "hintButton")->isEnabled());
        const QImage before = Named<InputCanvas>(m_lesson, "inputCanvas")->BackBuffer();
        DrawInk(Named<InputCanvas>(m_lesson, "inputCanvas"), Shifted(Stroke(0), 0, 80));
        QVERIFY(!Named<QPushButton>(m_lesson, "hintButton")->isEnabled()); // as if Hint had been pressed
        QVERIFY(Named<InputCanvas>(m_lesson, "inputCanvas")->BackBuffer() != before); // the start mark
        // Kept, the hint is spent and the count starts again for the next stroke.
        DrawInk(Named<InputCanvas>(m_lesson, "inputCanvas"), Stroke(0));
        QVERIFY(Named<QPushButton>(m_lesson, "hintButton")->isEnabled());
    }

    void theDrawingTestGivesNothingAway()
    {
        DrawingTestPage test(*m_db, m_prompt);
        test.show();
        QVERIFY(QTest::qWaitForWindowExposed(&test));
        const auto character = m_db->LoadCharacter(0);
        test.SetCharacter(character.get());
        const QColor mark = Named<InputCanvas>(&test, "inputCanvas")->palette().color(QPalette::Highlight);
        for (int miss = 0; miss < 3; ++miss)
            DrawInk(Named<InputCanvas>(&test, "inputCanvas"), Shifted(Stroke(0), 0, 80));
        QCOMPARE(Named<FeedbackLine>(&test, "strokeFeedback")->text(), QStringLiteral("Wrong place."));
        QCOMPARE(CountNear(Named<InputCanvas>(&test, "inputCanvas")->grab().toImage(), mark, 30), 0); // no arrow
        QCOMPARE(CountNot(Named<InputCanvas>(&test, "inputCanvas")->BackBuffer(), Named<InputCanvas>(&test, "inputCanvas")->BackBuffer().pixel(0, 0)), 0); // no start mark
        QVERIFY(!test.Revealed());
        DrawInk(Named<InputCanvas>(&test, "inputCanvas"), Stroke(1));
        QCOMPARE(Named<FeedbackLine>(&test, "strokeFeedback")->text(), QStringLiteral("Wrong order: that is stroke 2. Write stroke 1 first."));
    }

    void withEveryAidOffTheLessonIsAsItWas()
    {
        m_lesson->SetCoaching(CoachingPreferences::AllOff());
        QVERIFY(!Named<FeedbackLine>(m_lesson, "strokeFeedback")->isVisible());
        QVERIFY(!Named<InputCanvas>(m_lesson, "inputCanvas")->GuideLines());
        for (int miss = 0; miss < 4; ++miss)
            DrawInk(Named<InputCanvas>(m_lesson, "inputCanvas"), Shifted(Stroke(0), 0, 80));
        QVERIFY(!Named<InputCanvas>(m_lesson, "inputCanvas")->RefusalShown()); // the refused stroke simply vanishes
        QVERIFY(Named<QPushButton>(m_lesson, "hintButton")->isEnabled()); // no hint after misses
        QCOMPARE(Named<FeedbackLine>(m_lesson, "strokeFeedback")->text(), QString());
        const QColor paper = Named<InputCanvas>(m_lesson, "inputCanvas")->BackBuffer().pixelColor(0, 0);
        const QImage shown = Named<InputCanvas>(m_lesson, "inputCanvas")->grab().toImage().copy(Named<InputCanvas>(m_lesson, "inputCanvas")->contentsRect());
        QCOMPARE(CountNot(shown, paper.rgb()), 0);
    }

    void aPenWritesLikeTheMouseWithPressureInTheInkOnly()
    {
        QPointingDevice stylus(QStringLiteral("test stylus"), 42, QInputDevice::DeviceType::Stylus,
            QPointingDevice::PointerType::Pen, QInputDevice::Capability::Position | QInputDevice::Capability::Pressure,
            1, 3);
        InputCanvas* canvas = Named<InputCanvas>(m_lesson, "inputCanvas");
        QSignalSpy ended(canvas, &InputCanvas::strokeEnded);
        auto pen = [&](QEvent::Type type, const Point& p, qreal pressure) {
            const QPointF at = QPointF(p.x, p.y) + canvas->contentsRect().topLeft();
            QTabletEvent event(type, &stylus, at, canvas->mapToGlobal(at), pressure, 0, 0, 0, 0, 0, Qt::NoModifier,
                Qt::LeftButton, type == QEvent::TabletRelease ? Qt::NoButton : Qt::MouseButtons(Qt::LeftButton));
            QApplication::sendEvent(canvas, &event);
            return event.isAccepted();
        };
        auto write = [&](const std::vector<Point>& points, qreal pressure) {
            QVERIFY(pen(QEvent::TabletPress, points.front(), pressure));
            for (std::size_t i = 1; i < points.size(); ++i)
                QVERIFY(pen(QEvent::TabletMove, points[i], pressure));
            QVERIFY(pen(QEvent::TabletRelease, points.back(), pressure));
        };
        const QColor paper = canvas->BackBuffer().pixelColor(0, 0);
        write(Stroke(0), 0.0);
        QCOMPARE(ended.count(), 1);
        QCOMPARE(canvas->StrokeCount(), 1);
        const int light = CountNot(canvas->BackBuffer(), paper.rgb());
        canvas->Clear();
        m_lesson->StartLesson({0});
        write(Stroke(0), 1.0);
        QCOMPARE(canvas->StrokeCount(), 1); // the same points, the same verdict
        const int heavy = CountNot(canvas->BackBuffer(), paper.rgb());
        QVERIFY2(heavy > light * 2, qPrintable(QStringLiteral("%1 vs %2").arg(heavy).arg(light)));
        write(Stroke(1), 0.5);
        QCOMPARE(canvas->StrokeCount(), 2);
    }

    void aFingerWritesLikeTheMouse()
    {
        const std::unique_ptr<QPointingDevice> device(QTest::createTouchDevice()); // ours to delete
        QPointingDevice* screen = device.get();
        InputCanvas* canvas = Named<InputCanvas>(m_lesson, "inputCanvas");
        QSignalSpy ended(canvas, &InputCanvas::strokeEnded);
        auto at = [&](const Point& p) {
            return QPoint(static_cast<int>(p.x), static_cast<int>(p.y)) + canvas->contentsRect().topLeft();
        };
        for (std::uint16_t k = 0; k < 2; ++k) {
            const std::vector<Point> points = Stroke(k);
            QTest::touchEvent(canvas, screen).press(0, at(points.front()));
            for (std::size_t i = 1; i < points.size(); ++i)
                QTest::touchEvent(canvas, screen).move(0, at(points[i]));
            QTest::touchEvent(canvas, screen).release(0, at(points.back()));
        }
        QCOMPARE(ended.count(), 2); // one stroke each, never doubled by mouse events made of the touches
        QCOMPARE(canvas->StrokeCount(), 2);
        QVERIFY(Named<FeedbackLine>(m_lesson, "strokeFeedback")->text().isEmpty());
    }

private:
    std::vector<Point> Stroke(std::uint16_t k) const
    {
        return StrokeAsMouse(*m_lesson->Glyph(), k, Named<InputCanvas>(m_lesson, "inputCanvas")->ClientRect().width());
    }

    SmallDatabase m_small;
    std::unique_ptr<FileCharacterDatabase> m_db;
    std::unique_ptr<LessonPage> m_lesson;
    RecordingPrompt m_prompt;
};

QTEST_MAIN(WritingCoachTest)
#include "WritingCoachTest.moc"

#include <algorithm>
