#pragma once

#include <cstdint>
#include <map>
#include <optional>
#include <stdexcept>
#include <string>
#include <tuple>
#include <vector>

/// Assembles a `lexicon` file (see Lexicon.cpp): characters in database id order, each with its
/// words and parts. A word used by several characters is written once.
class LexiconWriter {
public:
    struct Word {
        std::string writing;
        std::string reading;
        std::string meaning;
        bool common = false;
        bool operator<(const Word& other) const
        {
            return std::tie(writing, reading, meaning, common)
                < std::tie(other.writing, other.reading, other.meaning, other.common);
        }
    };
    struct Part {
        char32_t codePoint = 0;
        std::uint16_t characterId = 0xFFFF;
        std::uint64_t strokes = 0;
    };

    explicit LexiconWriter(std::uint64_t databaseKey) : m_databaseKey(databaseKey) { }

    /// Adds the next character (id = characters added before it). At most 8 words; the reading
    /// words are shown by the reading test and need not be among `words`.
    void AddCharacter(char32_t codePoint, const std::vector<Word>& words, const std::vector<Part>& parts,
        const std::optional<Word>& onWord, const std::optional<Word>& kunWord);

    /// The whole file. Throws std::length_error when a text or a count does not fit the format.
    std::vector<std::uint8_t> Serialize() const;

private:
    std::uint32_t WordIndex(const Word& word);

    struct CharacterEntry {
        char32_t codePoint;
        std::uint32_t firstReference;
        std::uint8_t wordCount;
        std::uint32_t firstPart;
        std::uint8_t partCount;
        std::uint32_t onWord;
        std::uint32_t kunWord;
    };
    std::uint64_t m_databaseKey;
    std::vector<CharacterEntry> m_characters;
    std::vector<Word> m_words;
    std::map<Word, std::uint32_t> m_wordIndex;
    std::vector<std::uint32_t> m_references;
    std::vector<Part> m_parts;
};
