#pragma once

#include "Lexicon.h"

#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

class CharacterDatabase;
class User;

/// The lexicon as the pages use it: opened from its file the first time one asks (never at
/// start), checked against the database, and given up for the session when it cannot be used.
/// A missing file, or one made for another database (a learner's own `database`), just means
/// no words and parts; a damaged one is also told, once.
class LexiconAccess {
public:
    /// Opens `path` on first use, for `database`, which must outlive this object.
    LexiconAccess(std::string path, CharacterDatabase& database);
    /// Uses `lexicon` as it is (already checked), for tests and tools.
    explicit LexiconAccess(std::unique_ptr<Lexicon> lexicon);
    ~LexiconAccess();

    /// The lexicon, or null when there is none to use.
    const Lexicon* Get();
    /// The message (a StoreMessage text) to tell the learner about a damaged lexicon, once;
    /// null when there is nothing to tell.
    const char* TakeProblem();

private:
    std::string m_path;
    CharacterDatabase* m_database = nullptr;
    std::unique_ptr<Lexicon> m_lexicon;
    bool m_tried = false;
    const char* m_problem = nullptr;
};

/// A run of a word's writing that the learner can or cannot read yet.
struct WordPiece {
    std::string text;
    bool known = true;
};

/// A word's writing cut where the learner's knowledge changes: kana, signs and the characters
/// `learned` says yes to are known; the other kanji, in the database or not, are not.
std::vector<WordPiece> SplitByKnowledge(
    const Lexicon& lexicon, std::string_view writing, const std::function<bool(std::uint16_t)>& learned);

/// Whether `learner` has learned the character, in any category.
bool HasLearned(const User& learner, std::uint16_t id);
/// HasLearned for `learner`, who must outlive the function.
std::function<bool(std::uint16_t)> LearnedBy(const User& learner);

/// What Kanji Info needs to show a character's words and parts.
struct WordContext {
    /// Null: no words and parts, the dialog as it always was.
    LexiconAccess* lexicon = nullptr;
    /// Whether the learner has learned the character with this id; unset: none learned.
    std::function<bool(std::uint16_t)> learned;
};
