#include "LessonPage.h"
#include "CoachingPreferences.h"
#include "DisplayCanvas.h"
#include "FeedbackLine.h"
#include "InputCanvas.h"
#include "Named.h"
#include "RecordingPrompt.h"
#include "TestSupport.h"

#include <QCheckBox>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>

#include <random>

using namespace testsupport;

class LessonPageTest : public QObject {
    Q_OBJECT

private slots:
    void initTestCase()
    {
        // Character 0: two strokes, no ON reading. Character 1: one stroke, all texts.
        m_small.writer.AddCharacter(
            m_small.writer.AddStrokeElement(SmallDatabase::Lines({{10, 30, 99, 30}, {54, 10, 54, 99}})), "", "kun",
            "ten");
        m_small.writer.AddCharacter(
            m_small.writer.AddStrokeElement(SmallDatabase::Lines({{10, 54, 99, 54}})), "イチ", "ひと", "one");
        m_small.writer.AddCategory("Test", {0, 1});
        m_db = m_small.Open();
        m_standard = std::make_unique<FileCharacterDatabase>(ZAVOREN_STANDARD_DATABASE);
        m_standard->Preload(nullptr);
    }

    void init()
    {
        m_page = std::make_unique<LessonPage>(*m_db, m_prompt);
        m_page->show();
        QVERIFY(QTest::qWaitForWindowExposed(m_page.get()));
    }
    void cleanup() { m_page.reset(); }

    void canvasesAreSquareWithTheirCursors()
    {
        QCOMPARE(
            Named<InputCanvas>(m_page, "inputCanvas")->width(), Named<InputCanvas>(m_page, "inputCanvas")->height());
        QCOMPARE(Named<DisplayCanvas>(m_page, "displayCanvas")->width(),
            Named<DisplayCanvas>(m_page, "displayCanvas")->height());
        QVERIFY(Named<InputCanvas>(m_page, "inputCanvas")->cursor().shape() == Qt::BitmapCursor);
        QCOMPARE(Named<DisplayCanvas>(m_page, "displayCanvas")->cursor().shape(), Qt::PointingHandCursor);
    }

    void emptyLessonLeavesOnlyAbort()
    {
        QSignalSpy events(m_page.get(), &LessonPage::pageEvent);
        m_page->StartLesson({});
        QVERIFY(!Named<InputCanvas>(m_page, "inputCanvas")->isEnabled());
        QVERIFY(!Named<QPushButton>(m_page, "nextButton")->isEnabled());
        QVERIFY(!Named<QPushButton>(m_page, "hintButton")->isEnabled());
        QVERIFY(Named<QPushButton>(m_page, "abortButton")->isEnabled());
        QCOMPARE(m_page->DefaultButton(), Named<QPushButton>(m_page, "abortButton"));
        QTest::mouseClick(Named<QPushButton>(m_page, "abortButton"), Qt::LeftButton);
        QCOMPARE(events.count(), 1);
        QCOMPARE(events[0][0].toInt(), int(LessonPage::Aborted));
    }

    void missingOnReadingShowsNotAvailableAndMustStillBeTicked()
    {
        m_page->StartLesson({0});
        QCOMPARE(Named<QCheckBox>(m_page, "onReading")->text(), QStringLiteral("N/A"));
        QCOMPARE(Named<QCheckBox>(m_page, "kunReading")->text(), QStringLiteral("kun"));
        QCOMPARE(Named<QCheckBox>(m_page, "meaning")->text(), QStringLiteral("ten"));
        DrawGlyph();
        QVERIFY(!Named<QPushButton>(m_page, "nextButton")->isEnabled());
        Tick(Named<QCheckBox>(m_page, "kunReading"));
        Tick(Named<QCheckBox>(m_page, "meaning"));
        QVERIFY(!Named<QPushButton>(m_page, "nextButton")->isEnabled());
        Tick(Named<QCheckBox>(m_page, "onReading"));
        QVERIFY(Named<QPushButton>(m_page, "nextButton")->isEnabled());
    }

