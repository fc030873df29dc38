#include "DatabaseBuilder.h"

#include "CharacterIds.h"

#include "DatabaseKey.h"
#include "DatabaseWriter.h"
#include "KanjiDic.h"
#include "SvgPath.h"
#include "Utf8.h"

#include <pugixml.hpp>

#include <algorithm>
#include <cctype>
#include <cstdio>
#include <cstring>
#include <filesystem>
#include <map>
#include <set>

namespace {

constexpr std::uint16_t KanjiVgBox = 109;

struct CategoryDefinition {
    const char* name;
    std::vector<int> grades;
};

const CategoryDefinition StandardCategories[] = {
    {"Grade 1", {1}},
    {"Grade 2", {2}},
    {"Grade 3", {3}},
    {"Grade 4", {4}},
    {"Grade 5", {5}},
    {"Grade 6", {6}},
    {"Secondary school", {8}},
    {"Jinmeiy\xC5\x8D", {9, 10}},
};

std::string HexName(char32_t codePoint)
{
    char name[16];
    std::snprintf(name, sizeof name, "%05x.svg", static_cast<unsigned>(codePoint));
    return name;
}

void CollectPaths(pugi::xml_node node, std::vector<pugi::xml_node>& paths)
{
    for (pugi::xml_node child : node.children()) {
        if (child.type() != pugi::node_element)
            continue;
        const char* name = child.name();
        const char* colon = std::strchr(name, ':');
        if (std::strcmp(colon ? colon + 1 : name, "path") == 0)
            paths.push_back(child);
        CollectPaths(child, paths);
    }
}

/// Teaching order: ranked by frequency first, then unranked; ties by strokes, then code point.
bool TeachesBefore(const KanjiDicEntry& a, const KanjiDicEntry& b)
{
    const int ra = a.frequency > 0 ? a.frequency : 1 << 30;
    const int rb = b.frequency > 0 ? b.frequency : 1 << 30;
    if (ra != rb)
        return ra < rb;
    if (a.strokeCount != b.strokeCount)
        return a.strokeCount < b.strokeCount;
    return a.codePoint < b.codePoint;
}

} // namespace

std::string Utf8(char32_t c)
{
    return EncodeUtf8(c);
}

std::string JoinLimited(const std::vector<std::string>& items, const std::string& separator, std::size_t limit)
{
    std::string out;
    for (const std::string& item : items) {
        const std::size_t added = (out.empty() ? 0 : separator.size()) + item.size();
        if (out.size() + added > limit)
            break;
        if (!out.empty())
            out += separator;
        out += item;
    }
    return out;
}

namespace {

/// The stroke number at the end of a KanjiVG path id ("kvg:0738b-VtLst-s4": 4), or 0.
int StrokeNumber(const char* id)
{
    const char* s = std::strrchr(id, 's');
    if (!s || s == id || s[-1] != '-' || !s[1])
        return 0;
    int number = 0;
    for (const char* c = s + 1; *c; ++c) {
        if (*c < '0' || *c > '9')
            return 0;
        number = number * 10 + (*c - '0');
    }
    return number;
}

/// The strokes of one KanjiVG drawing, in their order: by the number each path's id gives it
/// where every path has one (a full drawing nests its paths in groups), else in document order.
Form LoadDrawing(const std::filesystem::path& file, char32_t codePoint)
{
    pugi::xml_document document;
    const pugi::xml_parse_result parsed = document.load_file(file.c_str());
    if (!parsed)
        throw BuildError(file.string() + ": cannot read SVG (" + parsed.description() + ")");
    std::vector<pugi::xml_node> paths;
    CollectPaths(document, paths);
    const bool numbered = std::all_of(paths.begin(), paths.end(),
        [](const pugi::xml_node& path) { return StrokeNumber(path.attribute("id").value()) > 0; });
    if (numbered)
        std::stable_sort(paths.begin(), paths.end(), [](const pugi::xml_node& a, const pugi::xml_node& b) {
            return StrokeNumber(a.attribute("id").value()) < StrokeNumber(b.attribute("id").value());
        });
    Form form(KanjiVgBox, KanjiVgBox);
    for (const pugi::xml_node& path : paths) {
        const char* data = path.attribute("d").value();
        try {
            form.AppendStroke(ParseSvgPath(data));
        } catch (const SvgPathError& error) {
            throw BuildError(
                file.string() + ": character " + Utf8(codePoint) + ": bad path data \"" + data + "\": " + error.what());
        }
    }
    if (form.Strokes().size() > 255)
        throw BuildError(file.string() + ": more than 255 strokes");
    return form;
}

} // namespace

