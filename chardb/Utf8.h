#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

/// One UTF-8 sequence read from a text.
struct Utf8Sequence {
    char32_t codePoint = 0;
    /// Bytes it takes; 0 when the bytes there are not a well-formed sequence (cut short, a bad
    /// continuation byte, an overlong form, a surrogate, past U+10FFFF).
    std::size_t length = 0;
};

/// Reads the sequence that starts at byte `at` of `text` (which must be inside it).
Utf8Sequence DecodeUtf8At(std::string_view text, std::size_t at);

/// Whether the whole text is well-formed UTF-8.
bool IsUtf8(std::string_view text);

/// The code points of a text, up to its first sequence that is not well-formed.
std::vector<char32_t> CodePointsOf(std::string_view text);

/// A code point as UTF-8.
std::string EncodeUtf8(char32_t codePoint);

/// Whether the code point is a CJK ideograph: a kanji, as opposed to kana, signs and letters.
bool IsKanji(char32_t codePoint);