    void tickingAndUntickingAfterCompletionTogglesNext()
    {
        m_page->StartLesson({1});
        TickAll();
        QVERIFY(!Named<QPushButton>(m_page, "nextButton")->isEnabled());
        DrawGlyph();
        QVERIFY(Named<QPushButton>(m_page, "nextButton")->isEnabled());
        QCOMPARE(m_page->DefaultButton(), Named<QPushButton>(m_page, "nextButton"));
        QVERIFY(!Named<InputCanvas>(m_page, "inputCanvas")->isEnabled());
        for (int i = 0; i < 2; ++i) {
            Tick(Named<QCheckBox>(m_page, "meaning"));
            QVERIFY(!Named<QPushButton>(m_page, "nextButton")->isEnabled());
            QCOMPARE(m_page->DefaultButton(), Named<QPushButton>(m_page, "abortButton"));
            Tick(Named<QCheckBox>(m_page, "meaning"));
            QVERIFY(Named<QPushButton>(m_page, "nextButton")->isEnabled());
        }
    }

    void wrongFirstStrokeVanishes()
    {
        m_page->StartLesson({0});
        const QImage blank = Named<InputCanvas>(m_page, "inputCanvas")->BackBuffer();
        QSignalSpy kept(Named<InputCanvas>(m_page, "inputCanvas"), &InputCanvas::strokeKept);
        // The vertical stroke first: wrong order.
        DrawInk(Named<InputCanvas>(m_page, "inputCanvas"),
            StrokeAsMouse(*m_page->Glyph(), 1, Named<InputCanvas>(m_page, "inputCanvas")->ClientRect().width()));
        QCOMPARE(Named<InputCanvas>(m_page, "inputCanvas")->StrokeCount(), 0);
        QCOMPARE(kept.count(), 0);
        QVERIFY(!Named<QPushButton>(m_page, "clearButton")->isEnabled());
        QVERIFY(!Named<QPushButton>(m_page, "undoButton")->isEnabled());
        QCOMPARE(Named<InputCanvas>(m_page, "inputCanvas")->BackBuffer(), blank);
        // Backwards is wrong too.
        auto backwards
            = StrokeAsMouse(*m_page->Glyph(), 0, Named<InputCanvas>(m_page, "inputCanvas")->ClientRect().width());
        std::reverse(backwards.begin(), backwards.end());
        DrawInk(Named<InputCanvas>(m_page, "inputCanvas"), backwards);
        QCOMPARE(Named<InputCanvas>(m_page, "inputCanvas")->StrokeCount(), 0);
        // The right stroke counts.
        DrawInk(Named<InputCanvas>(m_page, "inputCanvas"),
            StrokeAsMouse(*m_page->Glyph(), 0, Named<InputCanvas>(m_page, "inputCanvas")->ClientRect().width()));
        QCOMPARE(Named<InputCanvas>(m_page, "inputCanvas")->StrokeCount(), 1);
        QVERIFY(Named<QPushButton>(m_page, "clearButton")->isEnabled());
        QVERIFY(Named<QPushButton>(m_page, "undoButton")->isEnabled());
    }

    void hintOncePerStrokeAndGoneWhenTheNextStrokeIsKept()
    {
        m_page->StartLesson({0});
        QVERIFY(Named<QPushButton>(m_page, "hintButton")->isEnabled());
        QTest::mouseClick(Named<QPushButton>(m_page, "hintButton"), Qt::LeftButton);
        QVERIFY(!Named<QPushButton>(m_page, "hintButton")->isEnabled());
        const QImage withHint = Named<InputCanvas>(m_page, "inputCanvas")->BackBuffer();
        QVERIFY(CountNot(withHint, qRgb(255, 255, 255)) > 0);
        DrawGlyphStroke(0);
        QVERIFY(Named<QPushButton>(m_page, "hintButton")->isEnabled());
        // The marker sat at the first stroke's start, which the stroke now covers in black;
        // no marker-coloured pixel is left anywhere.
        const QRgb marker = withHint.pixel(
            static_cast<int>(10 * Named<InputCanvas>(m_page, "inputCanvas")->ClientRect().width() / 109.0f),
            static_cast<int>(30 * Named<InputCanvas>(m_page, "inputCanvas")->ClientRect().width() / 109.0f));
        const QImage after = Named<InputCanvas>(m_page, "inputCanvas")->BackBuffer();
        int markerPixels = 0;
        for (int y = 0; y < after.height(); ++y)
            for (int x = 0; x < after.width(); ++x)
                markerPixels += after.pixel(x, y) == marker;
        QCOMPARE(markerPixels, 0);
        // Undo after a hint also enables Hint again.
        QTest::mouseClick(Named<QPushButton>(m_page, "hintButton"), Qt::LeftButton);
        QTest::mouseClick(Named<QPushButton>(m_page, "undoButton"), Qt::LeftButton);
        QVERIFY(Named<QPushButton>(m_page, "hintButton")->isEnabled());
        QCOMPARE(Named<InputCanvas>(m_page, "inputCanvas")->StrokeCount(), 0);
    }

