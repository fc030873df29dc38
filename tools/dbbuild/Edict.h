#pragma once

#include <stdexcept>
#include <string>
#include <vector>

/// The dictionary file could not be read or decoded; the message names the file (and the line).
class EdictError : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

/// One writing of an EDICT entry, with its reading.
struct EdictEntry {
    std::string writing; ///< UTF-8
    std::string reading; ///< kana, UTF-8; the writing itself for a word written in kana
    std::vector<std::string> glosses; ///< English, part-of-speech and other tags removed
    bool common = false; ///< marked "(P)"
    /// Its first sense is a suffix, a prefix or a counter (人 じん "-ian"), not a word on its own.
    bool affix = false;
};

/// Reads an EDICT file (EUC-JP, one entry per line: "writing [reading] /gloss/.../(P)/"),
/// skipping its first line, which describes the file. Throws EdictError.
std::vector<EdictEntry> ReadEdict(const std::string& path);

/// Parses one line, already decoded to UTF-8, into one entry per writing ("右手;右て [みぎて]"
/// gives two, each with the first reading; tags after a writing or a reading, like "(P)" or
/// "(iK)", are dropped), appended to `entries`; false when it is not an entry.
bool ParseEdictLine(const std::string& line, std::vector<EdictEntry>& entries);

/// A gloss without the tags in parentheses or braces before it ("(n) (1) learning" gives
/// "learning"); only EDICT's own tags are taken away, so "(in) debt" keeps its words.
std::string WithoutTags(const std::string& gloss, std::vector<std::string>* tags = nullptr);
