#include "LearnerFile.h"

#include "AtomicFile.h"
#include "CharacterDatabase.h"
#include "DatabaseLoadException.h"
#include "TextRules.h"
#include "UserRecordXml.h"
#include "XmlText.h"

#include <pugixml.hpp>

#include <cstring>
#include <filesystem>
#include <fstream>
#include <sstream>

namespace LearnerFile {

namespace {

constexpr const char* RootName = "ZavorenLearner";
constexpr unsigned Version = 1;
/// A learner's file is small (ten years of history is a few megabytes); larger ones are refused
/// before they are read.
constexpr std::uintmax_t MaxFileBytes = 64u * 1024 * 1024;
/// Deeper nesting than a learner's file ever has is refused.
constexpr int MaxDepth = 16;

/// Every category and character id of the record is a plain number of `database`.
bool FitsDatabase(const pugi::xml_node& user, CharacterDatabase& database)
{
    for (pugi::xml_node progress : user.children("Progress")) {
        unsigned category = 0;
        if (!ParsePlainNumber(progress.attribute("categoryId").value(), category) || category >= database.CategoryCount())
            return false;
        for (const char* list : {"Learned", "Untested"})
            for (pugi::xml_node character : progress.child(list).children("Character")) {
                unsigned id = 0;
                if (!ParsePlainNumber(character.attribute("id").value(), id) || !database.CharacterExists(static_cast<std::uint16_t>(id)))
                    return false;
            }
    }
    return true;
}

} // namespace

bool Export(
    const std::string& path, User& learner, const std::vector<LearnerEvent>& history, std::uint16_t categories)
{
    std::string text;
    try {
        pugi::xml_document document;
        pugi::xml_node root = document.append_child(RootName);
        root.append_attribute("version") = Version;
        root.append_attribute("categories") = static_cast<unsigned>(categories);
        pugi::xml_node user = root.append_child("User");
        user.append_attribute("name") = learner.Name() ? learner.Name() : "";
        WriteUserRecord(user, learner, categories, history);
        text = DocumentText(document);
    } catch (const std::bad_alloc&) {
        return false;
    }
    return ReplaceFileAtomically(path, text) == FileWrite::Written;
}

Imported Import(const std::string& path, CharacterDatabase& database)
{
    Imported result;
    try {
        std::error_code error;
        if (!std::filesystem::is_regular_file(path, error)) {
            result.problem = Problem::CannotRead;
            return result;
        }
        if (std::filesystem::file_size(path, error) > MaxFileBytes) {
            result.problem = Problem::NotAnExport;
            return result;
        }
        std::ifstream file(path, std::ios::binary);
        if (!file) {
            result.problem = Problem::CannotRead;
            return result;
        }
        std::ostringstream content;
        content << file.rdbuf();
        const std::string text = content.str();
        pugi::xml_document document;
        if (!document.load_buffer(text.data(), text.size(), pugi::parse_default, pugi::encoding_utf8)) {
            // Not XML at all is another file; XML that breaks off is a damaged export.
            result.problem = text.find(RootName) != std::string::npos ? Problem::Damaged : Problem::NotAnExport;
            return result;
        }
        const pugi::xml_node root = document.document_element();
        unsigned version = 0;
        if (std::strcmp(root.name(), RootName) != 0 || !ParsePlainNumber(root.attribute("version").value(), version)
            || version != Version) {
            result.problem = Problem::NotAnExport;
            return result;
        }
        const bool tooDeep = NestedAtLeast(document, MaxDepth);
        const pugi::xml_node user = root.child("User");
        const std::string name = user.attribute("name").value();
        unsigned categories = 0;
        if (tooDeep || !user || name.empty() || name.find('\'') != std::string::npos
            || !ParsePlainNumber(root.attribute("categories").value(), categories)) {
            result.problem = Problem::Damaged;
            return result;
        }
        result.fileCategories = static_cast<std::uint16_t>(categories);
        if (categories != database.CategoryCount()) {
            result.problem = Problem::OtherDatabase;
            return result;
        }
        if (!FitsDatabase(user, database)) {
            result.problem = Problem::Damaged;
            return result;
        }
        // Events are read as the store reads them: unreadable ones are left out.
        auto learner = std::make_unique<User>();
        learner->SetName(name);
        ReadUserRecord(user, *learner);
        result.learner = std::move(learner);
    } catch (const std::bad_alloc&) {
        result.problem = Problem::Damaged;
    } catch (const ZavorenCommon::DatabaseLoadException&) {
        result.problem = Problem::Damaged;
    } catch (const std::filesystem::filesystem_error&) {
        result.problem = Problem::CannotRead;
    }
    return result;
}

} // namespace LearnerFile