    void oneCharacterLessonFinishesAtNext()
    {
        QSignalSpy events(m_page.get(), &LessonPage::pageEvent);
        m_page->StartLesson({1});
        DrawGlyph();
        TickAll();
        QTest::mouseClick(Named<QPushButton>(m_page, "nextButton"), Qt::LeftButton);
        QCOMPARE(events.count(), 1);
        QCOMPARE(events[0][0].toInt(), int(LessonPage::Finished));
        QCOMPARE(m_page->DoneCodes(), std::vector<std::uint16_t>{1});
    }

    void sameCodeTwiceIsTaughtTwice()
    {
        QSignalSpy events(m_page.get(), &LessonPage::pageEvent);
        m_page->StartLesson({1, 0, 1});
        for (int i = 0; i < 3; ++i) {
            QCOMPARE(events.count(), 0);
            DrawGlyph();
            TickAll();
            // Enter presses the default button, Next.
            QTest::keyClick(m_page.get(), Qt::Key_Return);
        }
        QCOMPARE(events.count(), 1);
        QCOMPARE(m_page->DoneCodes(), (std::vector<std::uint16_t>{1, 0, 1}));
    }

    void escapeAborts()
    {
        QSignalSpy events(m_page.get(), &LessonPage::pageEvent);
        m_page->StartLesson({1});
        QTest::keyClick(m_page.get(), Qt::Key_Escape);
        QCOMPARE(events.count(), 1);
        QCOMPARE(events[0][0].toInt(), int(LessonPage::Aborted));
    }

    void clickingTheGlyphAnimatesIt()
    {
        m_page->StartLesson({1});
        QVERIFY(CountNot(Named<DisplayCanvas>(m_page, "displayCanvas")->BackBuffer(), qRgb(255, 255, 255)) > 0);
        QTest::mouseClick(Named<DisplayCanvas>(m_page, "displayCanvas"), Qt::LeftButton, Qt::NoModifier,
            Named<DisplayCanvas>(m_page, "displayCanvas")->rect().center());
        QVERIFY(Named<DisplayCanvas>(m_page, "displayCanvas")->IsAnimating());
        m_page->hide();
        QVERIFY(!Named<DisplayCanvas>(m_page, "displayCanvas")->IsAnimating());
    }

