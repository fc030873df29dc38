#pragma once

#include <pugixml.hpp>

#include <string>

/// The document as the program writes its XML files: UTF-8, indented by two spaces. `expected`
/// is room to reserve for the text (its size the last time), so that it grows without copies.
std::string DocumentText(const pugi::xml_document& document, std::size_t expected = 0);

/// Whether an element of the document lies `depth` levels deep or deeper (found without
/// recursion, so that a hostile file cannot exhaust the stack).
bool NestedAtLeast(const pugi::xml_document& document, int depth);
