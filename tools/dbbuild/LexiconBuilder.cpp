#include "LexiconBuilder.h"

#include "DatabaseBuilder.h"
#include "KanjiDic.h"
#include "LexiconFormat.h"
#include "Utf8.h"

#include <pugixml.hpp>

#include <algorithm>
#include <climits>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <map>
#include <set>
#include <tuple>

namespace {

/// Katakana to hiragana; everything else as it is.
std::u32string Hiragana(const std::vector<char32_t>& text)
{
    std::u32string out;
    for (char32_t c : text)
        out += (c >= 0x30A1 && c <= 0x30F6) ? c - 0x60 : c;
    return out;
}

std::u32string ToU32(const std::string& text)
{
    const std::vector<char32_t> points = CodePointsOf(text);
    return std::u32string(points.begin(), points.end());
}

/// A kana with its voiced sound (か → が), or the kana itself.
char32_t Voiced(char32_t c)
{
    // か…ぢ and つ…ど go plain, voiced (っ sits between them); は…ぽ go plain, voiced, half-voiced.
    if (c >= U'か' && c <= U'ぢ')
        return (c - U'か') % 2 == 0 ? c + 1 : c;
    if (c >= U'つ' && c <= U'ど')
        return (c - U'つ') % 2 == 0 ? c + 1 : c;
    if (c >= U'は' && c <= U'ぽ')
        return (c - U'は') % 3 == 0 ? c + 1 : c;
    return c;
}

/// The forms a reading takes inside words: as it is, with its first sound voiced (rendaku:
/// 川 かわ in 小川 おがわ) and, for an ON reading ending in く, き, つ or ち, with that sound
/// doubled (学 がく in 学校 がっこう).
std::vector<std::u32string> ReadingForms(const std::string& reading, bool on)
{
    std::u32string plain;
    for (char32_t c : Hiragana(CodePointsOf(reading)))
        if (c != U'.' && c != U'-')
            plain += c;
    std::vector<std::u32string> forms;
    if (plain.empty())
        return forms;
    forms.push_back(plain);
    std::u32string voiced = plain;
    voiced[0] = Voiced(voiced[0]);
    if (voiced != plain)
        forms.push_back(voiced);
    if (on && plain.size() >= 2) {
        const char32_t last = plain.back();
        if (last == U'く' || last == U'き' || last == U'つ' || last == U'ち') {
            std::u32string doubled = plain;
            doubled.back() = U'っ';
            forms.push_back(doubled);
        }
    }
    return forms;
}

/// When a word's other characters are taught: the latest of them, as (category, position);
/// (-1, -1) when it has none, never when one is not in the database.
using Taught = std::pair<int, int>;

/// A candidate word's rank: common first, then the earliest taught other characters, then
/// shorter; among equals, a word on its own before a suffix or counter and the one with more
/// senses first (the everyday reading of a writing: 日 ひ "day" before 日 にち "Sunday"), then
/// by writing and reading so that the order never depends on anything else.
struct Ranked {
    bool common;
    Taught others;
    std::size_t length;
    const EdictEntry* entry;
    auto Key() const
    {
        return std::make_tuple(!common, others, length, entry->affix, -static_cast<long>(entry->glosses.size()),
            std::cref(entry->writing), std::cref(entry->reading));
    }
    bool operator<(const Ranked& b) const { return Key() < b.Key(); }
};

/// Writings with Latin letters or digits (ＣＤ屋, １日) are left out: a learner meets them
/// written otherwise.
bool HasAlphanumerics(const std::vector<char32_t>& points)
{
    return std::any_of(points.begin(), points.end(), [](char32_t c) {
        return (c >= U'0' && c <= U'9') || (c >= U'A' && c <= U'Z') || (c >= U'a' && c <= U'z')
            || (c >= U'０' && c <= U'９') || (c >= U'Ａ' && c <= U'Ｚ') || (c >= U'ａ' && c <= U'ｚ');
    });
}

using TaughtMap = std::map<char32_t, Taught>;

TaughtMap TaughtOf(const std::vector<LexiconCharacter>& characters)
{
    TaughtMap taught;
    for (const LexiconCharacter& c : characters)
        taught.emplace(c.codePoint, Taught{c.category, c.position});
    return taught;
}

/// The candidate words of the character `self`, best first.
std::vector<Ranked> Rank(const TaughtMap& taught, char32_t self, const std::vector<EdictEntry>& entries,
    const std::vector<std::size_t>& candidates)
{
    std::vector<Ranked> ranked;
    ranked.reserve(candidates.size());
    for (std::size_t index : candidates) {
        const EdictEntry& entry = entries[index];
        const std::vector<char32_t> points = CodePointsOf(entry.writing);
        if (HasAlphanumerics(points))
            continue;
        Taught latest{-1, -1};
        for (char32_t c : points) {
            if (c == self || !IsKanji(c))
                continue;
            const auto found = taught.find(c);
            latest = std::max(latest, found != taught.end() ? found->second : Taught{INT_MAX, INT_MAX});
        }
        ranked.push_back(Ranked{entry.common, latest, points.size(), &entry});
    }
    std::sort(ranked.begin(), ranked.end());
    return ranked;
}

LexiconWriter::Word MakeWord(const EdictEntry& entry)
{
    return LexiconWriter::Word{entry.writing, entry.reading, WordMeaning(entry), entry.common};
}

std::string HexName(char32_t codePoint)
{
    char name[16];
    std::snprintf(name, sizeof name, "%05x", static_cast<unsigned>(codePoint));
    return name;
}

/// The stroke number of a KanjiVG path ("kvg:0660e-s3" is stroke 3), or 0.
std::size_t StrokeNumber(const pugi::xml_node& path)
{
    const std::string id = path.attribute("id").value();
    const auto at = id.rfind("-s");
    if (at == std::string::npos)
        return 0;
    return static_cast<std::size_t>(std::strtoul(id.c_str() + at + 2, nullptr, 10));
}

/// The strokes of the paths under `group`, as bits.
std::uint64_t StrokesUnder(const pugi::xml_node& group)
{
    std::uint64_t strokes = 0;
    for (const pugi::xpath_node& path : group.select_nodes(".//path")) {
        const std::size_t number = StrokeNumber(path.node());
        if (number >= 1 && number <= 64)
            strokes |= std::uint64_t{1} << (number - 1);
    }
    return strokes;
}

void CollectParts(const pugi::xml_node& group, char32_t self, std::vector<KanjiVgPart>& parts)
{
    for (const pugi::xml_node& child : group.children("g")) {
        const std::string element = child.attribute("kvg:element").value();
        if (element.empty()) {
            CollectParts(child, self, parts);
            continue;
        }
        const char32_t part = FirstCodePoint(element);
        if (part == 0 || part == self)
            continue;
        const std::uint64_t strokes = StrokesUnder(child);
        const auto seen
            = std::find_if(parts.begin(), parts.end(), [part](const KanjiVgPart& p) { return p.codePoint == part; });
        if (seen != parts.end()) {
            seen->strokes |= strokes; // the second half of a part split in two
            continue;
        }
        parts.push_back(KanjiVgPart{part, FirstCodePoint(child.attribute("kvg:original").value()), strokes});
    }
}

} // namespace

