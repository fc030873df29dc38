// Every page at the device pixel ratio this run is started with (QT_SCALE_FACTOR): controls stay
// inside their page and in the same place whatever character is shown, back buffers are drawn
// at the ratio, nothing around the canvases is left unpainted, and the writing is judged in
// logical pixels.

#include "AboutDialog.h"
#include "CategoryPage.h"
#include "CharacterDatabase.h"
#include "CharacterGrid.h"
#include "ConfigStore.h"
#include "Contrast.h"
#include "DisplayCanvas.h"
#include "DrawingTestPage.h"
#include "FeedbackLine.h"
#include "FittedText.h"
#include "HomePage.h"
#include "HyperlinkLabel.h"
#include "InputCanvas.h"
#include "KanjiInfoDialog.h"
#include "LessonPage.h"
#include "MainWindow.h"
#include "Named.h"
#include "PreferencesDialog.h"
#include "ReadingTestPage.h"
#include "RecordingOpener.h"
#include "RecordingPrompt.h"
#include "ShellTestSupport.h"
#include "SplashWindow.h"
#include "TestContainer.h"
#include "TestSupport.h"
#include "UserManagerDialog.h"
#include "WindowFixture.h"
#include "XmlConfigStore.h"

#include <QCheckBox>
#include <QLabel>
#include <QMenuBar>
#include <QPushButton>
#include <QRadioButton>
#include <QStackedWidget>
#include <QTest>
#include <QTreeWidget>

using namespace testsupport;

namespace {

/// The visible children of `page` that reach outside it, described; empty when there are none.
QString ChildrenOutside(QWidget* page)
{
    QStringList outside;
    for (QWidget* child : page->findChildren<QWidget*>()) {
        if (child->isWindow() || !child->isVisibleTo(page))
            continue;
        const QRect r(child->mapTo(page, QPoint(0, 0)), child->size());
        if (!page->rect().contains(r))
            outside << QStringLiteral("%1 '%2' at %3,%4 %5x%6 in %7x%8")
                           .arg(QString::fromLatin1(child->metaObject()->className()), child->objectName())
                           .arg(r.x())
                           .arg(r.y())
                           .arg(r.width())
                           .arg(r.height())
                           .arg(page->width())
                           .arg(page->height());
    }
    return outside.join(QStringLiteral("; "));
}

/// The visible labels of `page` whose text does not fit them, described; empty when there are
/// none (a label that wraps needs its height for its width, one that does not needs each line).
QString ClippedLabels(QWidget* page)
{
    QStringList clipped;
    for (QLabel* label : page->findChildren<QLabel*>()) {
        if (!label->isVisibleTo(page) || label->text().isEmpty() || !label->pixmap().isNull())
            continue;
        bool fits = true;
        if (label->wordWrap()) {
            fits = label->heightForWidth(label->width()) <= label->height();
        } else {
            const QStringList lines = QString(label->text()).remove(QLatin1Char('&')).split(QLatin1Char('\n'));
            fits = static_cast<int>(lines.size()) * label->fontMetrics().lineSpacing()
                <= label->contentsRect().height() + 2;
            for (const QString& line : lines)
                fits = fits && label->fontMetrics().horizontalAdvance(line) <= label->contentsRect().width();
        }
        if (!fits)
            clipped << QStringLiteral("'%1' in %2x%3").arg(label->text()).arg(label->width()).arg(label->height());
    }
    return clipped.join(QStringLiteral("; "));
}

/// Where a widget is within the top-level window, and how big.
QRect PlaceInWindow(const QWidget* widget)
{
    return QRect(widget->mapTo(widget->window(), QPoint(0, 0)), widget->size());
}

/// The characters whose texts test a page's room: the longest meaning, ON and KUN readings of
/// the standard database, a character without a KUN reading, and the shortest meaning.
std::vector<std::uint16_t> TellingCharacters(CharacterDatabase& db)
{
    auto length = [](const char* text) { return text ? QString::fromUtf8(text).size() : 0; };
    std::uint16_t longestMeaning = 0, longestOn = 0, longestKun = 0, noKun = 0, shortestMeaning = 0;
    qsizetype meaning = -1, on = -1, kun = -1, shortest = 1000;
    for (std::uint16_t id = 0; id < db.CharacterCount(); ++id) {
        const auto c = db.LoadCharacter(id);
        if (length(c->Meaning()) > meaning)
            meaning = length(c->Meaning()), longestMeaning = id;
        if (length(c->OnReading()) > on)
            on = length(c->OnReading()), longestOn = id;
        if (length(c->KunReading()) > kun)
            kun = length(c->KunReading()), longestKun = id;
        if (length(c->KunReading()) == 0)
            noKun = id;
        if (length(c->Meaning()) > 0 && length(c->Meaning()) < shortest)
            shortest = length(c->Meaning()), shortestMeaning = id;
    }
    return {shortestMeaning, longestMeaning, longestOn, longestKun, noKun};
}

/// Counts the pixels of a band `width` device pixels wide just inside `area`'s edges that are
/// not `colour`.
int StrayPixelsInBand(const QImage& image, const QRect& area, int width, const QColor& colour)
{
    int stray = 0;
    for (int y = area.top(); y <= area.bottom(); ++y)
        for (int x = area.left(); x <= area.right(); ++x) {
            const bool inBand = x < area.left() + width || x > area.right() - width || y < area.top() + width
                || y > area.bottom() - width;
            if (inBand && image.pixelColor(x, y) != colour)
                ++stray;
        }
    return stray;
}

} // namespace

