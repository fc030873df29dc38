#include "LessonPage.h"
#include "DisplayCanvas.h"
#include "InputCanvas.h"
#include "RecordingPrompt.h"
#include "TestSupport.h"

#include <QCheckBox>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>

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
        QCOMPARE(m_page->Input()->width(), m_page->Input()->height());
        QCOMPARE(m_page->Display()->width(), m_page->Display()->height());
        QVERIFY(m_page->Input()->cursor().shape() == Qt::BitmapCursor);
        QCOMPARE(m_page->Display()->cursor().shape(), Qt::PointingHandCursor);
    }

    void emptyLessonLeavesOnlyAbort()
    {
        QSignalSpy events(m_page.get(), &LessonPage::pageEvent);
        m_page->StartLesson({});
        QVERIFY(!m_page->Input()->isEnabled());
        QVERIFY(!m_page->NextButton()->isEnabled());
        QVERIFY(!m_page->HintButton()->isEnabled());
        QVERIFY(m_page->AbortButton()->isEnabled());
        QCOMPARE(m_page->DefaultButton(), m_page->AbortButton());
        QTest::mouseClick(m_page->AbortButton(), Qt::LeftButton);
        QCOMPARE(events.count(), 1);
        QCOMPARE(events[0][0].toInt(), int(LessonPage::Aborted));
    }

    void missingOnReadingShowsNotAvailableAndMustStillBeTicked()
    {
        m_page->StartLesson({0});
        QCOMPARE(m_page->OnReadingBox()->text(), QStringLiteral("N/A"));
        QCOMPARE(m_page->KunReadingBox()->text(), QStringLiteral("kun"));
        QCOMPARE(m_page->MeaningBox()->text(), QStringLiteral("ten"));
        DrawGlyph();
        QVERIFY(!m_page->NextButton()->isEnabled());
        Tick(m_page->KunReadingBox());
        Tick(m_page->MeaningBox());
        QVERIFY(!m_page->NextButton()->isEnabled());
        Tick(m_page->OnReadingBox());
        QVERIFY(m_page->NextButton()->isEnabled());
    }

    void tickingAndUntickingAfterCompletionTogglesNext()
    {
        m_page->StartLesson({1});
        TickAll();
        QVERIFY(!m_page->NextButton()->isEnabled());
        DrawGlyph();
        QVERIFY(m_page->NextButton()->isEnabled());
        QCOMPARE(m_page->DefaultButton(), m_page->NextButton());
        QVERIFY(!m_page->Input()->isEnabled());
        for (int i = 0; i < 2; ++i) {
            Tick(m_page->MeaningBox());
            QVERIFY(!m_page->NextButton()->isEnabled());
            QCOMPARE(m_page->DefaultButton(), m_page->AbortButton());
            Tick(m_page->MeaningBox());
            QVERIFY(m_page->NextButton()->isEnabled());
        }
    }

    void wrongFirstStrokeVanishes()
    {
        m_page->StartLesson({0});
        const QImage blank = m_page->Input()->BackBuffer();
        QSignalSpy kept(m_page->Input(), &InputCanvas::strokeKept);
        // The vertical stroke first: wrong order.
        DrawInk(m_page->Input(), StrokeAsMouse(*m_page->Glyph(), 1, m_page->Input()->ClientRect().width()));
        QCOMPARE(m_page->Input()->StrokeCount(), 0);
        QCOMPARE(kept.count(), 0);
        QVERIFY(!m_page->ClearButton()->isEnabled());
        QVERIFY(!m_page->UndoButton()->isEnabled());
        QCOMPARE(m_page->Input()->BackBuffer(), blank);
        // Backwards is wrong too.
        auto backwards = StrokeAsMouse(*m_page->Glyph(), 0, m_page->Input()->ClientRect().width());
        std::reverse(backwards.begin(), backwards.end());
        DrawInk(m_page->Input(), backwards);
        QCOMPARE(m_page->Input()->StrokeCount(), 0);
        // The right stroke counts.
        DrawInk(m_page->Input(), StrokeAsMouse(*m_page->Glyph(), 0, m_page->Input()->ClientRect().width()));
        QCOMPARE(m_page->Input()->StrokeCount(), 1);
        QVERIFY(m_page->ClearButton()->isEnabled());
        QVERIFY(m_page->UndoButton()->isEnabled());
    }

    void hintOncePerStrokeAndGoneWhenTheNextStrokeIsKept()
    {
        m_page->StartLesson({0});
        QVERIFY(m_page->HintButton()->isEnabled());
        QTest::mouseClick(m_page->HintButton(), Qt::LeftButton);
        QVERIFY(!m_page->HintButton()->isEnabled());
        const QImage withHint = m_page->Input()->BackBuffer();
        QVERIFY(CountNot(withHint, qRgb(255, 255, 255)) > 0);
        DrawGlyphStroke(0);
        QVERIFY(m_page->HintButton()->isEnabled());
        // The marker sat at the first stroke's start, which the stroke now covers in black;
        // no marker-coloured pixel is left anywhere.
        const QRgb marker = withHint.pixel(static_cast<int>(10 * m_page->Input()->ClientRect().width() / 109.0f),
            static_cast<int>(30 * m_page->Input()->ClientRect().width() / 109.0f));
        const QImage after = m_page->Input()->BackBuffer();
        int markerPixels = 0;
        for (int y = 0; y < after.height(); ++y)
            for (int x = 0; x < after.width(); ++x)
                markerPixels += after.pixel(x, y) == marker;
        QCOMPARE(markerPixels, 0);
        // Undo after a hint also enables Hint again.
        QTest::mouseClick(m_page->HintButton(), Qt::LeftButton);
        QTest::mouseClick(m_page->UndoButton(), Qt::LeftButton);
        QVERIFY(m_page->HintButton()->isEnabled());
        QCOMPARE(m_page->Input()->StrokeCount(), 0);
    }

    void oneCharacterLessonFinishesAtNext()
    {
        QSignalSpy events(m_page.get(), &LessonPage::pageEvent);
        m_page->StartLesson({1});
        DrawGlyph();
        TickAll();
        QTest::mouseClick(m_page->NextButton(), Qt::LeftButton);
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
        QVERIFY(CountNot(m_page->Display()->BackBuffer(), qRgb(255, 255, 255)) > 0);
        QTest::mouseClick(m_page->Display(), Qt::LeftButton, Qt::NoModifier, m_page->Display()->rect().center());
        QVERIFY(m_page->Display()->IsAnimating());
        m_page->hide();
        QVERIFY(!m_page->Display()->IsAnimating());
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
            const int side = page.Input()->ClientRect().width();
            for (std::uint16_t k = 0; k < glyph.StrokeCount(); ++k) {
                QVERIFY(!page.NextButton()->isEnabled());
                // A wrong stroke first (the next stroke of the glyph, or this one backwards).
                auto wrong = StrokeAsMouse(glyph, k, side);
                std::reverse(wrong.begin(), wrong.end());
                DrawInk(page.Input(), wrong);
                QCOMPARE(page.Input()->StrokeCount(), int(k));
                DrawInk(page.Input(), StrokeAsMouse(glyph, k, side));
                QCOMPARE(page.Input()->StrokeCount(), int(k) + 1);
            }
            QVERIFY(!page.NextButton()->isEnabled());
            for (QCheckBox* box : {page.OnReadingBox(), page.KunReadingBox(), page.MeaningBox()})
                Tick(box);
            QVERIFY(page.NextButton()->isEnabled());
            QTest::mouseClick(page.NextButton(), Qt::LeftButton);
        }
        QCOMPARE(events.count(), 1);
        QCOMPARE(events[0][0].toInt(), int(LessonPage::Finished));
        QCOMPARE(page.DoneCodes(), codes);
    }

private:
    /// Clicks the box's indicator, as a learner ticks it.
    static void Tick(QCheckBox* box)
    {
        QTest::mouseClick(box, Qt::LeftButton, Qt::NoModifier, QPoint(8, box->height() / 2));
    }
    void DrawGlyphStroke(std::uint16_t k)
    {
        DrawInk(m_page->Input(), StrokeAsMouse(*m_page->Glyph(), k, m_page->Input()->ClientRect().width()));
    }
    void DrawGlyph()
    {
        for (std::uint16_t k = 0; k < m_page->Glyph()->StrokeCount(); ++k) {
            DrawGlyphStroke(k);
            QCOMPARE(m_page->Input()->StrokeCount(), k + 1);
        }
    }
    void TickAll()
    {
        for (QCheckBox* box : {m_page->OnReadingBox(), m_page->KunReadingBox(), m_page->MeaningBox()})
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
