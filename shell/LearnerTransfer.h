#pragma once

#include "User.h"

#include <QCoreApplication>
#include <QString>

#include <memory>
#include <string>

class CharacterDatabase;
class ConfigStore;
class LearnerSession;
class LearningHistory;
class Prompt;
class QWidget;

/// One learner in a file of their own: Tools > Export learner… writes the open learner's record
/// and history to a file; Import learner… adds a file's learner to the store, asking whether to
/// replace or rename when the name is taken. Every refusal is told to the learner through the
/// prompt, and leaves the store and the file as they were.
class LearnerTransfer {
    Q_DECLARE_TR_FUNCTIONS(LearnerTransfer)
public:
    /// Files are checked against `database`; learners go into `store`, their history into
    /// `history`; messages and questions go through `prompt`, owned by `parent`.
    LearnerTransfer(
        CharacterDatabase& database, ConfigStore& store, LearningHistory& history, Prompt& prompt, QWidget* parent);
    /// As above, with the store and the history of `session`.
    LearnerTransfer(CharacterDatabase& database, LearnerSession& session, Prompt& prompt, QWidget* parent);

    /// The file name offered for exporting `learner`, in the home folder.
    static QString SuggestedPath(const User& learner);
    /// Tools > Export learner…: asks for a file and writes `learner` to it (none: nothing).
    void ExportAsked(User* learner);
    /// Writes `learner` to `path`; false after telling the learner why not.
    bool Export(User& learner, const QString& path);

    /// What an import did.
    struct Outcome {
        bool imported = false; ///< the store holds the file's learner
        /// The imported record when it replaced the record of the learner who is open: they
        /// become this record (not saved over it at close).
        std::unique_ptr<User> replacedOpen;
    };
    /// Adds the learner of the file at `path` to the store; `openName` is the learner who is
    /// open (empty for none). Throws ConfigException when the store fails.
    Outcome Import(const QString& path, const std::string& openName);
    /// Tools > Import learner…: asks for a file and imports it (nothing when cancelled).
    Outcome ImportAsked(const std::string& openName);

private:
    void Refuse(const QString& title, const QString& text);
    /// Writes an imported learner's record and makes the history it carries their whole history.
    void Keep(User& learner);

    CharacterDatabase& m_database;
    ConfigStore& m_store;
    LearningHistory& m_history;
    Prompt& m_prompt;
    QWidget* m_parent;
};
