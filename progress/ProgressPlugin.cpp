// The module that holds the progress window: loaded by the program when a learner first opens
// Tools > Progress…, so that the charts' libraries are not loaded at start-up.

#include "ProgressViewFactory.h"
#include "ProgressWindow.h"

#include <QObject>

class ProgressPlugin : public QObject, public ProgressViewFactory {
    Q_OBJECT
    Q_PLUGIN_METADATA(IID ZavorenProgressViewFactory_iid)
    Q_INTERFACES(ProgressViewFactory)

public:
    QWidget* CreateProgressView(CharacterDatabase& database, Prompt& prompt, const User& learner,
        std::vector<LearnerEvent> history, const std::string& now, std::optional<ReviewSchedule> reviews,
        LexiconAccess* words, QWidget* parent) override
    {
        auto* window = new ProgressWindow(database, prompt, learner, std::move(history), now, std::move(reviews), parent);
        window->SetWords(words);
        return window;
    }
};

#include "ProgressPlugin.moc"
