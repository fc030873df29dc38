#include "Edict.h"

#include <algorithm>
#include <cerrno>
#include <fstream>
#include <iconv.h>
#include <iterator>
#include <set>
#include <sstream>

namespace {

/// EDICT's own tags: parts of speech, usage, field and writing notes.
const std::set<std::string, std::less<>> Tags = {"abbr", "adj", "adj-f", "adj-i", "adj-ix", "adj-ku", "adj-na",
    "adj-nari", "adj-no", "adj-pn", "adj-shiku", "adj-t", "adv", "adv-to", "anat", "arch", "archit", "astron", "ateji",
    "aux", "aux-adj", "aux-v", "baseb", "biol", "bot", "Buddh", "bus", "chem", "Christn", "col", "comp", "conj", "cop",
    "cop-da", "ctr", "dated", "derog", "eK", "econ", "ek", "engr", "exp", "fam", "fem", "finc", "food", "geol", "geom",
    "gikun", "hist", "hon", "hum", "iK", "id", "ik", "int", "io", "joc", "ksb", "ktb", "kyb", "kyu", "law", "ling",
    "MA", "mahj", "male", "male-sl", "math", "med", "mil", "music", "n", "n-adv", "n-pr", "n-pref", "n-suf", "n-t",
    "nab", "num", "oK", "obs", "obsc", "ok", "on-mim", "osb", "P", "physics", "pn", "poet", "pol", "pref", "proverb",
    "prt", "quote", "rare", "rkb", "sens", "shogi", "sl", "sports", "suf", "sumo", "thb", "tsb", "tsug", "uK", "uk",
    "unc", "v-unspec", "v1", "v1-s", "v2a-s", "v4h", "v4r", "v5", "v5aru", "v5b", "v5g", "v5k", "v5k-s", "v5m", "v5n",
    "v5r", "v5r-i", "v5s", "v5t", "v5u", "v5u-s", "v5uru", "vi", "vk", "vn", "vr", "vs", "vs-c", "vs-i", "vs-s", "vt",
    "vulg", "vz", "X", "yoji", "zool"};

bool IsTagList(const std::string& inside)
{
    // "n,vs", "2", "v2d-s": every comma-separated item a tag or a sense number.
    std::stringstream items(inside);
    std::string item;
    bool any = false;
    while (std::getline(items, item, ',')) {
        any = true;
        const bool number
            = !item.empty() && std::all_of(item.begin(), item.end(), [](char c) { return c >= '0' && c <= '9'; });
        const bool archaicVerb = item.size() >= 3 && item.rfind("v2", 0) == 0; // v2a-s … v2z-s
        if (!number && !archaicVerb && !Tags.count(item))
            return false;
    }
    return any;
}

std::string Decode(const std::string& path, const std::string& bytes)
{
    iconv_t converter = iconv_open("UTF-8", "EUC-JP");
    if (converter == reinterpret_cast<iconv_t>(-1))
        throw EdictError(path + ": this system cannot decode EUC-JP");
    std::string out(bytes.size() * 2 + 16, '\0');
    char* in = const_cast<char*>(bytes.data());
    std::size_t inLeft = bytes.size();
    char* to = out.data();
    std::size_t toLeft = out.size();
    const std::size_t result = iconv(converter, &in, &inLeft, &to, &toLeft);
    const int error = errno;
    iconv_close(converter);
    if (result == static_cast<std::size_t>(-1)) {
        const std::size_t at = bytes.size() - inLeft;
        const auto line = 1 + std::count(bytes.begin(), bytes.begin() + static_cast<std::ptrdiff_t>(at), '\n');
        throw EdictError(path + ": line " + std::to_string(line) + ": "
            + (error == E2BIG ? std::string("too long to decode") : std::string("not EUC-JP text")));
    }
    out.resize(out.size() - toLeft);
    return out;
}

void Trim(std::string& text)
{
    const auto first = text.find_first_not_of(' ');
    if (first == std::string::npos) {
        text.clear();
        return;
    }
    text.erase(0, first);
    text.erase(text.find_last_not_of(' ') + 1);
}

} // namespace

