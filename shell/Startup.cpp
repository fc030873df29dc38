#include "Startup.h"

#include "CharacterDatabase.h"
#include "ConfigException.h"
#include "ConfigStore.h"
#include "HomePage.h"
#include "LearnerSession.h"
#include "MainWindow.h"
#include "Prompt.h"
#include "SingleInstance.h"
#include "SplashWindow.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QTimer>

#include <cstdio>
#include <cstdlib>
#include <optional>

namespace {

/// Closes the window once the home page has been painted for the first time.
class FirstPaintWatcher : public QObject {
public:
    FirstPaintWatcher(QWidget* watched, MainWindow* window) : QObject(window), m_window(window)
    {
        watched->installEventFilter(this);
        m_clock.start();
    }
    bool eventFilter(QObject* object, QEvent* event) override
    {
        if (event->type() == QEvent::Paint && !m_done) {
            m_done = true;
            std::fprintf(stderr, "home page painted %lld ms after the window was built\n",
                static_cast<long long>(m_clock.elapsed()));
            QTimer::singleShot(0, m_window, &QWidget::close);
        }
        return QObject::eventFilter(object, event);
    }

private:
    MainWindow* m_window;
    QElapsedTimer m_clock;
    bool m_done = false;
};

} // namespace

StartupOptions OptionsFromArguments(const QStringList& arguments)
{
    StartupOptions options;
    for (qsizetype i = 1; i < arguments.size(); ++i) {
        if (arguments[i] == QLatin1String("--quit-after-first-paint"))
            options.quitAfterFirstPaint = true;
        else if (arguments[i] == QLatin1String("--instance-name") && i + 1 < arguments.size())
            options.instanceName = arguments[++i];
    }
    return options;
}

int RunZavoren(const StartupOptions& options, Prompt& prompt)
{
    SingleInstance instance(options.instanceName);
    if (!instance.Acquire())
        return 0;
    QObject::connect(&instance, &SingleInstance::raiseRequested, [] { BringToFront(); });

    // Destroyed, not only hidden, once the main window is built: its picture, bar and window
    // buffer are not kept for the rest of the session.
    std::optional<SplashWindow> splash(std::in_place);
    if (splash->HasPicture()) {
        splash->show();
        splash->repaint();
        QApplication::processEvents();
    }
    // A database that cannot be read is not handled here: the exception ends in the crash
    // handler's question.
    CharacterDatabase& database = GetDatabase();
    database.Preload(&*splash);

    ConfigStore* store = nullptr;
    LearningHistory* history = nullptr;
    try {
        store = &GetConfigStore();
        history = &GetLearningHistory();
    } catch (const ZavorenCommon::ConfigException& e) {
        splash.reset();
        prompt.StoreError(nullptr, ConfigurationErrorTitle, e.what());
        ReleaseDataStores();
        return 0;
    }
    int result = 0;
    {
        // Gone before the stores it listens to.
        LearnerSession session(database, *store, *history, LocalTimeNow);
        MainWindow window(database, session, prompt, ClockSeed, OpenWithDesktop, LoadProgressModule);
        const bool chosen = window.ChooseLearnerAtStart();
        splash.reset();
        if (chosen) {
            QApplication::setQuitOnLastWindowClosed(false);
            QObject::connect(&window, &MainWindow::closed, [&result] {
                result = 1;
                QTimer::singleShot(0, [] { QApplication::exit(1); });
            });
        }
        if (chosen && window.ShowChosenLearner()) {
            // Watching from now on, its filter sees the first paint before the window's own
            // (which opens the history once the page is up): the run ends where start-up ends.
            if (options.quitAfterFirstPaint)
                new FirstPaintWatcher(window.findChild<HomePage*>(), &window);
            QApplication::exec();
        }
    }
    ReleaseDataStores();
    return result;
}
