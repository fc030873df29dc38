#pragma once

#include "FindCharacterWindow.h"

#include <QObject>
#include <QPointer>

#include <cstdint>
#include <vector>

class CategoryPage;
class CharacterDatabase;
class HomePage;
class LearnerSession;
class PageStack;
class PreferencesEditor;
class Prompt;
class QWidget;

/// The windows the menus open for the open learner beside the main window: Tools > Find a
/// character… (one window for the program, made the first time it is asked for) and File > Print
/// practice sheet… (of what the page shown has chosen). Kanji Info in them follows the aids. A
/// character the learner asks to see in its category is shown on `category`.
class LearnerWindows : public QObject {
    Q_OBJECT
public:
    struct Pages {
        PageStack& stack;
        HomePage& home;
        CategoryPage& category;
    };
    LearnerWindows(CharacterDatabase& database, Prompt& prompt, LearnerSession& session,
        const PreferencesEditor& preferences, Pages pages, QWidget* owner);
    ~LearnerWindows() override;

    /// Shows the find window (made now the first time), raised and ready for typing.
    void FindCharacter();
    FindCharacterWindow* Finder() const { return m_finder; }
    /// The practice sheet of the category page's selection, or, on the home page, of the next
    /// lesson of the category selected there.
    void PrintSheet();

private:
    CharacterDatabase& m_database;
    Prompt& m_prompt;
    LearnerSession& m_session;
    const PreferencesEditor& m_preferences;
    Pages m_pages;
    QWidget* m_owner;
    QPointer<FindCharacterWindow> m_finder;
};
