#include "CharacterIds.h"

#include "BuildError.h"
#include "Utf8.h"

#include <algorithm>
#include <cstdio>
#include <fstream>
#include <set>
#include <sstream>
#include <unordered_map>

CharacterIdTable ReadCharacterIds(const std::string& path)
{
    std::ifstream file(path);
    if (!file)
        throw BuildError(path + ": cannot read the character id table");
    CharacterIdTable table;
    std::set<char32_t> seen;
    std::string line;
    for (int number = 1; std::getline(file, line); ++number) {
        if (line.empty() || line[0] == '#')
            continue;
        std::istringstream fields(line);
        std::string hex;
        fields >> hex;
        std::size_t used = 0;
        unsigned long value = 0;
        try {
            value = std::stoul(hex, &used, 16);
        } catch (const std::exception&) {
            used = 0;
        }
        if (used != hex.size() || hex.empty() || value > 0x10FFFF)
            throw BuildError(path + ": line " + std::to_string(number) + ": not a code point in hex");
        const char32_t codePoint = static_cast<char32_t>(value);
        if (codePoint != 0 && !seen.insert(codePoint).second)
            throw BuildError(path + ": line " + std::to_string(number) + ": " + hex + " has an id already");
        table.codePoints.push_back(codePoint);
    }
    return table;
}

void WriteCharacterIds(const std::string& path, const std::vector<char32_t>& codePoints)
{
    std::ofstream file(path, std::ios::trunc);
    file << "# The id of each character of the database: line N (comments left out) is id N - 1.\n"
            "# A character keeps its id for good; a new one is added at the end; an id whose\n"
            "# character left the data stays, as 0, never to be given again.\n";
    for (char32_t codePoint : codePoints) {
        char hex[16];
        std::snprintf(hex, sizeof hex, "%04x", static_cast<unsigned>(codePoint));
        file << hex;
        if (codePoint != 0)
            file << ' ' << EncodeUtf8(codePoint);
        file << '\n';
    }
    if (!file)
        throw BuildError(path + ": cannot write the character id table");
}

std::vector<char32_t> AssignCharacterIds(const CharacterIdTable& table, const std::vector<char32_t>& characters)
{
    std::unordered_map<char32_t, std::size_t> known;
    for (std::size_t id = 0; id < table.codePoints.size(); ++id)
        if (table.codePoints[id] != 0)
            known.emplace(table.codePoints[id], id);
    std::vector<char32_t> byId(table.codePoints.size(), 0);
    std::size_t last = 0; // one past the highest id given
    for (char32_t codePoint : characters) {
        auto found = known.find(codePoint);
        if (found != known.end()) {
            byId[found->second] = codePoint;
            last = std::max(last, found->second + 1);
        }
    }
    for (char32_t codePoint : characters)
        if (!known.count(codePoint)) {
            byId.push_back(codePoint);
            last = byId.size();
        }
    // Ids after the last one given are not written: the database ends there.
    byId.resize(last);
    return byId;
}
