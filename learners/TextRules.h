#pragma once

#include <cstdint>
#include <string_view>

/// Parses an id the way the learner file has always been read: leading blanks skipped, an
/// optional sign, decimal digits up to the first other character (none gives 0), then cut to
/// the low 16 bits. "70000" reads as 4464, "-1" as 65535, "abc" as 0.
std::uint16_t ParseId(std::string_view text);

/// Reads a number as the program writes its own (event fields, learner files): one to five
/// decimal digits and nothing else, at most 65535. False for anything else.
bool ParsePlainNumber(std::string_view text, unsigned& value);

/// Compares two names without regard to ASCII letter case (other bytes compare exactly).
bool EqualsIgnoringAsciiCase(std::string_view a, std::string_view b);