    void aLearnersLessonOnRealCharacters()
    {
        // One character of 1 stroke, one of 4, one of 10 or more from the standard database.
        std::vector<std::uint16_t> codes;
        for (int wanted : {1, 4, 10}) {
            for (std::uint16_t id = 0; id < m_standard->CharacterCount(); ++id) {
                const int strokes
                    = m_standard->LoadElement(m_standard->LoadCharacter(id)->ElementId())->GetForm(0).StrokeCount();
                if (wanted == 10 ? strokes >= 10 : strokes == wanted) {
                    codes.push_back(id);
                    break;
                }
            }
        }
        QCOMPARE(codes.size(), 3u);
        LessonPage page(*m_standard, m_prompt);
        page.show();
        QVERIFY(QTest::qWaitForWindowExposed(&page));
        QSignalSpy events(&page, &LessonPage::pageEvent);
        page.StartLesson(codes);
        for (std::size_t c = 0; c < codes.size(); ++c) {
            const Form& glyph = *page.Glyph();
            const int side = Named<InputCanvas>(&page, "inputCanvas")->ClientRect().width();
            for (std::uint16_t k = 0; k < glyph.StrokeCount(); ++k) {
                QVERIFY(!Named<QPushButton>(&page, "nextButton")->isEnabled());
                // A wrong stroke first (the next stroke of the glyph, or this one backwards).
                auto wrong = StrokeAsMouse(glyph, k, side);
                std::reverse(wrong.begin(), wrong.end());
                DrawInk(Named<InputCanvas>(&page, "inputCanvas"), wrong);
                QCOMPARE(Named<InputCanvas>(&page, "inputCanvas")->StrokeCount(), int(k));
                DrawInk(Named<InputCanvas>(&page, "inputCanvas"), StrokeAsMouse(glyph, k, side));
                QCOMPARE(Named<InputCanvas>(&page, "inputCanvas")->StrokeCount(), int(k) + 1);
            }
            QVERIFY(!Named<QPushButton>(&page, "nextButton")->isEnabled());
            for (QCheckBox* box : {Named<QCheckBox>(&page, "onReading"), Named<QCheckBox>(&page, "kunReading"),
                     Named<QCheckBox>(&page, "meaning")})
                Tick(box);
            QVERIFY(Named<QPushButton>(&page, "nextButton")->isEnabled());
            QTest::mouseClick(Named<QPushButton>(&page, "nextButton"), Qt::LeftButton);
        }
        QCOMPARE(events.count(), 1);
        QCOMPARE(events[0][0].toInt(), int(LessonPage::Finished));
        QCOMPARE(page.DoneCodes(), codes);
    }

    void theOwnFrameJudgesACharacterWrittenBesideTheModel()
    {
        // 田 (Grade 1), written as a hand copies beside the model, whole strokes at a time: 12 px
        // right and 8 % small is accepted stroke by stroke with the aid on; 20 px right and 14 %
        // small too, where the checker alone (the aid off) refuses strokes for place.
        const std::uint16_t code = CodeMeaning("rice field");
        const struct {
            float right, scale;
        } hands[] = {{12, 0.92f}, {20, 0.86f}};
        for (const auto& hand : hands) {
            for (bool own : {true, false}) {
                CoachingPreferences aids;
                aids.ownFrame = own;
                const auto lesson = LessonWith(aids, code);
                QVERIFY(lesson);
                LessonPage& page = *lesson;
                InputCanvas* input = Named<InputCanvas>(&page, "inputCanvas");
                const Form& glyph = *page.Glyph();
                int refusals = 0;
                for (std::uint16_t k = 0; k < glyph.StrokeCount(); ++k) {
                    const int before = input->StrokeCount();
                    DrawInk(input,
                        Beside(StrokeAsMouse(glyph, k, input->ClientRect().width()), input, hand.right, hand.scale));
                    if (input->StrokeCount() == before) {
                        ++refusals;
                        QVERIFY(Named<FeedbackLine>(&page, "strokeFeedback")
                                    ->text()
                                    .startsWith(QStringLiteral("Wrong place")));
                        DrawInk(input, StrokeAsMouse(glyph, k, input->ClientRect().width())); // at the model's place
                    }
                    QCOMPARE(input->StrokeCount(), before + 1);
                }
                if (own)
                    QCOMPARE(refusals, 0);
                else if (hand.right == 20)
                    QVERIFY(refusals > 0);
            }
        }
    }

    void anotherStrokeOrderIsAcceptedAndSaidOnce()
    {
        // 王 in the order KanjiVG records as VtLst: the three horizontals, then the vertical.
        const std::uint16_t code = CodeMeaning("king");
        for (bool orders : {true, false}) {
            CoachingPreferences aids;
            aids.otherOrders = orders;
            const auto lesson = LessonWith(aids, code);
            QVERIFY(lesson);
            LessonPage& page = *lesson;
            InputCanvas* input = Named<InputCanvas>(&page, "inputCanvas");
            auto* line = Named<FeedbackLine>(&page, "strokeFeedback");
            const auto element = m_standard->LoadElement(m_standard->LoadCharacter(code)->ElementId());
            QCOMPARE(element->FormCount(), 2);
            const Form& verticalLast = element->GetForm(1);
            const int side = input->ClientRect().width();
            DrawInk(input, StrokeAsMouse(verticalLast, 0, side));
            QCOMPARE(input->StrokeCount(), 1);
            DrawInk(input, StrokeAsMouse(verticalLast, 1, side)); // the middle horizontal, second
            if (!orders) {
                // As always: refused, the middle horizontal being the standard order's third.
                QCOMPARE(input->StrokeCount(), 1);
                QCOMPARE(line->text(), QStringLiteral("Wrong order: that is stroke 3. Write stroke 2 first."));
                continue;
            }
            QCOMPARE(input->StrokeCount(), 2);
            QCOMPARE(line->text(), QStringLiteral("Also correct: the order taught in other schools."));
            // The hint now shows where the vertical of this order starts: its last stroke.
            QCOMPARE(page.Glyph()->GetStroke(3).Start(), verticalLast.GetStroke(3).Start());
            DrawInk(input, StrokeAsMouse(verticalLast, 2, side));
            QCOMPARE(input->StrokeCount(), 3);
            QVERIFY(line->text().isEmpty()); // said once
            DrawInk(input, StrokeAsMouse(verticalLast, 3, side));
            QCOMPARE(input->StrokeCount(), 4);
        }
    }

