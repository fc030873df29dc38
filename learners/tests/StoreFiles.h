#pragma once

// What the learner store tests share: whole files read and written, a temporary folder of their
// own, a small character database written into it, and one value of a query on an SQLite file
// read by a connection of the test's own.

#include "DatabaseWriter.h"

#include <sqlite3.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>

namespace StoreFiles {

namespace fs = std::filesystem;

inline std::string ReadText(const fs::path& path)
{
    std::ifstream file(path, std::ios::binary);
    std::ostringstream text;
    text << file.rdbuf();
    return text.str();
}

inline void WriteText(const fs::path& path, const std::string& text)
{
    std::ofstream(path, std::ios::binary | std::ios::trunc) << text;
}

/// A new folder under the system's temporary folder, named after `prefix`.
inline fs::path MakeTemporaryFolder(const std::string& prefix)
{
    std::string pattern = (fs::temp_directory_path() / (prefix + "-XXXXXX")).string();
    return mkdtemp(pattern.data());
}

/// Writes at `path` a database of `categories` categories ("Category 0"…), each holding the same
/// `characters` characters of one dot stroke.
inline void WriteSmallDatabase(const fs::path& path, int categories, int characters = 1)
{
    DatabaseWriter writer;
    Form form(109, 109);
    form.AppendStroke(Stroke(Point{1, 1}));
    const auto element = writer.AddStrokeElement(form);
    std::vector<std::uint16_t> ids;
    for (int i = 0; i < characters; ++i)
        ids.push_back(writer.AddCharacter(element, "a", "b", "c"));
    for (int i = 0; i < categories; ++i)
        writer.AddCategory("Category " + std::to_string(i), ids);
    const auto bytes = writer.Serialize();
    std::ofstream(path, std::ios::binary)
        .write(reinterpret_cast<const char*>(bytes.data()), static_cast<std::streamsize>(bytes.size()));
}

/// The first column of the first row that `sql` gives on the SQLite file at `path`; the
/// failure's text in brackets when there is none.
inline std::string QueryValue(const fs::path& path, const char* sql)
{
    sqlite3* db = nullptr;
    std::string value = "(cannot open)";
    if (sqlite3_open_v2(path.c_str(), &db, SQLITE_OPEN_READWRITE, nullptr) == SQLITE_OK) {
        sqlite3_stmt* s = nullptr;
        value = "(" + std::string(sqlite3_errmsg(db)) + ")";
        if (sqlite3_prepare_v2(db, sql, -1, &s, nullptr) == SQLITE_OK) {
            if (sqlite3_step(s) == SQLITE_ROW && sqlite3_column_text(s, 0))
                value = reinterpret_cast<const char*>(sqlite3_column_text(s, 0));
            else
                value = "(" + std::string(sqlite3_errmsg(db)) + ")";
        }
        sqlite3_finalize(s);
    }
    sqlite3_close(db);
    return value;
}

} // namespace StoreFiles
