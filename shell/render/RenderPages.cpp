// Renders the program's pages offscreen into PNG files, so that a change to a page can be looked
// at: home, category (with learned and untested characters), lesson (mid-character, after a
// refused stroke), reading test, drawing test, Kanji Info (also with its next review), User
// Manager, About, Preferences, the home page with reviews, the five
// parts of the progress window, and the start-up window as it shows and half-way through loading.
//   render_pages DATABASE OUTPUT_FOLDER [--dark] [--screen]
// Run with QT_QPA_PLATFORM=offscreen, and QT_SCALE_FACTOR=2 for a device pixel ratio of 2;
// render_all.sh beside this file renders every page at ratios 1 and 2, light and dark; with
// LANGUAGE=fr (or another language) set, in that language. With --screen each picture is read
// back from the display (what a real X server shows, not the page painted again);
// render_x11.sh takes them from Xvfb at ratios 1.5 and 2.

#include "AboutDialog.h"
#include "CategoryPage.h"
#include "DrawingTestPage.h"
#include "FileCharacterDatabase.h"
#include "FindCharacterWindow.h"
#include "Flattening.h"
#include "HistoryDatabase.h"
#include "HomePage.h"
#include "InputCanvas.h"
#include "KanjiInfoDialog.h"
#include "LearnerSession.h"
#include "LessonPage.h"
#include "LexiconAccess.h"
#include "MessageBoxPrompt.h"
#include "Named.h"
#include "PracticeSheetDialog.h"
#include "PreferencesDialog.h"
#include "ProgressWindow.h"
#include "ReadingTestPage.h"
#include "ReviewPage.h"
#include "SplashWindow.h"
#include "TestContainer.h"
#include "TestSchedule.h"
#include "Translations.h"
#include "User.h"
#include "UserManagerDialog.h"
#include "WordsTestPage.h"
#include "XmlConfigStore.h"

#include <QApplication>
#include <QDir>
#include <QLineEdit>
#include <QMouseEvent>
#include <QPalette>
#include <QPushButton>
#include <QRadioButton>
#include <QScreen>
#include <QStyleFactory>
#include <QTabWidget>
#include <QTemporaryDir>
#include <QTest>

#include <cmath>
#include <cstdio>
#include <cstring>
#include <filesystem>
#include <fstream>

