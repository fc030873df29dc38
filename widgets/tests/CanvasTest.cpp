#include "DisplayCanvas.h"
#include "Contrast.h"
#include "GlyphRendering.h"
#include "InputCanvas.h"
#include "TestSupport.h"

#include <QApplication>
#include <QMouseEvent>
#include <QSignalSpy>
#include <QTest>

#include <algorithm>
#include <cmath>

using namespace testsupport;

namespace {
const QRgb White = qRgb(255, 255, 255);
}

class CanvasTest : public QObject {
    Q_OBJECT

private slots:
    void inADarkPaletteThePaperIsDarkAndTheInkLight()
    {
        const Form glyph = SmallDatabase::Lines({{10, 30, 99, 30}, {54, 10, 54, 99}});
        InputCanvas input;
        input.resize(200, 200);
        input.setPalette(DarkPalette());
        input.show();
        QVERIFY(QTest::qWaitForWindowExposed(&input));
        DrawInk(&input, StrokeAsMouse(glyph, 0, input.ClientRect().width()));
        DisplayCanvas display;
        display.resize(160, 160);
        display.setPalette(DarkPalette());
        display.show();
        QVERIFY(QTest::qWaitForWindowExposed(&display));
        display.ShowGlyph(glyph);
        for (const QImage& buffer : {input.BackBuffer(), display.BackBuffer()}) {
            const QColor paper = buffer.pixelColor(1, 1);
            QVERIFY(paper.lightness() < 80);
            const QColor ink = FarthestFrom(buffer, paper);
            QVERIFY2(Contrast(paper, ink) >= 7.0, qPrintable(QString::number(Contrast(paper, ink))));
        }
    }

    void aPaletteChangeRedrawsWhatIsShown()
    {
        const Form glyph = SmallDatabase::Lines({{10, 30, 99, 30}});
        InputCanvas input;
        input.resize(200, 200);
        input.show();
        QVERIFY(QTest::qWaitForWindowExposed(&input));
        DrawInk(&input, StrokeAsMouse(glyph, 0, input.ClientRect().width()));
        QCOMPARE(input.BackBuffer().pixelColor(1, 1), QColor(Qt::white)); // the light look as ever
        const int inked = CountNot(input.BackBuffer(), qRgb(255, 255, 255));
        input.setPalette(DarkPalette());
        const QColor paper = input.BackBuffer().pixelColor(1, 1);
        QCOMPARE(paper, QColor(30, 30, 30));
        QCOMPARE(CountNot(input.BackBuffer(), paper.rgb()), inked); // the stroke, drawn again
        QCOMPARE(input.StrokeCount(), 1);
        DisplayCanvas display;
        display.resize(160, 160);
        display.show();
        QVERIFY(QTest::qWaitForWindowExposed(&display));
        display.ShowGlyph(glyph);
        display.setPalette(DarkPalette());
        QVERIFY(CountNot(display.BackBuffer(), QColor(30, 30, 30).rgb()) > 0);
        // A wiped canvas stays empty: the glyph it showed is not brought back.
        display.Wipe();
        display.setPalette(QPalette());
        QCOMPARE(CountNot(display.BackBuffer(), qRgb(255, 255, 255)), 0);
    }
    void init()
    {
        m_input = std::make_unique<InputCanvas>();
        m_input->setFixedSize(220, 220);
        m_input->show();
        QVERIFY(QTest::qWaitForWindowExposed(m_input.get()));
        m_input->Wipe();
    }
    void cleanup() { m_input.reset(); }

    void hasAccessibleNameAndFrame()
    {
        QVERIFY(!m_input->accessibleName().isEmpty());
        QVERIFY(!DisplayCanvas().accessibleName().isEmpty());
        QVERIFY(m_input->contentsRect().topLeft() != QPoint(0, 0)); // an edit-box frame around it
    }

    void inkIsBlackSixPixelsWideWithRoundEnds()
    {
        // A horizontal stroke at y = 100 from x = 40 to 140, in the back buffer (ratio 1 here).
        DrawInk(m_input.get(), {{40, 100}, {90, 100}, {140, 100}});
        const QImage ink = m_input->BackBuffer();
        QCOMPARE(ink.pixel(90, 100), qRgb(0, 0, 0));
        int thickness = 0;
        for (int y = 90; y <= 110; ++y)
            thickness += qGray(ink.pixel(90, y)) < 128 ? 1 : 0;
        QCOMPARE(thickness, 6);
        // Round ends: the ink goes on past the last point by half its width, on the centre line
        // only, not at the corners a square end would fill.
        QVERIFY(qGray(ink.pixel(142, 100)) < 128);
        QVERIFY(qGray(ink.pixel(142, 97)) > 128);
        QVERIFY(qGray(ink.pixel(38, 100)) < 128);
    }

