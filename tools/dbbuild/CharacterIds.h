#pragma once

#include <map>
#include <string>
#include <vector>

/// The id each character has in the database, kept in the repository so that a character keeps
/// its id whatever data version or machine builds the database: learners' progress and history
/// name characters by id. One line per id, in id order: the code point in hex, then the
/// character (for the reader); lines starting with '#' are comments.
struct CharacterIdTable {
    std::vector<char32_t> codePoints; ///< by id; 0 for an id no longer given to a character
};

/// Reads a table; throws BuildError naming the line of a malformed one (a code point given
/// twice included).
CharacterIdTable ReadCharacterIds(const std::string& path);
/// Writes a table (the characters of a build, by id).
void WriteCharacterIds(const std::string& path, const std::vector<char32_t>& codePoints);

/// The ids of `characters` (in the order the build meets them): a character of `table` keeps
/// its id; a new one takes the next free id after the table's, in the order met. The result is
/// by id, 0 for a table's id whose character is not in this build.
std::vector<char32_t> AssignCharacterIds(const CharacterIdTable& table, const std::vector<char32_t>& characters);
