#pragma once

#include "CharacterDatabase.h"

#include <ostream>
#include <string>
#include <string_view>
#include <vector>

/// Writes what the reader sees: counts, categories, characters and elements. Holes are shown as
/// null. Reader failures propagate as DatabaseLoadException.
void DumpDatabase(CharacterDatabase& database, std::ostream& out, bool json);

/// Checks that every character's element exists and has a first form with strokes, and that
/// every category member exists. Returns one line per problem; empty when the file is sound.
std::vector<std::string> ValidateDatabase(CharacterDatabase& database);

/// Whether the bytes are well-formed UTF-8.
bool IsValidUtf8(std::string_view text);