class PageLayoutTest : public QObject {
    Q_OBJECT

private slots:
    void init()
    {
        m_fixture = std::make_unique<WindowFixture>(LearnerWithFiveToTest("A"));
        QVERIFY(m_fixture->Start());
        m_window = &m_fixture->Window();
        QVERIFY(QTest::qWaitForWindowExposed(m_window));
        m_ratio = m_window->devicePixelRatioF();
    }

    void cleanup()
    {
        m_window = nullptr;
        m_fixture.reset();
    }

    void everyPageFitsItsWindowWithTheMenuBar()
    {
        for (Page* page :
            {static_cast<Page*>(ChildOf<HomePage>(*m_window)), static_cast<Page*>(ChildOf<LessonPage>(*m_window)),
                static_cast<Page*>(ChildOf<TestContainer>(*m_window)),
                static_cast<Page*>(ChildOf<CategoryPage>(*m_window))}) {
            Show(page);
            QApplication::processEvents();
            const QString outside = ChildrenOutside(page) + ClippedLabels(page);
            QVERIFY2(outside.isEmpty(), qPrintable(outside));
            const QRect inWindow = PlaceInWindow(page);
            QVERIFY(m_window->rect().contains(inWindow));
            QCOMPARE(inWindow.top(), m_window->menuBar()->height());
            QCOMPARE(m_window->size(), QSize(page->width(), page->height() + m_window->menuBar()->height()));
        }
    }