    void clickWithoutMovementIsAOnePointStroke()
    {
        QSignalSpy ended(m_input.get(), &InputCanvas::strokeEnded);
        QSignalSpy kept(m_input.get(), &InputCanvas::strokeKept);
        const QPoint at = QPoint(50, 60) + m_input->contentsRect().topLeft();
        QTest::mousePress(m_input.get(), Qt::LeftButton, Qt::NoModifier, at);
        QTest::mouseRelease(m_input.get(), Qt::LeftButton, Qt::NoModifier, at);
        QCOMPARE(ended.count(), 1);
        QCOMPARE(kept.count(), 1);
        QCOMPARE(m_input->StrokeCount(), 1);
        QCOMPARE(m_input->CurrentStroke().Count(), 1u);
        QCOMPARE(m_input->CurrentStroke().At(0), (Point{50, 60}));
        // A move at the same place adds a second, identical point.
        QTest::mousePress(m_input.get(), Qt::LeftButton, Qt::NoModifier, at);
        QTest::mouseMove(m_input.get(), at);
        QTest::mouseRelease(m_input.get(), Qt::LeftButton, Qt::NoModifier, at);
        QCOMPARE(m_input->CurrentStroke().Count(), 2u);
        QCOMPARE(m_input->StrokeCount(), 2);
    }

    void everyMoveAddsAPointAndKeptStrokesReachTheBuffer()
    {
        DrawInk(m_input.get(), {{20, 100}, {21, 100}, {60, 100}, {150, 100}});
        QCOMPARE(m_input->CurrentStroke().Count(), 4u);
        QCOMPARE(m_input->BackBuffer().pixel(100, 100), qRgb(0, 0, 0));
        // Moves without a press draw nothing.
        QTest::mouseMove(m_input.get(), QPoint(100, 180));
        QCOMPARE(m_input->CurrentStroke().Count(), 4u);
    }