namespace {

QPalette DarkPalette()
{
    QPalette p;
    const QColor window(45, 45, 48), base(30, 30, 30), text(230, 230, 230);
    p.setColor(QPalette::Window, window);
    p.setColor(QPalette::WindowText, text);
    p.setColor(QPalette::Base, base);
    p.setColor(QPalette::AlternateBase, window);
    p.setColor(QPalette::Text, text);
    p.setColor(QPalette::Button, window);
    p.setColor(QPalette::ButtonText, text);
    p.setColor(QPalette::Highlight, QColor(42, 130, 218));
    p.setColor(QPalette::HighlightedText, Qt::white);
    p.setColor(QPalette::Mid, QColor(110, 110, 110));
    p.setColor(QPalette::PlaceholderText, QColor(150, 150, 150));
    for (QPalette::ColorRole role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        p.setColor(QPalette::Disabled, role, QColor(120, 120, 120));
    return p;
}

/// Whether pictures are read back from the display rather than painted again.
bool g_fromScreen = false;

bool Save(QWidget& widget, const QString& folder, const QString& name)
{
    widget.show();
    if (!QTest::qWaitForWindowExposed(&widget))
        return false;
    QApplication::processEvents();
    const QString path = QDir(folder).filePath(name + QStringLiteral(".png"));
    bool saved = false;
    if (g_fromScreen) {
        QTest::qWait(100); // the server has drawn what it was sent
        saved = widget.screen()->grabWindow(widget.winId()).save(path);
    } else {
        saved = widget.grab().save(path);
    }
    std::printf("%s %s (%dx%d logical, ratio %.2f)\n", saved ? "wrote" : "FAILED", qPrintable(path), widget.width(),
        widget.height(), widget.devicePixelRatioF());
    return saved;
}

/// Presses, moves and releases the mouse along a glyph's stroke, shifted, as a learner would.
void Write(InputCanvas* canvas, const Form& glyph, std::uint16_t stroke, float shiftY)
{
    const float side = static_cast<float>(canvas->ClientRect().width());
    std::vector<Point> points = FlattenStroke(glyph.GetStroke(stroke));
    const QPoint offset = canvas->contentsRect().topLeft();
    auto at = [&](Point p) {
        return QPoint(
                   static_cast<int>(p.x * side / glyph.Width()), static_cast<int>(p.y * side / glyph.Height() + shiftY))
            + offset;
    };
    QTest::mousePress(canvas, Qt::LeftButton, Qt::NoModifier, at(points.front()));
    for (std::size_t i = 1; i < points.size(); ++i)
        QTest::mouseMove(canvas, at(points[i]));
    QTest::mouseRelease(canvas, Qt::LeftButton, Qt::NoModifier, at(points.back()));
}

/// Answers the question `test` asks, and clicks Next: the readings chosen right (with `miss`,
/// a wrong ON reading first), or the character written stroke by stroke.
void Answer(CharacterDatabase& db, TestContainer& test, bool miss)
{
    const auto character = db.LoadCharacter(*test.Schedule().CurrentCode());
    if (test.ShownPage() == test.ReadingPage()) {
        ReadingTestPage* page = test.ReadingPage();
        const std::string on = character->OnReading() ? character->OnReading() : "";
        const std::string kun = character->KunReading() ? character->KunReading() : "";
        auto click = [](QRadioButton* b) { QTest::mouseClick(b, Qt::LeftButton, Qt::NoModifier, QPoint(8, 8)); };
        for (int i = 0; miss && i < 5; ++i)
            if (page->Choices().on[static_cast<std::size_t>(i)] != on) {
                click(page->OnButton(i));
                break;
            }
        for (int i = 0; i < 5; ++i) {
            if (page->Choices().on[static_cast<std::size_t>(i)] == on)
                click(page->OnButton(i));
            if (page->Choices().kun[static_cast<std::size_t>(i)] == kun)
                click(page->KunButton(i));
        }
    } else {
        const Form& glyph = *test.DrawingPage()->Glyph();
        for (std::uint16_t k = 0; k < glyph.StrokeCount(); ++k)
            Write(Named<InputCanvas>(test.DrawingPage(), "inputCanvas"), glyph, k, 0);
    }
    QTest::mouseClick(Named<QPushButton>(&test, "nextButton"), Qt::LeftButton);
}

/// The first character of the database whose meaning begins with `meaning`.
std::uint16_t FindByMeaning(CharacterDatabase& db, const char* meaning)
{
    for (std::uint16_t id = 0; id < db.CharacterCount(); ++id) {
        if (!db.CharacterExists(id))
            continue;
        const auto character = db.LoadCharacter(id);
        if (character->Meaning() && std::string(character->Meaning()).rfind(meaning, 0) == 0)
            return id;
    }
    return 0;
}

} // namespace

int main(int argc, char** argv)
{
    QApplication app(argc, argv);
    // In the language of the environment, as the program starts: LANGUAGE=fr renders in French.
    InstallTranslations(app, QLocale::system());
    if (argc < 3) {
        std::fprintf(stderr, "usage: render_pages DATABASE OUTPUT_FOLDER [--dark] [--screen]\n");
        return 2;
    }
    for (int i = 3; i < argc; ++i) {
        const QString option = QString::fromLocal8Bit(argv[i]);
        if (option == QLatin1String("--dark")) {
            QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
            QApplication::setPalette(DarkPalette());
        } else if (option == QLatin1String("--screen")) {
            g_fromScreen = true;
        }
    }
    const QString out = QString::fromLocal8Bit(argv[2]);
    QDir().mkpath(out);
    FileCharacterDatabase db(argv[1]);
    db.Preload(nullptr);
    MessageBoxPrompt prompt;
    auto seeds = [] { return 7u; };
    bool ok = true;

    const auto grade1 = db.LoadCategory(0)->Characters();
    User learner;
    learner.SetName("Anna");
    for (std::size_t i = 0; i < 12; ++i)
        learner.GetProgress(0).AddLearned(grade1[i]);
    for (std::size_t i = 12; i < 16; ++i)
        learner.GetProgress(0).AddUntested(grade1[i]);

    {
        SplashWindow splash;
        ok &= Save(splash, out, QStringLiteral("splash"));
        splash.SetRange(0, 1000);
        splash.SetPosition(500);
        ok &= Save(splash, out, QStringLiteral("splash-half"));
    }

    HomePage home(db, prompt);
    home.SetUser(&learner);
    ok &= Save(home, out, QStringLiteral("home"));

    CategoryPage category(db, prompt, seeds);
    category.SetCategory(0, ProgressRecorder(learner, 0, {}, {}));
    // With the words test on: its button, enabled.
    category.SetWordsTest([](std::uint16_t) { return true; });
    ok &= Save(category, out, QStringLiteral("category"));

    // 日: its first stroke written, then the second drawn too low (refused, with the arrow).
    LessonPage lesson(db, prompt);
    lesson.StartLesson({grade1[0]});
    ok &= Save(lesson, out, QStringLiteral("lesson-empty"));
    Write(Named<InputCanvas>(&lesson, "inputCanvas"), *lesson.Glyph(), 0, 0);
    Write(Named<InputCanvas>(&lesson, "inputCanvas"), *lesson.Glyph(), 1, 45);
    ok &= Save(lesson, out, QStringLiteral("lesson-refused"));

    // 王 in the order with the vertical last: the top and the middle horizontal written, the other
    // order taken and said, the hint showing where the third stroke of that order starts.
    {
        LessonPage king(db, prompt);
        const std::uint16_t kingId = FindByMeaning(db, "king");
        const auto element = db.LoadElement(db.LoadCharacter(kingId)->ElementId());
        if (element->FormCount() > 1) {
            king.StartLesson({kingId});
            king.show();
            ok &= QTest::qWaitForWindowExposed(&king);
            Write(Named<InputCanvas>(&king, "inputCanvas"), element->GetForm(1), 0, 0);
            Write(Named<InputCanvas>(&king, "inputCanvas"), element->GetForm(1), 1, 0);
            QTest::mouseClick(Named<QPushButton>(&king, "hintButton"), Qt::LeftButton);
            ok &= Save(king, out, QStringLiteral("lesson-other-order"));
        }
    }

    // The texts that test the pages' room: the longest KUN reading (the right answer is among the
    // choices, so one choice is long too) and the longest meaning.
    std::uint16_t longestKun = 0, longestMeaning = 0;
    std::size_t kun = 0, meaning = 0;
    for (std::uint16_t id = 0; id < db.CharacterCount(); ++id) {
        const auto c = db.LoadCharacter(id);
        if (c->KunReading() && std::strlen(c->KunReading()) > kun)
            kun = std::strlen(c->KunReading()), longestKun = id;
        if (c->Meaning() && std::strlen(c->Meaning()) > meaning)
            meaning = std::strlen(c->Meaning()), longestMeaning = id;
    }

    TestContainer test(db, prompt, seeds);
    test.StartTest({longestKun, grade1[7]});
    ok &= Save(test, out, QStringLiteral("reading-test"));

    DrawingTestPage drawing(db, prompt);
    const auto character = db.LoadCharacter(longestMeaning);
    drawing.SetCharacter(character.get());
    Write(Named<InputCanvas>(&drawing, "inputCanvas"), *drawing.Glyph(), 0, 45);
    ok &= Save(drawing, out, QStringLiteral("drawing-test"));

    KanjiInfoDialog info(db, prompt);
    info.SetCode(longestMeaning);
    ok &= Save(info, out, QStringLiteral("kanji-info"));

    // Words and parts, from the lexicon beside the database: 学 for a learner who knows the
    // first twelve characters of Grade 1, and the reading test once both readings are answered.
    const std::string lexiconPath = (std::filesystem::path(argv[1]).parent_path() / "lexicon").string();
    LexiconAccess words(lexiconPath, db);
    if (const Lexicon* lexicon = words.Get()) {
        KanjiInfoDialog wordsInfo(db, prompt);
        wordsInfo.SetWords(WordContext{&words, LearnedBy(learner)});
        wordsInfo.SetCode(lexicon->CharacterOf(U'学'));
        ok &= Save(wordsInfo, out, QStringLiteral("kanji-info-words"));
        // 王 with its other stroke order (the vertical last), words and parts too.
        KanjiInfoDialog ordersInfo(db, prompt);
        ordersInfo.SetWords(WordContext{&words, LearnedBy(learner)});
        ordersInfo.SetOtherOrders(true);
        ordersInfo.SetCode(lexicon->CharacterOf(U'王'));
        ok &= Save(ordersInfo, out, QStringLiteral("kanji-info-orders"));

        TestContainer wordTest(db, prompt, seeds);
        wordTest.ReadingPage()->SetWordAid(&words);
        wordTest.StartTest({lexicon->CharacterOf(U'学')});
        ReadingTestPage* reading = wordTest.ReadingPage();
        const auto asked = db.LoadCharacter(lexicon->CharacterOf(U'学'));
        for (std::size_t i = 0; i < reading->Choices().on.size(); ++i)
            if (reading->Choices().on[i] == asked->OnReading())
                QTest::mouseClick(reading->OnButton(static_cast<int>(i)), Qt::LeftButton, Qt::NoModifier, QPoint(8, 8));
        for (std::size_t i = 0; i < reading->Choices().kun.size(); ++i)
            if (reading->Choices().kun[i] == asked->KunReading())
                QTest::mouseClick(
                    reading->KunButton(static_cast<int>(i)), Qt::LeftButton, Qt::NoModifier, QPoint(8, 8));
        ok &= Save(wordTest, out, QStringLiteral("reading-test-word"));

        // The practice sheet's dialog for six characters of Grade 1, with their words.
        QString error;
        PracticeSheetDialog sheet(PracticeSheet::Load(db, lexicon, std::vector<std::uint16_t>(grade1.begin(), grade1.begin() + 6), error),
            true, prompt);
        ok &= Save(sheet, out, QStringLiteral("practice-sheet"));
    } else {
        std::fprintf(stderr, "render_pages: no lexicon at %s, pages with words left out\n", lexiconPath.c_str());
    }

    QTemporaryDir folder;
    const std::string config = QDir(folder.path()).filePath(QStringLiteral("config.xml")).toStdString();
    std::ofstream(config)
        << R"(<Zavoren><Users currentUser="Anna"><User name="Anna"/><User name="Ben"/></Users></Zavoren>)";
    XmlConfigStore store(config, db);
    UserManagerDialog manager(store, prompt);
    ok &= Save(manager, out, QStringLiteral("user-manager"));

    AboutDialog about([](const QUrl&) { return false; });
    ok &= Save(about, out, QStringLiteral("about"));
    PreferencesDialog preferences(CoachingPreferences{});
    ok &= Save(preferences, out, QStringLiteral("preferences"));

    // A year of work: a lesson every other day and its test, some failed with mistakes.
    const int today = EventDay("2026-11-22T20:00:00+01:00");
    for (int day = today - 365, n = 0; day <= today; day += 2, ++n) {
        const std::uint16_t id = grade1[static_cast<std::size_t>(n) % grade1.size()];
        learner.AddEvent({DayText(day) + "T18:00:00+01:00", LearnerEvent::Lesson, 0, id, -1});
        learner.AddEvent(
            {DayText(day) + "T18:30:00+01:00", n % 5 == 0 ? LearnerEvent::Failed : LearnerEvent::Passed, 0, id, n % 3});
        if (n % 5 != 0 && !learner.GetProgress(0).IsLearned(id))
            learner.GetProgress(0).AddLearned(id);
    }
    // With the reviews: what is due after that year, on the home page, in Kanji Info and in the
    // progress window's Reviews tab.
    // The last ten days, reviews of twenty characters, so that some fall due within the month.
    for (std::size_t k = 0; k < 20; ++k)
        learner.AddEvent({DayText(today - static_cast<int>(k % 10)) + "T19:00:00+01:00", LearnerEvent::Passed, 0,
            grade1[k], static_cast<int>(k % 2)});
    const ReviewSchedule reviews(learner, MemoryLedger::Fold(learner.History()), MemoryModel(), today);
    HomePage homeWithReviews(db, prompt);
    homeWithReviews.SetUser(&learner);
    homeWithReviews.SetReviews(reviews);
    ok &= Save(homeWithReviews, out, QStringLiteral("home-reviews"));
    KanjiInfoDialog dueInfo(db, prompt);
    dueInfo.SetCode(grade1[0]);
    if (const ReviewSchedule::Review* review = reviews.Find(0, grade1[0]))
        dueInfo.SetNextReview(review->dueDay, today);
    ok &= Save(dueInfo, out, QStringLiteral("kanji-info-review"));

    // A review sitting of what that year leaves due: the third character half-asked (its reading
    // answered), then the summary after ten, the fourth forgotten.
    {
        QTemporaryDir folder;
        std::ofstream(folder.filePath(QStringLiteral("config.xml")).toStdString()) << "<Zavoren><Users/></Zavoren>";
        XmlConfigStore store(folder.filePath(QStringLiteral("config.xml")).toStdString(), db);
        HistoryDatabase history({});
        history.Attach(store);
        LearnerSession session(
            db, store, history, [] { return std::string("2026-11-22T20:00:00+01:00"); }, lexiconPath);
        session.Open(std::make_unique<User>(learner));
        ReviewPage review(db, prompt, seeds, session);
        review.SetSitting(10, false);
        review.Start();
        review.show();
        ok &= QTest::qWaitForWindowExposed(&review);
        TestContainer& test = *review.Test();
        while (review.Sitting().AnsweredCount() < 2)
            Answer(db, test, false);
        Answer(db, test, false);
        Write(Named<InputCanvas>(test.DrawingPage(), "inputCanvas"), *test.DrawingPage()->Glyph(), 0, 0);
        ok &= Save(review, out, QStringLiteral("review-middle"));
        for (int guard = 0; guard < 400 && !review.ShowsSummary(); ++guard)
            Answer(db, test, review.Sitting().AnsweredCount() == 3 && test.ShownPage() == test.ReadingPage());
        ok &= Save(review, out, QStringLiteral("review-summary"));
        review.hide();

        // The words test of Grade 1: the first word of two kanji or more, its first square
        // written, the second half-way; then the word shown after it.
        WordsTestPage words(db, prompt, seeds, session);
        if (words.Start(0)) {
            words.show();
            ok &= QTest::qWaitForWindowExposed(&words);
            while (words.WordIndex() + 1 < words.Words().size() && words.Words()[words.WordIndex()].KanjiCount() < 2) {
                QTest::mouseClick(Named<QPushButton>(&words, "dontKnowButton"), Qt::LeftButton);
                QTest::mouseClick(Named<QPushButton>(&words, "nextButton"), Qt::LeftButton);
            }
            const WordQuestion& word = words.Words()[words.WordIndex()];
            for (std::size_t i = 0; i < word.characters.size() && words.ActiveCell() >= 0; ++i) {
                if (!words.Canvas(i))
                    continue;
                const auto element = db.LoadElement(db.LoadCharacter(word.characters[i])->ElementId());
                const Form& glyph = element->GetForm(0);
                const bool first = words.ActiveCell() == static_cast<int>(i) && i == 0;
                const std::uint16_t strokes = first ? glyph.StrokeCount() : static_cast<std::uint16_t>(glyph.StrokeCount() / 2);
                for (std::uint16_t k = 0; k < strokes; ++k)
                    Write(words.Canvas(i), glyph, k, 0);
                if (!first) {
                    ok &= Save(words, out, QStringLiteral("words-half"));
                    for (std::uint16_t k = strokes; k < glyph.StrokeCount(); ++k)
                        Write(words.Canvas(i), glyph, k, 0);
                }
            }
            QTest::mouseClick(Named<QPushButton>(&words, "dontKnowButton"), Qt::LeftButton);
            ok &= Save(words, out, QStringLiteral("words-shown"));
        } else {
            std::fprintf(stderr, "render_pages: no words test for Grade 1\n");
            ok = false;
        }
        words.hide();

        // Find a character: みず typed, then 水 written.
        FindCharacterWindow find(db, prompt, session);
        find.show();
        ok &= QTest::qWaitForWindowExposed(&find);
        find.WaitForModel();
        Named<QLineEdit>(&find, "searchField")->setText(QStringLiteral("みず"));
        ok &= Save(find, out, QStringLiteral("find-text"));
        Named<QLineEdit>(&find, "searchField")->clear();
        {
            const std::uint16_t water = FindByMeaning(db, "water");
            const auto element = db.LoadElement(db.LoadCharacter(water)->ElementId());
            for (std::uint16_t k = 0; k < element->GetForm(0).StrokeCount(); ++k)
                Write(Named<InputCanvas>(&find, "inputCanvas"), element->GetForm(0), k, 0);
        }
        ok &= Save(find, out, QStringLiteral("find-ink"));
    }

    ProgressWindow progress(db, prompt, learner, learner.History(), "2026-11-22T20:00:00+01:00", reviews);
    progress.setAttribute(Qt::WA_DeleteOnClose, false);
    progress.resize(720, 560);
    const char* const tabs[]
        = {"progress-learned", "progress-tests", "progress-categories", "progress-trouble", "progress-reviews"};
    for (int i = 0; i < 5; ++i) {
        Named<QTabWidget>(&progress, "progressTabs")->setCurrentIndex(i);
        ok &= Save(progress, out, QString::fromLatin1(tabs[i]));
    }
    return ok ? 0 : 1;
}