    void theLessonKeepsItsPlacesWhateverTheCharacter()
    {
        LessonPage* lesson = ChildOf<LessonPage>(*m_window);
        Show(lesson);
        const QSize windowSize = m_window->size();
        std::optional<QRect> input, display, next;
        for (std::uint16_t code : TellingCharacters(StandardDatabase())) {
            lesson->StartLesson({code});
            QApplication::processEvents();
            const QString outside = ChildrenOutside(lesson) + ClippedLabels(lesson);
            QVERIFY2(outside.isEmpty(), qPrintable(QStringLiteral("character %1: ").arg(code) + outside));
            if (!input) {
                input = PlaceInWindow(Named<InputCanvas>(lesson, "inputCanvas"));
                display = PlaceInWindow(Named<DisplayCanvas>(lesson, "displayCanvas"));
                next = PlaceInWindow(Named<QPushButton>(lesson, "nextButton"));
            }
            QCOMPARE(PlaceInWindow(Named<InputCanvas>(lesson, "inputCanvas")), *input);
            QCOMPARE(PlaceInWindow(Named<DisplayCanvas>(lesson, "displayCanvas")), *display);
            QCOMPARE(PlaceInWindow(Named<QPushButton>(lesson, "nextButton")), *next);
            QCOMPARE(m_window->size(), windowSize);
            // The longest explanation of a refused stroke moves nothing either (it wraps).
            Named<FeedbackLine>(lesson, "strokeFeedback")
                ->Say(QStringLiteral(
                    "Falsche Stelle: dieser Strich gehört weiter nach unten rechts, weiter als man denkt."));
            QApplication::processEvents();
            QCOMPARE(PlaceInWindow(Named<InputCanvas>(lesson, "inputCanvas")), *input);
            QCOMPARE(PlaceInWindow(Named<QPushButton>(lesson, "nextButton")), *next);
            QCOMPARE(m_window->size(), windowSize);
            const QString inside = ChildrenOutside(lesson) + ClippedLabels(lesson);
            QVERIFY2(inside.isEmpty(), qPrintable(inside));
            Named<FeedbackLine>(lesson, "strokeFeedback")->Clear();
            // The caption shows the meaning in full, or as much as fits with the rest in its tooltip.
            const auto character = StandardDatabase().LoadCharacter(code);
            QCOMPARE(FullText(Named<QCheckBox>(lesson, "meaning")), QString::fromUtf8(character->Meaning()));
            QCOMPARE(Named<QCheckBox>(lesson, "meaning")->toolTip(), QString::fromUtf8(character->Meaning()));
            QCOMPARE(Named<QCheckBox>(lesson, "meaning")->accessibleName(), QString::fromUtf8(character->Meaning()));
        }
    }

    void theTestPagesKeepTheirPlacesWhateverTheCharacter()
    {
        TestContainer* test = ChildOf<TestContainer>(*m_window);
        Show(test);
        auto* stack = test->findChild<QStackedWidget*>();
        QVERIFY(stack);
        const QSize windowSize = m_window->size();
        std::optional<QRect> readingDisplay, kunGroup, drawingInput, drawingDisplay, next;
        for (std::uint16_t code : TellingCharacters(StandardDatabase())) {
            const auto character = StandardDatabase().LoadCharacter(code);
            ReadingTestPage* reading = test->ReadingPage();
            reading->SetCharacter(character.get());
            stack->setCurrentWidget(reading);
            QApplication::processEvents();
            QString outside = ChildrenOutside(test) + ClippedLabels(test);
            QVERIFY2(outside.isEmpty(), qPrintable(QStringLiteral("reading %1: ").arg(code) + outside));
            if (!readingDisplay) {
                readingDisplay = PlaceInWindow(Named<DisplayCanvas>(reading, "displayCanvas"));
                kunGroup = PlaceInWindow(reading->KunButton(4)->parentWidget());
                next = PlaceInWindow(Named<QPushButton>(test, "nextButton"));
            }
            QCOMPARE(PlaceInWindow(Named<DisplayCanvas>(reading, "displayCanvas")), *readingDisplay);
            QCOMPARE(PlaceInWindow(reading->KunButton(4)->parentWidget()), *kunGroup);
            QCOMPARE(PlaceInWindow(Named<QPushButton>(test, "nextButton")), *next);

            DrawingTestPage* drawing = test->DrawingPage();
            drawing->SetCharacter(character.get());
            stack->setCurrentWidget(drawing);
            QApplication::processEvents();
            outside = ChildrenOutside(test) + ClippedLabels(test);
            QVERIFY2(outside.isEmpty(), qPrintable(QStringLiteral("drawing %1: ").arg(code) + outside));
            if (!drawingInput) {
                drawingInput = PlaceInWindow(Named<InputCanvas>(drawing, "inputCanvas"));
                drawingDisplay = PlaceInWindow(Named<DisplayCanvas>(drawing, "displayCanvas"));
            }
            QCOMPARE(PlaceInWindow(Named<InputCanvas>(drawing, "inputCanvas")), *drawingInput);
            QCOMPARE(PlaceInWindow(Named<DisplayCanvas>(drawing, "displayCanvas")), *drawingDisplay);
            QCOMPARE(PlaceInWindow(Named<QPushButton>(test, "nextButton")), *next);
            QCOMPARE(m_window->size(), windowSize);
        }
    }