    void steadyInkAcceptsAShakingHand()
    {
        // 田 written along its strokes by a hand that shakes by σ 2.5 px at every point.
        const std::uint16_t code = CodeMeaning("rice field");
        for (bool steady : {true, false}) {
            CoachingPreferences aids;
            aids.steadyInk = steady;
            const auto lesson = LessonWith(aids, code);
            QVERIFY(lesson);
            LessonPage& page = *lesson;
            InputCanvas* input = Named<InputCanvas>(&page, "inputCanvas");
            const Form glyph = *page.Glyph();
            std::mt19937 random(11);
            std::normal_distribution<float> shake(0.0f, 2.5f);
            int refusals = 0;
            for (std::uint16_t k = 0; k < glyph.StrokeCount(); ++k) {
                const int before = input->StrokeCount();
                StrokePath path(FlattenStroke(glyph.GetStroke(k)));
                const int side = input->ClientRect().width();
                path.ScaleAndOffset(float(side) / glyph.Width(), float(side) / glyph.Height(), 0, 0);
                path.ResampleInPlace(std::max<std::uint32_t>(2, std::uint32_t(std::lround(path.Length() / 2)) + 1));
                std::vector<Point> shaking;
                for (const Point& p : path.Points())
                    shaking.push_back({p.x + shake(random), p.y + shake(random)});
                DrawInk(input, shaking);
                if (input->StrokeCount() == before) {
                    ++refusals;
                    DrawInk(input, StrokeAsMouse(glyph, k, side)); // steadily, to go on
                }
                QCOMPARE(input->StrokeCount(), before + 1);
            }
            if (steady)
                QCOMPARE(refusals, 0);
            else
                QVERIFY(refusals > 0);
        }
    }

