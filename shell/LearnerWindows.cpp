#include "LearnerWindows.h"

#include "CategoryPage.h"
#include "HomePage.h"
#include "LearnerSession.h"
#include "PageStack.h"
#include "PracticeSheetDialog.h"
#include "PreferencesEditor.h"

#include <QLineEdit>
#include <QScreen>

LearnerWindows::LearnerWindows(CharacterDatabase& database, Prompt& prompt, LearnerSession& session,
    const PreferencesEditor& preferences, Pages pages, QWidget* owner)
    : QObject(owner), m_database(database), m_prompt(prompt), m_session(session), m_preferences(preferences),
      m_pages(pages), m_owner(owner)
{
}

LearnerWindows::~LearnerWindows()
{
    delete m_finder;
}

void LearnerWindows::FindCharacter()
{
    const bool made = !m_finder;
    if (made) {
        // A window of its own, not a child of the main window: it stays beside it.
        m_finder = new FindCharacterWindow(m_database, m_prompt, m_session);
        connect(m_finder, &FindCharacterWindow::showInCategory, &m_pages.category, &CategoryPage::RevealCharacter);
    }
    m_finder->SetWords(m_preferences.Words());
    m_finder->SetOtherOrders(m_preferences.Current().otherOrders);
    if (made && m_owner) {
        // Beside the main window, on its screen.
        const QRect owner = m_owner->frameGeometry();
        QPoint at(owner.right() + 8, owner.top());
        if (const QScreen* screen = m_owner->screen()) {
            const QRect room = screen->availableGeometry();
            if (at.x() + m_finder->width() > room.right())
                at.setX(std::max(room.left(), owner.left() - m_finder->width() - 8));
            at.setY(std::clamp(at.y(), room.top(), std::max(room.top(), room.bottom() - m_finder->height())));
        }
        m_finder->move(at);
    }
    m_finder->show();
    m_finder->raise();
    m_finder->activateWindow();
    if (auto* field = m_finder->findChild<QLineEdit*>(QStringLiteral("searchField")))
        field->setFocus();
}

void LearnerWindows::PrintSheet()
{
    const std::vector<std::uint16_t> codes = m_pages.stack.Shown() == &m_pages.category
        ? m_pages.category.SelectedCharacters()
        : PracticeSheetDialog::NextLesson(m_database, m_session.Learner(), m_pages.home.SelectedCategory());
    PracticeSheetDialog::Open(m_database, m_preferences.Words().lexicon, m_prompt, codes, m_owner);
}