    void aLongReadingChoiceTakesTwoLinesBeforeItIsShortened()
    {
        TestContainer* test = ChildOf<TestContainer>(*m_window);
        Show(test);
        ReadingTestPage* reading = test->ReadingPage();
        test->findChild<QStackedWidget*>()->setCurrentWidget(reading);
        int wrapped = 0, shortened = 0;
        // The right answer is always among the choices: characters with long KUN readings.
        for (std::uint16_t code = 0; code < StandardDatabase().CharacterCount() && (wrapped == 0 || shortened == 0);
             ++code) {
            const auto character = StandardDatabase().LoadCharacter(code);
            const QString kun = QString::fromUtf8(character->KunReading() ? character->KunReading() : "");
            if (kun.size() < 16)
                continue;
            reading->SetCharacter(character.get());
            QApplication::processEvents();
            for (int i = 0; i < 5; ++i) {
                QRadioButton* button = reading->KunButton(i);
                if (FullText(button) != kun)
                    continue;
                const QStringList lines = button->text().split(QLatin1Char('\n'));
                QVERIFY(lines.size() <= 2);
                QCOMPARE(button->toolTip(), kun);
                QCOMPARE(button->accessibleName(), kun);
                QVERIFY(button->height() >= 2 * button->fontMetrics().lineSpacing());
                for (const QString& line : lines)
                    QVERIFY(button->fontMetrics().horizontalAdvance(line) <= button->width());
                if (lines.join(QString()) == kun) {
                    wrapped += lines.size() == 2 ? 1 : 0; // the whole reading, on two lines
                } else {
                    QCOMPARE(lines.size(), 2); // shortened only when two lines are not enough
                    QVERIFY(lines[1].endsWith(QChar(0x2026)));
                    QVERIFY(kun.startsWith(lines[0] + lines[1].chopped(1)));
                    ++shortened;
                }
            }
        }
        QVERIFY(wrapped > 0);
        QVERIFY(shortened > 0);
    }

    void theCategoryPageKeepsItsPlacesInEveryCategory()
    {
        CategoryPage* category = ChildOf<CategoryPage>(*m_window);
        Show(category);
        std::optional<QRect> grid, strip;
        for (std::uint16_t id = 0; id < StandardDatabase().CategoryCount(); ++id) {
            QVERIFY(category->SetCategory(id, std::nullopt));
            QApplication::processEvents();
            const QString outside = ChildrenOutside(category) + ClippedLabels(category);
            QVERIFY2(outside.isEmpty(), qPrintable(outside));
            if (!grid) {
                grid = PlaceInWindow(Named<CharacterGrid>(category, "characterGrid"));
                strip = PlaceInWindow(Named<CharacterGrid>(category, "untestedStrip"));
            }
            QCOMPARE(PlaceInWindow(Named<CharacterGrid>(category, "characterGrid")), *grid);
            QCOMPARE(PlaceInWindow(Named<CharacterGrid>(category, "untestedStrip")), *strip);
        }
    }

