#pragma once

#include "BuildError.h"
#include "CharacterIds.h"
#include "Form.h"
#include "LexiconBuilder.h"

#include <cstdint>
#include <map>
#include <optional>
#include <stdexcept>
#include <string>
#include <vector>

/// What `zavoren-db build` is asked to do.
struct BuildOptions {
    std::string kanjivgDir; ///< folder of KanjiVG SVGs named like 06c34.svg
    std::string kanjidicPath; ///< KANJIDIC2 XML, gzipped or plain
    std::string language = "en";
    bool allKanji = false; ///< add the category "Other" with every remaining KanjiVG kanji
    /// KanjiVG's full drawings (HEX-SUFFIX.svg), whose other stroke orders become further forms
    /// of each character's element (empty: none).
    std::string ordersDir;
    /// The ids the characters keep (empty: ids in the order met, categories then teaching order).
    CharacterIdTable ids;
};

/// What a build did, for the tool's report.
struct BuildReport {
    struct CategoryCount {
        std::string name;
        std::size_t characters = 0;
        std::size_t withoutStrokes = 0;
    };
    std::vector<CategoryCount> categories;
    std::vector<char32_t> leftOut; ///< characters without KanjiVG strokes
    std::size_t characters = 0;
    /// The characters written, in id order, as the lexicon builder takes them (an empty one for
    /// an id kept for a character no longer in the data).
    std::vector<LexiconCharacter> built;
    /// Characters with other stroke orders, and those orders in all.
    std::size_t withOtherOrders = 0;
    std::size_t otherOrders = 0;
    /// Drawings named as orders whose stroke count differs from the standard one's.
    std::vector<std::string> ordersLeftOut;
    /// The code point of each id (0 for one kept for a character no longer in the data).
    std::vector<char32_t> ids;
    /// The DatabaseKey of the file.
    std::uint64_t databaseKey = 0;
};

/// Reads one KanjiVG SVG into a kind-1 form of box 109 x 109, strokes in document order; null
/// when the file does not exist. Throws BuildError for an unreadable file or bad path data.
std::optional<Form> LoadKanjiVgGlyph(const std::string& directory, char32_t codePoint);

/// Whether a KanjiVG drawing's suffix ("VtLst", "HzFstRiLe") names another stroke order, and
/// not another style of the character (Kaisho, Hyougai, Jinmei, Insatsu).
bool IsStrokeOrderSuffix(const std::string& suffix);
/// The drawings of `directory` that give other stroke orders, by character, sorted by name.
std::map<char32_t, std::vector<std::string>> FindStrokeOrders(const std::string& directory);

/// Builds the whole database file. Same inputs give the same bytes.
std::vector<std::uint8_t> BuildDatabase(const BuildOptions& options, BuildReport& report);

/// Joins items with a separator, keeping whole items only, so that the result is at most
/// `limit` bytes.
std::string JoinLimited(const std::vector<std::string>& items, const std::string& separator, std::size_t limit = 255);

/// Encodes a code point as UTF-8.
std::string Utf8(char32_t codePoint);