std::string WordMeaning(const EdictEntry& entry)
{
    std::string meaning;
    for (std::size_t i = 0; i < entry.glosses.size() && i < 2; ++i)
        meaning += (i ? "; " : "") + entry.glosses[i];
    return meaning;
}

namespace {

std::vector<LexiconWriter::Word> BestWords(const std::vector<Ranked>& ranked, std::size_t limit)
{
    std::vector<LexiconWriter::Word> words;
    std::set<std::string> writings;
    for (const Ranked& r : ranked) {
        if (words.size() == limit)
            break;
        // One line of EDICT per reading: a writing with three readings is one word here, in its
        // first reading by rank.
        if (!writings.insert(r.entry->writing).second)
            continue;
        words.push_back(MakeWord(*r.entry));
    }
    return words;
}

std::optional<LexiconWriter::Word> BestReadingWord(
    const std::vector<Ranked>& ranked, const LexiconCharacter& c, bool on)
{
    std::vector<std::u32string> forms;
    for (const std::string& reading : on ? c.onReadings : c.kunReadings)
        for (std::u32string& form : ReadingForms(reading, on))
            forms.push_back(std::move(form));
    if (forms.empty())
        return std::nullopt;
    for (const Ranked& r : ranked) {
        if (!r.common)
            break; // the common ones come first
        // An ON reading is shown in a compound (学校), not in the character alone.
        if (on && r.length < 2)
            continue;
        const std::u32string reading = ToU32(r.entry->reading);
        for (const std::u32string& form : forms)
            if (reading.find(form) != std::u32string::npos)
                return MakeWord(*r.entry);
    }
    return std::nullopt;
}

} // namespace

