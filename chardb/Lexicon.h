#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

/// One word of the lexicon: how it is written, its reading in kana and its first English
/// glosses ("learning; scholarship"), all UTF-8. Views into the lexicon, valid while it lives.
struct LexiconWord {
    std::string_view writing;
    std::string_view reading;
    std::string_view meaning;
    /// Marked as a common word by the dictionary it comes from.
    bool common = false;
};

/// One part a character is built from (明: 日 and 月), as the character that shows it.
struct LexiconPart {
    char32_t codePoint = 0;
    /// The database character a click on the part opens, or NoCharacter.
    std::uint16_t characterId = 0xFFFF;
    /// Which strokes of the character draw the part (bit k for stroke k), so that it can be
    /// shown whatever the fonts hold; 0 when they are not known.
    std::uint64_t strokes = 0;
};

/// The read-only `lexicon` file beside `database`: for each character of one database, the words
/// that use it and the parts it is built from. The whole file is read and checked when it is
/// opened, so that every lookup afterwards is a plain, bounds-safe read; a missing, damaged or
/// foreign file throws DatabaseLoadException. The layout is described in Lexicon.cpp.
class Lexicon {
public:
    static constexpr std::uint16_t NoCharacter = 0xFFFF;
    /// Which reading a reading word shows the character in.
    enum class Reading { On, Kun };

    /// Reads and checks the file; throws DatabaseLoadException when it cannot.
    explicit Lexicon(const std::string& path);
    /// Checks and keeps the bytes of a lexicon file; throws DatabaseLoadException when they are
    /// not one.
    explicit Lexicon(std::vector<std::uint8_t> bytes);

    /// The key (DatabaseKey) of the database the lexicon was made for.
    std::uint64_t DatabaseKey() const { return m_databaseKey; }
    /// Throws DatabaseLoadException unless the lexicon was made for the database of `key`.
    void CheckMadeFor(std::uint64_t key) const;
    /// Number of characters, the same as the database's.
    std::size_t CharacterCount() const { return m_characterCount; }

    /// The character's code point, or 0 when `id` is not one of the lexicon's.
    char32_t CodePoint(std::uint16_t id) const;
    /// The database id of the character with this code point, or NoCharacter.
    std::uint16_t CharacterOf(char32_t codePoint) const;
    /// The character's words, most useful first (at most 8); none for an unknown id.
    std::vector<LexiconWord> Words(std::uint16_t id) const;
    /// The character's parts in drawing order; none for an unknown id.
    std::vector<LexiconPart> Parts(std::uint16_t id) const;
    /// A common word that uses the character with one of its ON (or KUN) readings.
    std::optional<LexiconWord> ReadingWord(std::uint16_t id, Reading reading) const;

private:
    void Check();
    LexiconWord WordAt(std::uint32_t index) const;
    const std::uint8_t* CharacterRecord(std::uint16_t id) const;

    std::vector<std::uint8_t> m_bytes;
    std::uint64_t m_databaseKey = 0;
    std::uint32_t m_characterCount = 0;
    std::uint32_t m_wordCount = 0;
    std::uint32_t m_referenceCount = 0;
    std::uint32_t m_partCount = 0;
    std::uint32_t m_textSize = 0;
    std::size_t m_characters = 0; // where each table starts in m_bytes
    std::size_t m_words = 0;
    std::size_t m_references = 0;
    std::size_t m_parts = 0;
    /// The unpacked text.
    std::vector<std::uint8_t> m_text;
    /// Code points and ids, sorted by code point.
    std::vector<std::pair<char32_t, std::uint16_t>> m_byCodePoint;
};
