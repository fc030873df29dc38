#pragma once

#include "FindCharacterWindow.h"

#include <QObject>
#include <QPointer>

#include <cstdint>

class CharacterDatabase;
class LearnerSession;
class PreferencesEditor;
class Prompt;
class QWidget;

/// Tools > Find a character… (Ctrl+F): one find window for the program, made the first time it
/// is asked for and shown beside `owner` (the main window), with Kanji Info as the aids have it.
class CharacterFinder : public QObject {
    Q_OBJECT
public:
    CharacterFinder(CharacterDatabase& database, Prompt& prompt, LearnerSession& session,
        const PreferencesEditor& preferences, QWidget* owner);
    ~CharacterFinder() override;

    /// Shows the window (made now the first time), raised and ready for typing.
    void Open();
    FindCharacterWindow* Window() const { return m_window; }

signals:
    /// The learner asked to see a character in its category.
    void showInCategory(std::uint16_t categoryId, std::uint16_t code);

private:
    CharacterDatabase& m_database;
    Prompt& m_prompt;
    LearnerSession& m_session;
    const PreferencesEditor& m_preferences;
    QWidget* m_owner;
    QPointer<FindCharacterWindow> m_window;
};
