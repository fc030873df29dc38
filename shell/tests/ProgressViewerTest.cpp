// Tools > Progress…: one window at a time for the learner it shows, and a clear message when
// the progress module cannot give one.

#include "LexiconAccess.h"
#include "LexiconWriter.h"
#include "ProgressViewer.h"
#include "RecordingPrompt.h"
#include "WindowFixture.h"

#include <QPointer>
#include <QTest>

namespace {

/// Progress windows that are plain widgets, counted.
class CountingViews : public ProgressViewFactory {
public:
    int made = 0;
    LexiconAccess* words = nullptr; ///< what the last window was given for Kanji Info's words
    QWidget* CreateProgressView(CharacterDatabase&, Prompt&, const User& learner, std::vector<LearnerEvent>,
        const std::string& now, std::optional<ReviewSchedule>, LexiconAccess* lexicon, QWidget* parent) override
    {
        ++made;
        words = lexicon;
        auto* window = new QWidget(parent, Qt::Window);
        window->setObjectName(QString::fromUtf8(learner.Name()) + QStringLiteral(" ") + QString::fromStdString(now));
        return window;
    }
};

} // namespace

class ProgressViewerTest : public QObject {
    Q_OBJECT

private slots:
    void oneWindowAtATimeForTheLearner()
    {
        CountingViews views;
        RecordingPrompt prompt;
        QWidget owner;
        ProgressViewer viewer(StandardDatabase(), prompt, FixedClock, [&views](QString&) -> ProgressViewFactory* {
            return &views;
        });
        User anna;
        anna.SetName("Anna");
        viewer.Open(&anna, {}, std::nullopt, nullptr, &owner);
        QCOMPARE(views.made, 1);
        QPointer<QWidget> first = owner.findChild<QWidget*>(QStringLiteral("Anna ") + QString::fromStdString(FixedClock()));
        QVERIFY(first);
        QVERIFY(first->isVisible());
        LexiconAccess lexicon(std::make_unique<Lexicon>(LexiconWriter(0).Serialize()));
        viewer.Open(&anna, {}, std::nullopt, &lexicon, &owner); // again: the first one goes
        QCOMPARE(views.made, 2);
        QCOMPARE(views.words, &lexicon);
        QVERIFY(!first);
        viewer.Close();
        QVERIFY(!owner.findChild<QWidget*>(QStringLiteral("Anna ") + QString::fromStdString(FixedClock())));
        viewer.Open(nullptr, {}, std::nullopt, nullptr, &owner); // no learner: nothing
        QCOMPARE(views.made, 2);
        QVERIFY(prompt.messages.isEmpty());
    }

    void aMissingModuleOrAFailingWindowIsSaid()
    {
        RecordingPrompt prompt;
        QWidget owner;
        User anna;
        anna.SetName("Anna");
        ProgressViewer missing(StandardDatabase(), prompt, FixedClock, NoProgressModule);
        missing.Open(&anna, {}, std::nullopt, nullptr, &owner);
        QCOMPARE(prompt.messages,
            QStringList{QStringLiteral("Progress: The progress window cannot be opened: no module in the tests")});
        struct Failing : ProgressViewFactory {
            QWidget* CreateProgressView(
                CharacterDatabase&, Prompt&, const User&, std::vector<LearnerEvent>, const std::string&,
                std::optional<ReviewSchedule>, LexiconAccess*, QWidget*) override
            {
                throw std::runtime_error("out of charts");
            }
        } failing;
        ProgressViewer broken(StandardDatabase(), prompt, FixedClock, [&failing](QString&) -> ProgressViewFactory* {
            return &failing;
        });
        broken.Open(&anna, {}, std::nullopt, nullptr, &owner);
        QCOMPARE(prompt.messages.value(1), QStringLiteral("Progress: The progress window cannot be opened: out of charts"));
    }
};

QTEST_MAIN(ProgressViewerTest)
#include "ProgressViewerTest.moc"
