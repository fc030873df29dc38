#pragma once

#include "Character.h"
#include "Element.h"

#include <QHash>

#include <cstdint>
#include <memory>

class CharacterDatabase;
class Lexicon;
class LexiconAccess;
class Prompt;
class QWidget;

/// A character's glyph element, with at least one form; null after the "Zavoren Database
/// Error" message (owned by `parent`) through `prompt` when it cannot be read.
std::unique_ptr<Element> LoadGlyphOrReport(
    CharacterDatabase& database, std::uint16_t elementId, Prompt& prompt, QWidget* parent);

/// A character and its glyph; both null after the error box when either cannot be read.
struct CharacterWithGlyph {
    std::unique_ptr<Character> character;
    std::unique_ptr<Element> glyph;
};
CharacterWithGlyph LoadCharacterOrReport(
    CharacterDatabase& database, std::uint16_t code, Prompt& prompt, QWidget* parent);

/// The lexicon of `words`, opened on first use; null when there is none to use, after a warning
/// (owned by `parent`, once a session) when it is damaged.
const Lexicon* LexiconOrReport(LexiconAccess& words, Prompt& prompt, QWidget* parent);

/// The glyphs of the characters a grid shows, each read from the database once; a character
/// whose glyph cannot be read has none (its cell stays blank).
class GlyphCache {
public:
    explicit GlyphCache(CharacterDatabase& database) : m_database(database) { }
    /// The first form of the character's glyph, or null.
    const Form* operator()(std::uint16_t code);

private:
    CharacterDatabase& m_database;
    QHash<std::uint16_t, std::shared_ptr<Element>> m_glyphs;
};
