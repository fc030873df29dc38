#pragma once

#include <cstdint>
#include <map>
#include <stdexcept>
#include <string>
#include <vector>

/// The dictionary file could not be read or parsed; the message names the file.
class KanjiDicError : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

/// What the builder takes from one KANJIDIC2 character entry.
struct KanjiDicEntry {
    char32_t codePoint = 0;
    int grade = 0; ///< 0 when the entry has none
    int strokeCount = 0; ///< the first stroke count given
    int frequency = 0; ///< frequency rank, 0 when unranked
    std::vector<std::string> onReadings;
    std::vector<std::string> kunReadings;
    std::vector<std::string> meanings; ///< in the language asked for
};

/// Reads KANJIDIC2 XML, gzipped or plain. `language` is "en" (meanings without m_lang) or a
/// two-letter m_lang value such as "fr". Entries are keyed by code point.
std::map<char32_t, KanjiDicEntry> ReadKanjiDic(const std::string& path, const std::string& language);

/// Decodes the first code point of a UTF-8 text; 0 when it is not valid UTF-8.
char32_t FirstCodePoint(const std::string& utf8);