    void theDialogsKeepTheirControlsInside()
    {
        KanjiInfoDialog info(StandardDatabase(), m_fixture->Prompt());
        std::optional<QSize> size;
        std::optional<QRect> display;
        for (std::uint16_t code : TellingCharacters(StandardDatabase())) {
            info.SetCode(code);
            info.show();
            QVERIFY(QTest::qWaitForWindowExposed(&info));
            const QString outside = ChildrenOutside(&info) + ClippedLabels(&info);
            QVERIFY2(outside.isEmpty(), qPrintable(outside));
            if (!size) {
                size = info.size();
                display = PlaceInWindow(Named<DisplayCanvas>(&info, "displayCanvas"));
            }
            QCOMPARE(info.size(), *size);
            QCOMPARE(PlaceInWindow(Named<DisplayCanvas>(&info, "displayCanvas")), *display);
        }
        UserManagerDialog manager(m_fixture->Store(), m_fixture->Prompt());
        manager.show();
        QVERIFY(QTest::qWaitForWindowExposed(&manager));
        QVERIFY2(
            (ChildrenOutside(&manager) + ClippedLabels(&manager)).isEmpty(), qPrintable(ChildrenOutside(&manager)));
        AboutDialog about(m_urls.Opener());
        about.show();
        QVERIFY(QTest::qWaitForWindowExposed(&about));
        QVERIFY2(ClippedLabels(&about).isEmpty(), qPrintable(ClippedLabels(&about)));
        QVERIFY2(ChildrenOutside(&about).isEmpty(), qPrintable(ChildrenOutside(&about)));
    }

    void thePreferencesFitASmallScreenAtRatioTwo()
    {
        // 1280 x 800 at ratio 2 is 640 x 400 logical pixels; a panel and the title bar take some
        // 60 of the height.
        PreferencesDialog preferences(CoachingPreferences{});
        preferences.show();
        QVERIFY(QTest::qWaitForWindowExposed(&preferences));
        QVERIFY2(preferences.height() <= 340, qPrintable(QString::number(preferences.height())));
        QVERIFY2(preferences.width() <= 640, qPrintable(QString::number(preferences.width())));
        QVERIFY2((ChildrenOutside(&preferences) + ClippedLabels(&preferences)).isEmpty(),
            qPrintable(ChildrenOutside(&preferences) + ClippedLabels(&preferences)));
    }

    void backBuffersAreDrawnAtTheRatio()
    {
        LessonPage* lesson = ChildOf<LessonPage>(*m_window);
        Show(lesson);
        lesson->StartLesson({StandardDatabase().LoadCategory(0)->Characters()[0]});
        QApplication::processEvents();
        for (CanvasBase* canvas : {static_cast<CanvasBase*>(Named<InputCanvas>(lesson, "inputCanvas")),
                 static_cast<CanvasBase*>(Named<DisplayCanvas>(lesson, "displayCanvas"))}) {
            QCOMPARE(canvas->BackBuffer().devicePixelRatio(), m_ratio);
            QCOMPARE(canvas->BackBuffer().size(), (QSizeF(canvas->ClientRect().size()) * m_ratio).toSize());
        }
        SplashWindow splash;
        QVERIFY(splash.HasPicture());
        QCOMPARE(splash.Picture().devicePixelRatio(), m_ratio > 1.0 ? 2.0 : 1.0);
        QCOMPARE(splash.size(), QSize(360, 250)); // the same logical size on every screen
    }

    void aOneLogicalPixelLineIsRatioDevicePixelsWide()
    {
        if (m_ratio != 2.0)
            QSKIP("device pixels are counted at ratio 2");
        LessonPage* lesson = ChildOf<LessonPage>(*m_window);
        Show(lesson);
        lesson->StartLesson({StandardDatabase().LoadCategory(0)->Characters()[0]});
        InputCanvas* input = Named<InputCanvas>(lesson, "inputCanvas");
        QVERIFY(input->GuideLines());
        const QImage grabbed = input->grab().toImage();
        QCOMPARE(grabbed.devicePixelRatio(), 2.0);
        // A row through the upper half, where the dashed vertical guide line may be on or off:
        // look along the rows for one that crosses a dash, and count its device pixels.
        const QColor paper = input->Background();
        const QRect client = input->contentsRect();
        int widest = 0;
        for (int y = 2 * client.top() + 4; y < 2 * (client.top() + client.height() / 2) - 4; ++y) {
            int run = 0;
            for (int x = 2 * client.left(); x < 2 * client.right(); ++x)
                if (grabbed.pixelColor(x, y) != paper)
                    ++run;
            widest = std::max(widest, run);
        }
        // The guide line is one logical pixel: two device pixels, sharp (no blurred third).
        QCOMPARE(widest, 2);
    }