std::string WithoutTags(const std::string& gloss, std::vector<std::string>* tags)
{
    std::string rest = gloss;
    Trim(rest);
    while (!rest.empty() && (rest[0] == '(' || rest[0] == '{')) {
        const char close = rest[0] == '(' ? ')' : '}';
        const auto end = rest.find(close);
        if (end == std::string::npos)
            break;
        // Braces hold field tags ({comp}, {food}); parentheses may hold words, so only tags go.
        const std::string inside = rest.substr(1, end - 1);
        if (close == ')' && !IsTagList(inside))
            break;
        if (tags) {
            std::stringstream items(inside);
            std::string item;
            while (std::getline(items, item, ','))
                tags->push_back(item);
        }
        rest.erase(0, end + 1);
        Trim(rest);
    }
    return rest;
}

namespace {

/// The items of "a(P);b(iK)": "a" and "b".
std::vector<std::string> Alternatives(const std::string& list)
{
    std::vector<std::string> items;
    std::stringstream parts(list);
    std::string item;
    while (std::getline(parts, item, ';')) {
        const auto tag = item.find('(');
        if (tag != std::string::npos)
            item.erase(tag);
        Trim(item);
        if (!item.empty())
            items.push_back(item);
    }
    return items;
}

} // namespace

bool ParseEdictLine(const std::string& line, std::vector<EdictEntry>& entries)
{
    const auto firstSlash = line.find(" /");
    if (firstSlash == std::string::npos)
        return false;
    const std::string head = line.substr(0, firstSlash);
    std::vector<std::string> writings;
    std::vector<std::string> readings;
    const auto open = head.find(" [");
    if (open != std::string::npos) {
        const auto close = head.find(']', open);
        if (close == std::string::npos)
            return false;
        writings = Alternatives(head.substr(0, open));
        readings = Alternatives(head.substr(open + 2, close - open - 2));
    } else {
        writings = Alternatives(head);
        readings = writings;
    }
    if (writings.empty() || readings.empty())
        return false;
    EdictEntry entry;
    std::stringstream fields(line.substr(firstSlash + 2));
    std::string field;
    bool first = true;
    while (std::getline(fields, field, '/')) {
        if (field == "(P)") {
            entry.common = true;
            continue;
        }
        std::vector<std::string> tags;
        std::string gloss = WithoutTags(field, &tags);
        if (first && !gloss.empty()) {
            first = false;
            for (const std::string& tag : tags)
                if (tag == "suf" || tag == "pref" || tag == "n-suf" || tag == "n-pref" || tag == "ctr")
                    entry.affix = true;
        }
        if (!gloss.empty())
            entry.glosses.push_back(std::move(gloss));
    }
    for (std::size_t i = 0; i < writings.size(); ++i) {
        entry.writing = writings[i];
        // A word written in kana reads as it is written; otherwise, the first reading.
        entry.reading = open == std::string::npos ? writings[i] : readings.front();
        entries.push_back(entry);
    }
    return true;
}

std::vector<EdictEntry> ReadEdict(const std::string& path)
{
    std::ifstream file(path, std::ios::binary);
    if (!file)
        throw EdictError(path + ": cannot read the dictionary");
    const std::string bytes((std::istreambuf_iterator<char>(file)), std::istreambuf_iterator<char>());
    if (file.bad())
        throw EdictError(path + ": cannot read the dictionary");
    const std::string text = Decode(path, bytes);
    std::vector<EdictEntry> entries;
    std::stringstream lines(text);
    std::string line;
    std::size_t number = 0;
    while (std::getline(lines, line)) {
        if (++number == 1)
            continue; // the file's own description, written as an entry
        if (!line.empty() && line.back() == '\r')
            line.pop_back();
        ParseEdictLine(line, entries);
    }
    if (entries.empty())
        throw EdictError(path + ": no dictionary entries");
    return entries;
}
