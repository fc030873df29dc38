#include "CharacterFinder.h"

#include "FindCharacterWindow.h"
#include "LearnerSession.h"
#include "PreferencesEditor.h"

#include <QGuiApplication>
#include <QLineEdit>
#include <QScreen>

CharacterFinder::CharacterFinder(CharacterDatabase& database, Prompt& prompt, LearnerSession& session,
    const PreferencesEditor& preferences, QWidget* owner)
    : QObject(owner), m_database(database), m_prompt(prompt), m_session(session), m_preferences(preferences),
      m_owner(owner)
{
}

CharacterFinder::~CharacterFinder()
{
    delete m_window;
}

void CharacterFinder::Open()
{
    const bool made = !m_window;
    if (made) {
        // A window of its own, not a child of the main window: it stays beside it.
        m_window = new FindCharacterWindow(m_database, m_prompt, m_session);
        connect(m_window, &FindCharacterWindow::showInCategory, this, &CharacterFinder::showInCategory);
    }
    const CoachingPreferences& aids = m_preferences.Current();
    WordContext context;
    if (aids.wordsAndParts) {
        context.lexicon = &m_session.Lexicon();
        LearnerSession* session = &m_session;
        context.learned = [session](std::uint16_t id) { return session->HasLearned(id); };
    }
    m_window->SetWords(std::move(context));
    m_window->SetOtherOrders(aids.otherOrders);
    if (made && m_owner) {
        // Beside the main window, on its screen.
        const QRect owner = m_owner->frameGeometry();
        QPoint at(owner.right() + 8, owner.top());
        if (const QScreen* screen = m_owner->screen()) {
            const QRect room = screen->availableGeometry();
            if (at.x() + m_window->width() > room.right())
                at.setX(std::max(room.left(), owner.left() - m_window->width() - 8));
            at.setY(std::clamp(at.y(), room.top(), std::max(room.top(), room.bottom() - m_window->height())));
        }
        m_window->move(at);
    }
    m_window->show();
    m_window->raise();
    m_window->activateWindow();
    if (auto* field = m_window->findChild<QLineEdit*>(QStringLiteral("searchField")))
        field->setFocus();
}