    void doubleClickStartsANewStroke()
    {
        const QPoint at = QPoint(30, 30) + m_input->contentsRect().topLeft();
        QTest::mousePress(m_input.get(), Qt::LeftButton, Qt::NoModifier, at);
        QTest::mouseRelease(m_input.get(), Qt::LeftButton, Qt::NoModifier, at);
        QSignalSpy ended(m_input.get(), &InputCanvas::strokeEnded);
        // The second press of a double click arrives as a double-click event.
        const QPoint second = at + QPoint(10, 10);
        QMouseEvent doubleClick(QEvent::MouseButtonDblClick, second, m_input->mapToGlobal(second), Qt::LeftButton,
            Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(m_input.get(), &doubleClick);
        const QPoint moved = second + QPoint(5, 0);
        QMouseEvent move(
            QEvent::MouseMove, moved, m_input->mapToGlobal(moved), Qt::NoButton, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(m_input.get(), &move);
        QMouseEvent release(QEvent::MouseButtonRelease, moved, m_input->mapToGlobal(moved), Qt::LeftButton,
            Qt::NoButton, Qt::NoModifier);
        QApplication::sendEvent(m_input.get(), &release);
        QCOMPARE(ended.count(), 1);
        QCOMPARE(m_input->StrokeCount(), 2);
        QCOMPARE(m_input->CurrentStroke().Count(), 2u);
        QCOMPARE(m_input->CurrentStroke().At(0), (Point{40, 40}));
    }

    void rejectedStrokeLeavesNoTrace()
    {
        DrawInk(m_input.get(), {{20, 50}, {150, 50}});
        const QImage before = m_input->BackBuffer();
        QSignalSpy kept(m_input.get(), &InputCanvas::strokeKept);
        // The page rejects the next stroke from inside the notification.
        const auto connection
            = connect(m_input.get(), &InputCanvas::strokeEnded, m_input.get(), [this] { m_input->Undo(); });
        DrawInk(m_input.get(), {{20, 150}, {150, 150}});
        disconnect(connection);
        QCOMPARE(kept.count(), 0);
        QCOMPARE(m_input->StrokeCount(), 1);
        QCOMPARE(m_input->CurrentStroke().Count(), 0u);
        QCOMPARE(m_input->BackBuffer(), before);
        // Nothing of it is painted on screen either.
        const QImage screen = m_input->grab().toImage();
        const QPoint offset = m_input->contentsRect().topLeft();
        QCOMPARE(screen.pixel(QPoint(80, 150) + offset), White);
        QCOMPARE(screen.pixel(QPoint(80, 50) + offset), qRgb(0, 0, 0));
    }

    void undoWithoutStrokesOnlyEmptiesTheCurrentStroke()
    {
        const QPoint at = QPoint(30, 30) + m_input->contentsRect().topLeft();
        QTest::mousePress(m_input.get(), Qt::LeftButton, Qt::NoModifier, at);
        m_input->Undo();
        QCOMPARE(m_input->StrokeCount(), 0);
        QCOMPARE(m_input->CurrentStroke().Count(), 0u);
        QTest::mouseRelease(m_input.get(), Qt::LeftButton, Qt::NoModifier, at);
        m_input->Undo();
        m_input->Undo();
        QCOMPARE(m_input->StrokeCount(), 0);
    }

    void undoAndClearRepaintFromEmpty()
    {
        DrawInk(m_input.get(), {{20, 50}, {150, 50}});
        DrawInk(m_input.get(), {{20, 150}, {150, 150}});
        m_input->Undo();
        QCOMPARE(m_input->StrokeCount(), 1);
        QCOMPARE(m_input->BackBuffer().pixel(80, 150), White);
        QCOMPARE(m_input->BackBuffer().pixel(80, 50), qRgb(0, 0, 0));
        m_input->Clear();
        QCOMPARE(m_input->StrokeCount(), 0);
        QCOMPARE(CountNot(m_input->BackBuffer(), White), 0);
    }

    void hintVanishesWhenTheNextStrokeIsKept()
    {
        DrawInk(m_input.get(), {{20, 30}, {150, 30}});
        const Form glyph = SmallDatabase::Lines({{10, 10, 90, 10}, {50, 60, 50, 100}});
        m_input->ShowHint(glyph, 1);
        const QPoint marker(static_cast<int>(50 * m_input->ClientRect().width() / 109.0f),
            static_cast<int>(60 * m_input->ClientRect().height() / 109.0f));
        QCOMPARE(m_input->BackBuffer().pixel(marker), StrokeMarkerColour().rgb());
        DrawInk(m_input.get(), {{20, 180}, {150, 180}});
        QCOMPARE(m_input->BackBuffer().pixel(marker), White);
        QCOMPARE(m_input->BackBuffer().pixel(80, 30), qRgb(0, 0, 0)); // earlier stroke still there
        QCOMPARE(m_input->BackBuffer().pixel(80, 180), qRgb(0, 0, 0));
    }

    void displayClickOnlyWhenReleasedInside()
    {
        DisplayCanvas display;
        display.setFixedSize(120, 120);
        display.show();
        QSignalSpy clicked(&display, &DisplayCanvas::clicked);
        QTest::mouseClick(&display, Qt::LeftButton, Qt::NoModifier, QPoint(60, 60));
        QCOMPARE(clicked.count(), 1);
        QTest::mousePress(&display, Qt::LeftButton, Qt::NoModifier, QPoint(60, 60));
        QTest::mouseRelease(&display, Qt::LeftButton, Qt::NoModifier, QPoint(300, 60));
        QCOMPARE(clicked.count(), 1);
        QTest::mouseRelease(&display, Qt::LeftButton, Qt::NoModifier, QPoint(60, 60)); // no press before
        QCOMPARE(clicked.count(), 1);
        QCOMPARE(display.cursor().shape(), Qt::PointingHandCursor);
    }

    void animationEndsWithTheWholeGlyphAndRestartsOnDemand()
    {
        DisplayCanvas display;
        display.setFixedSize(120, 120);
        display.show();
        const Form glyph = SmallDatabase::Lines({{10, 20, 99, 20}, {54, 10, 54, 99}});
        display.StartAnimation(glyph, 1);
        QVERIFY(display.IsAnimating());
        QCOMPARE(CountNot(display.BackBuffer(), White), 0);
        QTRY_VERIFY_WITH_TIMEOUT(!display.IsAnimating(), 20000);
        // Both strokes are in the buffer: the horizontal at y = 20 * w / 109, the vertical at x = 54 * w / 109.
        const int w = display.ClientRect().width();
        QVERIFY(qGray(display.BackBuffer().pixel(w / 2 + 20, 20 * w / 109)) < 128);
        QVERIFY(qGray(display.BackBuffer().pixel(54 * w / 109, w / 2 + 20)) < 128);

        // A click is reported to the page; starting again begins from a wiped buffer.
        QSignalSpy clicked(&display, &DisplayCanvas::clicked);
        QTest::mouseClick(&display, Qt::LeftButton, Qt::NoModifier, QPoint(60, 60));
        QCOMPARE(clicked.count(), 1);
        QVERIFY(CountNot(display.BackBuffer(), White) > 0);
        display.StartAnimation(glyph);
        QVERIFY(display.IsAnimating());
        QCOMPARE(CountNot(display.BackBuffer(), White), 0);
        display.StopAnimation();
        QVERIFY(!display.IsAnimating());
    }

    void animationRunsOnItsTimer()
    {
        DisplayCanvas display;
        display.setFixedSize(60, 60);
        display.show();
        const Form glyph = SmallDatabase::Lines({{10, 20, 30, 20}});
        display.StartAnimation(glyph, 10);
        QTRY_VERIFY_WITH_TIMEOUT(!display.IsAnimating(), 5000);
        QVERIFY(CountNot(display.BackBuffer(), White) > 0);
    }

private:
    std::unique_ptr<InputCanvas> m_input;
};

QTEST_MAIN(CanvasTest)
#include "CanvasTest.moc"
