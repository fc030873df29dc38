#pragma once

#include <cstddef>
#include <cstdint>

/// The layout of the `lexicon` file, shared by its reader and its writer (see Lexicon.cpp).
namespace LexiconFormat {

inline constexpr char Magic[8] = {'Z', 'A', 'V', 'L', 'E', 'X', '\r', '\n'};
inline constexpr std::uint32_t Version = 1;
inline constexpr std::size_t HeaderSize = 48;
inline constexpr std::size_t CharacterSize = 24;
inline constexpr std::size_t WordSize = 8;
inline constexpr std::size_t ReferenceSize = 4;
inline constexpr std::size_t PartSize = 16;
/// Words kept for one character.
inline constexpr std::size_t MaxWords = 8;
/// "No word" in a character's reading-word fields.
inline constexpr std::uint32_t NoWord = 0xFFFFFFFF;
/// The high bit of a word's meaning length marks a common word.
inline constexpr std::uint16_t CommonBit = 0x8000;
inline constexpr std::size_t MaxMeaningBytes = 0x7FFF;
/// Larger files are not lexicons (the standard one is under 1 MB).
inline constexpr std::uint64_t MaxFileSize = 64u << 20;

/// FNV-1a, 32 bits, of the bytes after the header.
inline std::uint32_t Checksum(const std::uint8_t* data, std::size_t size)
{
    std::uint32_t hash = 0x811c9dc5u;
    for (std::size_t i = 0; i < size; ++i) {
        hash ^= data[i];
        hash *= 0x01000193u;
    }
    return hash;
}

} // namespace LexiconFormat