    void theArrowPointsToThePlaceInTheLearnersCharacter()
    {
        const std::uint16_t code = CodeMeaning("rice field");
        LessonPage page(*m_standard, m_prompt);
        page.show();
        QVERIFY(QTest::qWaitForWindowExposed(&page));
        page.StartLesson({code});
        InputCanvas* input = Named<InputCanvas>(&page, "inputCanvas");
        const Form& glyph = *page.Glyph();
        const int side = input->ClientRect().width();
        for (std::uint16_t k = 0; k < 3; ++k)
            DrawInk(input, Beside(StrokeAsMouse(glyph, k, side), input, 20, 0.86f));
        QCOMPARE(input->StrokeCount(), 3);
        // The fourth stroke 60 px above its place in the learner's character.
        std::vector<Point> high = Beside(StrokeAsMouse(glyph, 3, side), input, 20, 0.86f);
        const std::vector<Point> placed = high;
        for (Point& p : high)
            p.y -= 60;
        DrawInk(input, high);
        QCOMPARE(input->StrokeCount(), 3);
        QCOMPARE(Named<FeedbackLine>(&page, "strokeFeedback")->text(),
            QStringLiteral("Wrong place: this stroke belongs further down."));
        // The arrow's head is at the learner's place of the stroke (the centre of its box), not
        // at the model's, 20 px away.
        auto centre = [](const std::vector<Point>& points) {
            float left = points[0].x, right = left, top = points[0].y, bottom = top;
            for (Point p : points) {
                left = std::min(left, p.x);
                right = std::max(right, p.x);
                top = std::min(top, p.y);
                bottom = std::max(bottom, p.y);
            }
            return QPoint(int((left + right) / 2), int((top + bottom) / 2));
        };
        const QPoint learnerPlace = centre(placed) + input->contentsRect().topLeft();
        const QPoint modelPlace = centre(StrokeAsMouse(glyph, 3, side)) + input->contentsRect().topLeft();
        QVERIFY2((learnerPlace - modelPlace).manhattanLength() >= 18,
            qPrintable(QStringLiteral("%1,%2 %3,%4")
                           .arg(learnerPlace.x())
                           .arg(learnerPlace.y())
                           .arg(modelPlace.x())
                           .arg(modelPlace.y())));
        const QImage shown = input->grab().toImage();
        const QColor mark = input->palette().color(QPalette::Highlight);
        auto markedNear
            = [&](QPoint at) { return CountNear(shown.copy(QRect(at - QPoint(6, 6), QSize(13, 13))), mark, 30); };
        QVERIFY(markedNear(learnerPlace) > 5);
        QCOMPARE(markedNear(modelPlace), 0);
    }

private:
    /// A character of the standard database (Grade 1 or 2) by the start of its meaning.
    /// A lesson page on the standard database with these aids, shown, teaching `code`.
    std::unique_ptr<LessonPage> LessonWith(const CoachingPreferences& aids, std::uint16_t code)
    {
        auto page = std::make_unique<LessonPage>(*m_standard, m_prompt);
        page->SetCoaching(aids);
        page->show();
        if (!QTest::qWaitForWindowExposed(page.get()))
            return nullptr;
        page->StartLesson({code});
        return page;
    }

    std::uint16_t CodeMeaning(const char* start) const
    {
        for (std::uint16_t grade : {0, 1}) {
            const auto category = m_standard->LoadCategory(grade);
            for (std::uint16_t id : category->Characters()) {
                const auto character = m_standard->LoadCharacter(id);
                if (character->Meaning() && std::string(character->Meaning()).rfind(start, 0) == 0)
                    return id;
            }
        }
        qFatal("no character of Grade 1 or 2 means \"%s\"", start);
    }
    /// Mouse points of a stroke as written beside the model: `scale` times the size about the
    /// canvas's centre, then `right` px right.
    static std::vector<Point> Beside(std::vector<Point> points, InputCanvas* input, float right, float scale)
    {
        const float middle = input->ClientRect().width() / 2.0f;
        for (Point& p : points) {
            p.x = middle + scale * (p.x - middle) + right;
            p.y = middle + scale * (p.y - middle);
        }
        return points;
    }
    /// Clicks the box's indicator, as a learner ticks it.
    static void Tick(QCheckBox* box)
    {
        QTest::mouseClick(box, Qt::LeftButton, Qt::NoModifier, QPoint(8, box->height() / 2));
    }
    void DrawGlyphStroke(std::uint16_t k)
    {
        DrawInk(Named<InputCanvas>(m_page, "inputCanvas"),
            StrokeAsMouse(*m_page->Glyph(), k, Named<InputCanvas>(m_page, "inputCanvas")->ClientRect().width()));
    }
    void DrawGlyph()
    {
        for (std::uint16_t k = 0; k < m_page->Glyph()->StrokeCount(); ++k) {
            DrawGlyphStroke(k);
            QCOMPARE(Named<InputCanvas>(m_page, "inputCanvas")->StrokeCount(), k + 1);
        }
    }
    void TickAll()
    {
        for (QCheckBox* box : {Named<QCheckBox>(m_page, "onReading"), Named<QCheckBox>(m_page, "kunReading"),
                 Named<QCheckBox>(m_page, "meaning")})
            if (!box->isChecked())
                Tick(box);
    }

    SmallDatabase m_small;
    std::unique_ptr<FileCharacterDatabase> m_db;
    RecordingPrompt m_prompt;
    std::unique_ptr<FileCharacterDatabase> m_standard;
    std::unique_ptr<LessonPage> m_page;
};

QTEST_MAIN(LessonPageTest)
#include "LessonPageTest.moc"

#include <algorithm>
