#pragma once

#include "Edict.h"
#include "LexiconWriter.h"

#include <cstdint>
#include <string>
#include <vector>

/// A character of the database as the lexicon builder sees it.
struct LexiconCharacter {
    char32_t codePoint = 0;
    int category = 0; ///< index of its category in the database
    int position = 0; ///< its place in the category's teaching order
    std::vector<std::string> onReadings; ///< katakana, as KANJIDIC2 gives them
    std::vector<std::string> kunReadings; ///< hiragana, "まな.ぶ" with the okurigana after the dot
    std::size_t strokeCount = 0; ///< of its glyph in the database
};

/// A part of a character as KanjiVG's full drawing names it.
struct KanjiVgPart {
    char32_t codePoint = 0;
    char32_t original = 0; ///< the character it is a form of (人 for 亻), or 0
    std::uint64_t strokes = 0; ///< bit k: the drawing's stroke k belongs to the part
};

/// The words that use `character` (index in `characters`), most useful first: common words,
/// then those whose other characters are taught earliest (a character outside the database
/// counts as never taught), then shorter; among equals a word on its own before a suffix or
/// counter and the one with more senses first, then by writing and reading. One per writing; at
/// most `limit`. `candidates` are the indexes of the entries whose writing contains it.
std::vector<LexiconWriter::Word> ChooseWords(const std::vector<LexiconCharacter>& characters, std::size_t character,
    const std::vector<EdictEntry>& entries, const std::vector<std::size_t>& candidates, std::size_t limit);

/// The parts of a character from its full KanjiVG SVG in `directory`: the kvg:element names of
/// the groups right under the character's own group (looking inside groups that name none), in
/// drawing order, without repeats and without the character itself, each with the strokes its
/// groups hold (a part split in two, like 衣 around 里 in 裏, has the strokes of both). None
/// when there is no file. `strokeCount` receives the drawing's number of strokes.
std::vector<KanjiVgPart> ReadKanjiVgParts(
    const std::string& directory, char32_t codePoint, std::size_t* strokeCount = nullptr);

/// The whole `lexicon` file for the database whose characters (in id order) are `characters`
/// and whose DatabaseKey is `databaseKey`. Same inputs, same bytes.
std::vector<std::uint8_t> BuildLexicon(const std::vector<LexiconCharacter>& characters, std::uint64_t databaseKey,
    const std::vector<EdictEntry>& entries, const std::string& partsDirectory);

/// The meaning shown for an entry: its first two glosses, joined by "; ".
std::string WordMeaning(const EdictEntry& entry);