    void noStrayPixelsAroundTheCanvases()
    {
        LessonPage* lesson = ChildOf<LessonPage>(*m_window);
        Show(lesson);
        const auto grade1 = StandardDatabase().LoadCategory(0)->Characters();
        lesson->StartLesson({grade1[0]});
        Named<InputCanvas>(lesson, "inputCanvas")->SetGuideLines(false);
        QApplication::processEvents();
        const QImage page = lesson->grab().toImage();
        const QColor window = lesson->palette().color(QPalette::Window);
        for (CanvasBase* canvas : {static_cast<CanvasBase*>(Named<InputCanvas>(lesson, "inputCanvas")),
                 static_cast<CanvasBase*>(Named<DisplayCanvas>(lesson, "displayCanvas"))}) {
            const QRect client(canvas->mapTo(lesson, canvas->contentsRect().topLeft()), canvas->contentsRect().size());
            const QRect device(
                (QPointF(client.topLeft()) * m_ratio).toPoint(), (QSizeF(client.size()) * m_ratio).toSize());
            // The client area's edges: paper all round (no stale pixels of a scaled-up buffer).
            QCOMPARE(StrayPixelsInBand(page, device.adjusted(1, 1, -1, -1), 3, canvas->Background()), 0);
            // Just outside the frame: the page's own background.
            const QRect frame(canvas->mapTo(lesson, QPoint(0, 0)), canvas->size());
            const QRect around((QPointF(frame.topLeft() - QPoint(2, 2)) * m_ratio).toPoint(),
                (QSizeF(frame.size() + QSize(4, 4)) * m_ratio).toSize());
            QCOMPARE(StrayPixelsInBand(page, around.adjusted(0, 0, -1, -1), static_cast<int>(m_ratio), window), 0);
        }
    }

    void theSameInkIsJudgedAlikeAtEveryRatio()
    {
        LessonPage* lesson = ChildOf<LessonPage>(*m_window);
        Show(lesson);
        const std::uint16_t code = StandardDatabase().LoadCategory(0)->Characters()[0]; // 日
        lesson->StartLesson({code});
        QApplication::processEvents();
        InputCanvas* input = Named<InputCanvas>(lesson, "inputCanvas");
        const int side = input->ClientRect().width();
        const Form& glyph = *lesson->Glyph();
        // The first stroke, drawn where it belongs, in logical pixels: kept, and recorded as drawn.
        const std::vector<Point> first = StrokeAsMouse(glyph, 0, side);
        DrawInk(input, first);
        QCOMPARE(input->StrokeCount(), 1);
        const StrokePath kept = input->CurrentStroke();
        QCOMPARE(kept.Points().size(), first.size());
        QCOMPARE(kept.Points().front().x, static_cast<float>(static_cast<int>(first.front().x)));
        QCOMPARE(kept.Points().front().y, static_cast<float>(static_cast<int>(first.front().y)));
        // The second, drawn 30 logical pixels low: refused at every ratio.
        std::vector<Point> low = StrokeAsMouse(glyph, 1, side);
        for (Point& p : low)
            p.y += 30;
        DrawInk(input, low);
        QCOMPARE(input->StrokeCount(), 1);
        // Then the rest where they belong: all kept.
        for (std::uint16_t k = 1; k < glyph.StrokeCount(); ++k)
            DrawInk(input, StrokeAsMouse(glyph, k, side));
        QCOMPARE(input->StrokeCount(), static_cast<int>(glyph.StrokeCount()));
    }

