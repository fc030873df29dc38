#include "ProgressViewer.h"

#include "LearnerSession.h"
#include "Prompt.h"

#include <QWidget>

ProgressViewer::ProgressViewer(CharacterDatabase& database, Prompt& prompt, EventClock clock, ProgressViewSource source)
    : m_database(database), m_prompt(prompt), m_clock(std::move(clock)), m_source(std::move(source))
{
}

void ProgressViewer::Close()
{
    delete m_window;
}

void ProgressViewer::Open(LearnerSession& session, bool withWords, QWidget* parent)
{
    if (!session.Learner())
        return;
    std::vector<LearnerEvent> history = session.Events();
    Open(session.Learner(), std::move(history), session.Reviews(), withWords ? &session.Lexicon() : nullptr, parent);
}

void ProgressViewer::Open(const User* learner, std::vector<LearnerEvent> history, std::optional<ReviewSchedule> reviews,
    LexiconAccess* words, QWidget* parent)
{
    Close();
    if (!learner)
        return;
    QString error;
    ProgressViewFactory* factory = m_source ? m_source(error) : nullptr;
    try {
        if (factory)
            m_window = factory->CreateProgressView(m_database, m_prompt, *learner, std::move(history),
                m_clock ? m_clock() : LocalTimeNow(), std::move(reviews), words, parent);
    } catch (const std::exception& e) {
        factory = nullptr;
        error = QString::fromUtf8(e.what());
    }
    if (!factory) {
        m_prompt.Ask(
            parent, QMessageBox::Warning, tr("Progress"), tr("The progress window cannot be opened: %1").arg(error));
        return;
    }
    if (m_window)
        m_window->show();
}
