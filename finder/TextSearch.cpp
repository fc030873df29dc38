#include "TextSearch.h"

#include "CharacterDatabase.h"
#include "Lexicon.h"
#include "Utf8.h"

#include <algorithm>
#include <cctype>
#include <unordered_map>

namespace {

std::u32string Decode(const std::string& text)
{
    const std::vector<char32_t> points = CodePointsOf(text);
    return std::u32string(points.begin(), points.end());
}

std::string Lower(std::string text)
{
    for (char& c : text)
        c = static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
    return text;
}

std::string Trim(const std::string& text)
{
    const auto begin = text.find_first_not_of(" \t\r\n");
    if (begin == std::string::npos)
        return {};
    return text.substr(begin, text.find_last_not_of(" \t\r\n") - begin + 1);
}

/// The readings of a database text: separated by the ideographic comma (or a plain one).
std::vector<std::u32string> Readings(const char* text)
{
    std::vector<std::u32string> out;
    if (!text)
        return out;
    std::u32string current;
    for (char32_t c : Decode(text)) {
        if (c == U'、' || c == U',' || c == U' ') {
            if (!current.empty())
                out.push_back(current);
            current.clear();
        } else {
            current += c;
        }
    }
    if (!current.empty())
        out.push_back(current);
    return out;
}

bool IsKana(char32_t c)
{
    return (c >= 0x3041 && c <= 0x309F) || (c >= 0x30A1 && c <= 0x30FF);
}

} // namespace

std::u32string TextSearch::KanaKey(const std::u32string& text)
{
    std::u32string key;
    for (char32_t c : text) {
        if (c == U'.' || c == U'-' || c == U'．' || c == U'・' || c == U'－')
            continue;
        if (c >= 0x30A1 && c <= 0x30F6)
            c -= 0x60; // katakana to hiragana
        key += c;
    }
    return key;
}

TextSearch::TextSearch(CharacterDatabase& database, const Lexicon* lexicon)
{
    std::unordered_map<std::uint16_t, std::uint32_t> order;
    std::uint32_t next = 0;
    for (std::uint16_t c = 0; c < database.CategoryCount(); ++c) {
        const auto category = database.LoadCategory(c);
        for (std::uint16_t id : category->Characters())
            order.emplace(id, next++);
    }
    for (std::uint16_t id = 0; id < database.CharacterCount(); ++id) {
        if (!database.CharacterExists(id))
            continue;
        const auto character = database.LoadCharacter(id);
        Entry e;
        e.id = id;
        const auto at = order.find(id);
        e.order = at != order.end() ? at->second : 0xFFFFFFFF;
        e.literal = lexicon ? lexicon->CodePoint(id) : 0;
        for (const std::u32string& r : Readings(character->OnReading()))
            e.readings.push_back(KanaKey(r));
        for (const std::u32string& r : Readings(character->KunReading())) {
            e.readings.push_back(KanaKey(r));
            const auto dot = r.find(U'.');
            if (dot != std::u32string::npos)
                e.stems.push_back(KanaKey(r.substr(0, dot)));
        }
        const std::string meaning = Lower(character->Meaning() ? character->Meaning() : "");
        std::string item, word;
        auto endWord = [&] {
            if (!word.empty())
                e.words.push_back(word);
            word.clear();
        };
        for (char c : meaning + ",") {
            if (c == ',' || c == ';') {
                endWord();
                if (!Trim(item).empty())
                    e.meanings.push_back(Trim(item));
                item.clear();
                continue;
            }
            item += c;
            if (std::isalnum(static_cast<unsigned char>(c)) || c == '\'' )
                word += c;
            else
                endWord();
        }
        m_entries.push_back(std::move(e));
    }
    std::sort(m_entries.begin(), m_entries.end(), [](const Entry& a, const Entry& b) { return a.order < b.order; });
}

std::vector<TextSearch::Result> TextSearch::Find(const std::string& raw) const
{
    const std::string query = Trim(raw);
    std::vector<Result> found;
    if (query.empty())
        return found;
    const std::u32string points = Decode(query);
    const bool kana = std::all_of(points.begin(), points.end(),
        [](char32_t c) { return IsKana(c) || c == U'.' || c == U'-' || c == U'．' || c == U'・'; });
    const std::u32string key = KanaKey(points);
    const std::string lower = Lower(query);
    for (const Entry& e : m_entries) {
        int best = 99;
        if (points.size() == 1 && e.literal == points[0])
            best = static_cast<int>(Match::Literal);
        else if (kana && !key.empty()) {
            for (const std::u32string& r : e.readings)
                if (r == key)
                    best = std::min(best, static_cast<int>(Match::Exact));
                else if (r.size() > key.size() && r.compare(0, key.size(), key) == 0)
                    best = std::min(best, static_cast<int>(Match::Prefix));
            for (const std::u32string& s : e.stems)
                if (s == key)
                    best = std::min(best, static_cast<int>(Match::Word));
        } else if (!kana) {
            for (const std::string& m : e.meanings)
                if (m == lower)
                    best = std::min(best, static_cast<int>(Match::Exact));
            for (const std::string& w : e.words)
                if (w == lower)
                    best = std::min(best, static_cast<int>(Match::Word));
                else if (lower.size() >= 3 && w.size() > lower.size() && w.compare(0, lower.size(), lower) == 0)
                    best = std::min(best, static_cast<int>(Match::Prefix));
        }
        if (best != 99)
            found.push_back({e.id, static_cast<Match>(best)});
    }
    // The entries are in teaching order already: a stable sort keeps it among equals.
    std::stable_sort(found.begin(), found.end(), [](const Result& a, const Result& b) { return a.match < b.match; });
    return found;
}
