#pragma once

#include <cstdint>
#include <string>
#include <vector>

class CharacterDatabase;
class Lexicon;

/// Finds characters of the database by what a learner types: the character itself, a reading
/// in kana (hiragana or katakana, with or without the okurigana dot; a KUN reading by its stem
/// too) or an English word of its meaning. Exact matches first, then the others; among equals,
/// by category and teaching order. No Qt.
class TextSearch {
public:
    /// Reads every character of `database` once; `lexicon` (may be null) gives their literals.
    TextSearch(CharacterDatabase& database, const Lexicon* lexicon);

    /// How well a character matched: the lower, the better.
    enum class Match : int { Literal = 0, Exact = 1, Word = 2, Prefix = 3 };
    struct Result {
        std::uint16_t id = 0;
        Match match = Match::Prefix;
    };
    /// Every character matching `query`, best first (none for an empty query).
    std::vector<Result> Find(const std::string& query) const;

    /// Katakana turned into hiragana; the okurigana dot and the affix dash dropped.
    static std::u32string KanaKey(const std::u32string& text);

private:
    struct Entry {
        std::uint16_t id = 0;
        std::uint32_t order = 0; ///< category, then place in it
        char32_t literal = 0;
        std::vector<std::u32string> readings; ///< ON and KUN readings, whole, as KanaKey
        std::vector<std::u32string> stems; ///< KUN readings' stems (before the dot), as KanaKey
        std::vector<std::string> meanings; ///< meaning items, lower case
        std::vector<std::string> words; ///< the meaning's words, lower case
    };
    std::vector<Entry> m_entries;
};