std::optional<Form> LoadKanjiVgGlyph(const std::string& directory, char32_t codePoint)
{
    const std::filesystem::path file = std::filesystem::path(directory) / HexName(codePoint);
    std::error_code ec;
    if (!std::filesystem::exists(file, ec))
        return std::nullopt;
    return LoadDrawing(file, codePoint);
}

bool IsStrokeOrderSuffix(const std::string& suffix)
{
    // Kaisho (the regular script's own shapes), Hyougai, Jinmei and Insatsu (print forms) draw
    // the character otherwise; every other suffix names an order (VtLst: the vertical last).
    if (suffix.empty())
        return false;
    for (const char* style : {"Kaisho", "Hyougai", "Jinmei", "Insatsu"})
        if (suffix.find(style) != std::string::npos)
            return false;
    return std::all_of(
        suffix.begin(), suffix.end(), [](char c) { return std::isalnum(static_cast<unsigned char>(c)); });
}

std::map<char32_t, std::vector<std::string>> FindStrokeOrders(const std::string& directory)
{
    std::map<char32_t, std::vector<std::string>> orders;
    std::error_code ec;
    for (std::filesystem::directory_iterator it(directory, ec), end; !ec && it != end; it.increment(ec)) {
        const std::string name = it->path().filename().string();
        const std::size_t dash = name.find('-');
        if (it->path().extension() != ".svg" || dash == std::string::npos || dash == 0)
            continue;
        const std::string suffix = name.substr(dash + 1, name.size() - dash - 1 - 4);
        if (!IsStrokeOrderSuffix(suffix))
            continue;
        char* digitsEnd = nullptr;
        const unsigned long value = std::strtoul(name.c_str(), &digitsEnd, 16);
        if (digitsEnd != name.c_str() + dash || value == 0 || value > 0x10FFFF)
            continue;
        orders[static_cast<char32_t>(value)].push_back(it->path().filename().string());
    }
    if (ec)
        throw BuildError(directory + ": cannot list the KanjiVG drawings (" + ec.message() + ")");
    // The same order whatever the folder listing gives: the same bytes from the same files.
    for (auto& [codePoint, files] : orders)
        std::sort(files.begin(), files.end());
    return orders;
}

