#include "KanjiDic.h"
#include "Utf8.h"

#include <pugixml.hpp>
#include <zlib.h>

#include <cstdlib>

namespace {

std::string ReadMaybeGzipped(const std::string& path)
{
    // gzread passes plain files through unchanged, so both forms read the same way.
    gzFile file = gzopen(path.c_str(), "rb");
    if (!file)
        throw KanjiDicError(path + ": cannot open the dictionary");
    std::string data;
    char buffer[1 << 16];
    int n = 0;
    while ((n = gzread(file, buffer, sizeof buffer)) > 0)
        data.append(buffer, static_cast<std::size_t>(n));
    int error = Z_OK;
    const char* message = gzerror(file, &error);
    const bool failed = n < 0 || (error != Z_OK && error != Z_STREAM_END);
    const std::string reason = failed ? message : "";
    gzclose(file);
    if (failed)
        throw KanjiDicError(path + ": cannot read the dictionary (" + reason + ")");
    return data;
}

int ToInt(const char* text)
{
    return static_cast<int>(std::strtol(text, nullptr, 10));
}

} // namespace

char32_t FirstCodePoint(const std::string& utf8)
{
    if (utf8.empty())
        return 0;
    const Utf8Sequence first = DecodeUtf8At(utf8, 0);
    return first.length ? first.codePoint : 0;
}

std::map<char32_t, KanjiDicEntry> ReadKanjiDic(const std::string& path, const std::string& language)
{
    const std::string data = ReadMaybeGzipped(path);
    pugi::xml_document document;
    const pugi::xml_parse_result parsed = document.load_buffer(data.data(), data.size());
    if (!parsed)
        throw KanjiDicError(path + ": not a readable KANJIDIC2 file (" + parsed.description() + " at offset "
            + std::to_string(parsed.offset) + ")");
    const pugi::xml_node root = document.child("kanjidic2");
    if (!root)
        throw KanjiDicError(path + ": no kanjidic2 element");

    std::map<char32_t, KanjiDicEntry> entries;
    for (pugi::xml_node node : root.children("character")) {
        KanjiDicEntry entry;
        entry.codePoint = FirstCodePoint(node.child_value("literal"));
        if (entry.codePoint == 0)
            continue;
        const pugi::xml_node misc = node.child("misc");
        entry.grade = ToInt(misc.child_value("grade"));
        entry.strokeCount = ToInt(misc.child_value("stroke_count"));
        entry.frequency = ToInt(misc.child_value("freq"));
        std::vector<std::string> englishMeanings;
        for (pugi::xml_node group : node.child("reading_meaning").children("rmgroup")) {
            for (pugi::xml_node reading : group.children("reading")) {
                const std::string type = reading.attribute("r_type").value();
                if (type == "ja_on")
                    entry.onReadings.emplace_back(reading.child_value());
                else if (type == "ja_kun")
                    entry.kunReadings.emplace_back(reading.child_value());
            }
            for (pugi::xml_node meaning : group.children("meaning")) {
                const pugi::xml_attribute lang = meaning.attribute("m_lang");
                const bool english = !lang || std::string(lang.value()) == "en";
                if (language == "en" ? english : lang && language == lang.value())
                    entry.meanings.emplace_back(meaning.child_value());
                else if (english)
                    englishMeanings.emplace_back(meaning.child_value());
            }
        }
        // A character without a meaning in the language keeps its English one: better than none.
        if (entry.meanings.empty())
            entry.meanings = std::move(englishMeanings);
        entries[entry.codePoint] = std::move(entry);
    }
    return entries;
}