std::vector<LexiconWriter::Word> ChooseWords(const std::vector<LexiconCharacter>& characters, std::size_t character,
    const std::vector<EdictEntry>& entries, const std::vector<std::size_t>& candidates, std::size_t limit)
{
    return BestWords(Rank(TaughtOf(characters), characters[character].codePoint, entries, candidates), limit);
}

std::vector<KanjiVgPart> ReadKanjiVgParts(const std::string& directory, char32_t codePoint, std::size_t* strokeCount)
{
    const std::filesystem::path file = std::filesystem::path(directory) / (HexName(codePoint) + ".svg");
    std::vector<KanjiVgPart> parts;
    if (strokeCount)
        *strokeCount = 0;
    std::error_code ec;
    if (!std::filesystem::exists(file, ec))
        return parts;
    pugi::xml_document document;
    const pugi::xml_parse_result parsed = document.load_file(file.c_str());
    if (!parsed)
        throw BuildError(file.string() + ": cannot read SVG (" + parsed.description() + ")");
    const std::string id = "kvg:" + HexName(codePoint);
    const pugi::xml_node own = document.find_node([&](const pugi::xml_node& node) {
        return std::string_view(node.name()) == "g" && id == node.attribute("id").value();
    });
    if (own) {
        CollectParts(own, codePoint, parts);
        if (strokeCount)
            *strokeCount = own.select_nodes(".//path").size();
    }
    return parts;
}

std::vector<std::uint8_t> BuildLexicon(const std::vector<LexiconCharacter>& characters, std::uint64_t databaseKey,
    const std::vector<EdictEntry>& entries, const std::string& partsDirectory)
{
    std::map<char32_t, std::uint16_t> ids;
    for (std::size_t id = 0; id < characters.size(); ++id)
        ids.emplace(characters[id].codePoint, static_cast<std::uint16_t>(id));
    // Which entries use each character, found in one pass over the dictionary.
    std::vector<std::vector<std::size_t>> candidates(characters.size());
    for (std::size_t index = 0; index < entries.size(); ++index) {
        std::set<std::uint16_t> seen;
        for (char32_t c : CodePointsOf(entries[index].writing)) {
            const auto found = ids.find(c);
            if (found != ids.end() && seen.insert(found->second).second)
                candidates[found->second].push_back(index);
        }
    }
    const TaughtMap taught = TaughtOf(characters);
    LexiconWriter writer(databaseKey);
    for (std::size_t id = 0; id < characters.size(); ++id) {
        const char32_t codePoint = characters[id].codePoint;
        std::size_t strokes = 0;
        const std::vector<KanjiVgPart> found = ReadKanjiVgParts(partsDirectory, codePoint, &strokes);
        // The strokes are the database glyph's only when both drawings have as many.
        const bool sameDrawing = strokes == characters[id].strokeCount;
        std::vector<LexiconWriter::Part> parts;
        for (const KanjiVgPart& part : found) {
            // A part opens its own Kanji Info, or that of the character it is a form of (人 for 亻).
            std::uint16_t target = 0xFFFF;
            if (const auto own = ids.find(part.codePoint); own != ids.end())
                target = own->second;
            else if (const auto original = ids.find(part.original); original != ids.end())
                target = original->second;
            parts.push_back(LexiconWriter::Part{part.codePoint, target, sameDrawing ? part.strokes : 0});
        }
        // Ranked once for the words and both readings' words.
        const std::vector<Ranked> ranked = Rank(taught, codePoint, entries, candidates[id]);
        writer.AddCharacter(codePoint, BestWords(ranked, LexiconFormat::MaxWords), parts,
            BestReadingWord(ranked, characters[id], true), BestReadingWord(ranked, characters[id], false));
    }
    try {
        return writer.Serialize();
    } catch (const std::length_error& error) {
        throw BuildError(std::string("the words do not fit the lexicon format: ") + error.what());
    }
}