std::vector<std::uint8_t> BuildDatabase(const BuildOptions& options, BuildReport& report)
{
    std::error_code ec;
    if (!std::filesystem::is_directory(options.kanjivgDir, ec))
        throw BuildError(options.kanjivgDir + ": not a folder of KanjiVG SVG files");
    std::map<char32_t, KanjiDicEntry> dictionary;
    try {
        dictionary = ReadKanjiDic(options.kanjidicPath, options.language);
    } catch (const KanjiDicError& error) {
        throw BuildError(error.what());
    }

    struct PlannedCategory {
        std::string name;
        std::vector<const KanjiDicEntry*> members;
    };
    std::vector<PlannedCategory> plan;
    std::set<char32_t> planned;
    for (const CategoryDefinition& definition : StandardCategories) {
        PlannedCategory category{definition.name, {}};
        for (const auto& [cp, entry] : dictionary) {
            if (std::find(definition.grades.begin(), definition.grades.end(), entry.grade) != definition.grades.end()) {
                category.members.push_back(&entry);
                planned.insert(cp);
            }
        }
        plan.push_back(std::move(category));
    }
    std::vector<KanjiDicEntry> otherEntries;
    if (options.allKanji) {
        std::vector<char32_t> others;
        for (const auto& item : std::filesystem::directory_iterator(options.kanjivgDir)) {
            const std::string name = item.path().filename().string();
            if (item.path().extension() != ".svg" || name.find('-') != std::string::npos)
                continue;
            const char32_t cp = static_cast<char32_t>(std::strtoul(name.c_str(), nullptr, 16));
            if (IsKanji(cp) && !planned.count(cp))
                others.push_back(cp);
        }
        otherEntries.reserve(others.size());
        for (char32_t cp : others) {
            auto found = dictionary.find(cp);
            KanjiDicEntry entry = found != dictionary.end() ? found->second : KanjiDicEntry{};
            entry.codePoint = cp;
            otherEntries.push_back(std::move(entry));
        }
        PlannedCategory other{"Other", {}};
        for (const KanjiDicEntry& entry : otherEntries)
            other.members.push_back(&entry);
        plan.push_back(std::move(other));
    }

    // Each category's characters in teaching order, with their glyphs; then the ids they keep.
    struct Member {
        const KanjiDicEntry* entry;
        Form glyph;
        std::vector<Form> orders; ///< the other stroke orders KanjiVG records
    };
    std::map<char32_t, std::vector<std::string>> orderFiles;
    if (!options.ordersDir.empty())
        orderFiles = FindStrokeOrders(options.ordersDir);
    std::vector<std::vector<Member>> members(plan.size());
    std::vector<char32_t> met;
    for (std::size_t c = 0; c < plan.size(); ++c) {
        PlannedCategory& category = plan[c];
        std::sort(category.members.begin(), category.members.end(),
            [](const KanjiDicEntry* a, const KanjiDicEntry* b) { return TeachesBefore(*a, *b); });
        BuildReport::CategoryCount count{category.name, 0, 0};
        for (const KanjiDicEntry* entry : category.members) {
            std::optional<Form> glyph = LoadKanjiVgGlyph(options.kanjivgDir, entry->codePoint);
            if (!glyph || glyph->StrokeCount() == 0) {
                report.leftOut.push_back(entry->codePoint);
                ++count.withoutStrokes;
                continue;
            }
            std::vector<Form> orders;
            if (auto found = orderFiles.find(entry->codePoint); found != orderFiles.end())
                for (const std::string& file : found->second) {
                    Form order = LoadDrawing(std::filesystem::path(options.ordersDir) / file, entry->codePoint);
                    // Another order has the same strokes: a drawing with more or fewer is another
                    // shape of the character and is left out.
                    if (order.StrokeCount() == glyph->StrokeCount())
                        orders.push_back(std::move(order));
                    else
                        report.ordersLeftOut.push_back(file);
                }
            if (!orders.empty()) {
                ++report.withOtherOrders;
                report.otherOrders += orders.size();
            }
            members[c].push_back({entry, std::move(*glyph), std::move(orders)});
            met.push_back(entry->codePoint);
        }
        count.characters = members[c].size();
        report.characters += members[c].size();
        report.categories.push_back(count);
    }
    const std::vector<char32_t> byId = AssignCharacterIds(options.ids, met);
    report.ids = byId;
    struct Placed {
        std::size_t category = 0;
        std::size_t position = 0;
    };
    std::map<char32_t, Placed> placed;
    for (std::size_t c = 0; c < members.size(); ++c)
        for (std::size_t k = 0; k < members[c].size(); ++k)
            placed[members[c][k].entry->codePoint] = {c, k};

    DatabaseWriter writer;
    DatabaseKey key;
    std::map<char32_t, std::uint16_t> idOf;
    for (char32_t codePoint : byId) {
        if (codePoint == 0) {
            // An id whose character left the data: kept with no record, never given again.
            writer.AddMissingCharacter();
            report.built.push_back(LexiconCharacter{});
            continue;
        }
        const Placed at = placed.at(codePoint);
        const Member& member = members[at.category][at.position];
        // Form 0 is the standard order, as it always was; the other orders follow it.
        std::vector<Form> forms{member.glyph};
        forms.insert(forms.end(), member.orders.begin(), member.orders.end());
        const std::uint16_t element = writer.AddStrokeElement(forms);
        const std::string on = JoinLimited(member.entry->onReadings, "\xE3\x80\x81");
        const std::string kun = JoinLimited(member.entry->kunReadings, "\xE3\x80\x81");
        idOf[codePoint] = writer.AddCharacter(element, on, kun, JoinLimited(member.entry->meanings, ", "));
        key.Add(on, kun);
        report.built.push_back(LexiconCharacter{codePoint, static_cast<int>(at.category), static_cast<int>(at.position),
            member.entry->onReadings, member.entry->kunReadings, member.glyph.Strokes().size()});
    }
    for (std::size_t c = 0; c < plan.size(); ++c) {
        std::vector<std::uint16_t> ids;
        for (const Member& member : members[c])
            ids.push_back(idOf.at(member.entry->codePoint));
        writer.AddCategory(plan[c].name, ids);
    }
    report.databaseKey = key.Value();
    try {
        return writer.Serialize();
    } catch (const std::length_error& error) {
        throw BuildError(std::string("the data does not fit the database format: ") + error.what());
    }
}