    void theGridIsReadableInADarkPalette()
    {
        m_window->setPalette(DarkPalette());
        CategoryPage* category = ChildOf<CategoryPage>(*m_window);
        Show(category);
        QApplication::processEvents();
        CharacterGrid* grid = Named<CharacterGrid>(category, "characterGrid");
        const QImage shot = grid->viewport()->grab().toImage();
        const QColor paper = DarkPalette().color(QPalette::Base);
        // The first cell of the grid, inside its border: paper and ink of the palette.
        const QColor ink = FarthestFrom(shot, paper);
        QVERIFY2(Contrast(paper, ink) >= 7.0, qPrintable(QString::number(Contrast(paper, ink))));
        QVERIFY(shot.pixelColor(shot.width() - 3, shot.height() - 3).lightness() < 80); // dark paper
    }

    void linksAreBlueOnLightAndReadableOnDark()
    {
        AboutDialog about(m_urls.Opener());
        const auto links = about.findChildren<HyperlinkLabel*>();
        QCOMPARE(links.size(), 2);
        for (HyperlinkLabel* link : links)
            QCOMPARE(link->CurrentColour(), QColor(0, 0, 255)); // the light look as ever
        about.setPalette(DarkPalette());
        const QColor window = DarkPalette().color(QPalette::Window);
        for (HyperlinkLabel* link : links) {
            QVERIFY2(Contrast(link->CurrentColour(), window) >= 4.5,
                qPrintable(QString::number(Contrast(link->CurrentColour(), window))));
            QCOMPARE(link->palette().color(QPalette::WindowText), link->CurrentColour()); // painted so
        }
    }

private:
    /// Shows `page` the way a learner reaches it: back to the home page, then Grade 1, then
    /// Lesson or Test.
    void Show(Page* page)
    {
        MainWindow& w = *m_window;
        if (ShownPage(w) == page)
            return;
        auto* category = ChildOf<CategoryPage>(w);
        if (ShownPage(w) == ChildOf<LessonPage>(w))
            QTest::mouseClick(Named<QPushButton>(ChildOf<LessonPage>(w), "abortButton"), Qt::LeftButton);
        if (ShownPage(w) == ChildOf<TestContainer>(w))
            QTest::mouseClick(Named<QPushButton>(ChildOf<TestContainer>(w), "abortButton"), Qt::LeftButton);
        if (ShownPage(w) == page)
            return;
        if (ShownPage(w) == category)
            QTest::mouseClick(Named<QPushButton>(category, "backButton"), Qt::LeftButton);
        if (page == ChildOf<HomePage>(w))
            return;
        HomePage* home = ChildOf<HomePage>(w);
        QTreeWidget* list = Named<QTreeWidget>(home, "categoryList");
        QTest::mouseClick(
            list->viewport(), Qt::LeftButton, Qt::NoModifier, list->visualItemRect(list->topLevelItem(0)).center());
        QTest::mouseClick(Named<QPushButton>(home, "openButton"), Qt::LeftButton);
        if (page == ChildOf<LessonPage>(w))
            QTest::mouseClick(Named<QPushButton>(category, "lessonButton"), Qt::LeftButton);
        if (page == ChildOf<TestContainer>(w))
            QTest::mouseClick(Named<QPushButton>(category, "testButton"), Qt::LeftButton);
        QCOMPARE(ShownPage(w), page);
    }

    std::unique_ptr<WindowFixture> m_fixture;
    MainWindow* m_window = nullptr;
    RecordingOpener m_urls;
    qreal m_ratio = 1.0;
};

QTEST_MAIN(PageLayoutTest)
#include "PageLayoutTest.moc"

#include <algorithm>
