#pragma once

// What a learner does with the main window in the tests: clicks, ink, a whole test answered.

#include "HomePage.h"
#include "DrawingTestPage.h"
#include "InputCanvas.h"
#include "MainWindow.h"
#include "Named.h"
#include "ReadingTestPage.h"
#include "TestContainer.h"
#include "TestSupport.h"
#include "WindowFixture.h"

#include <QCheckBox>
#include <QPushButton>
#include <QRadioButton>
#include <QTest>
#include <QTreeWidget>

#include <algorithm>
#include <set>
#include <vector>

using namespace testsupport;
using Codes = std::vector<std::uint16_t>;

inline void ClickRadio(QRadioButton* b)
{
    QTest::mouseClick(b, Qt::LeftButton, Qt::NoModifier, QPoint(8, b->height() / 2));
}

inline void Tick(QCheckBox* box)
{
    QTest::mouseClick(box, Qt::LeftButton, Qt::NoModifier, QPoint(8, box->height() / 2));
}

inline void WriteAll(InputCanvas* canvas, const Form& glyph)
{
    for (std::uint16_t k = 0; k < glyph.StrokeCount(); ++k)
        DrawInk(canvas, StrokeAsMouse(glyph, k, canvas->ClientRect().width()));
}

/// Answers the question `test` asks right and clicks Next; with `miss` a reading question
/// first gets a wrong ON reading (an answer with one mistake).
inline void AnswerQuestion(TestContainer* test, bool miss = false)
{
    CharacterDatabase& db = StandardDatabase();
    const auto character = db.LoadCharacter(*test->Schedule().CurrentCode());
    if (test->ShownPage() == test->ReadingPage()) {
        ReadingTestPage* page = test->ReadingPage();
        const std::string on = character->OnReading() ? character->OnReading() : "";
        const std::string kun = character->KunReading() ? character->KunReading() : "";
        if (miss) {
            for (int i = 0; i < 5; ++i)
                if (page->Choices().on[static_cast<std::size_t>(i)] != on) {
                    ClickRadio(page->OnButton(i));
                    break;
                }
        }
        for (int i = 0; i < 5; ++i) {
            if (page->Choices().on[static_cast<std::size_t>(i)] == on)
                ClickRadio(page->OnButton(i));
            if (page->Choices().kun[static_cast<std::size_t>(i)] == kun)
                ClickRadio(page->KunButton(i));
        }
    } else {
        WriteAll(Named<InputCanvas>(test->DrawingPage(), "inputCanvas"), *test->DrawingPage()->Glyph());
    }
    QVERIFY(Named<QPushButton>(test, "nextButton")->isEnabled());
    QTest::mouseClick(Named<QPushButton>(test, "nextButton"), Qt::LeftButton);
}

/// Answers every question of the test shown right, until it finishes; the first reading
/// question of each character of `missOnce` first gets a wrong ON reading (one mistake).
inline void AnswerTestRight(MainWindow& window, std::set<std::uint16_t> missOnce = {})
{
    TestContainer* test = ChildOf<TestContainer>(window);
    for (int guard = 0; guard < 100 && ShownPage(window) == test; ++guard) {
        const std::uint16_t code = *test->Schedule().CurrentCode();
        AnswerQuestion(test, test->ShownPage() == test->ReadingPage() && missOnce.erase(code) > 0);
    }
}

inline void OpenCategory(MainWindow& window, int row)
{
    HomePage* home = ChildOf<HomePage>(window);
    QTreeWidget* list = Named<QTreeWidget>(home, "categoryList");
    const QRect r = list->visualItemRect(list->topLevelItem(row));
    QTest::mouseClick(list->viewport(), Qt::LeftButton, Qt::NoModifier, r.center());
    QTest::mouseClick(Named<QPushButton>(home, "openButton"), Qt::LeftButton);
}

/// Sorted, for comparing lists whose order is another's.
inline Codes Sorted(Codes codes)
{
    std::sort(codes.begin(), codes.end());
    return codes;
}

