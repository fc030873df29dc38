// The `lexicon` file, little-endian throughout:
//
//   header, 48 bytes
//     0  8 bytes  "ZAVLEX\r\n"
//     8  u32      format version, 1
//    12  u32      C, characters (as many as the database has, at most 65535)
//    16  u32      W, words
//    20  u32      R, word references
//    24  u32      P, parts
//    28  u32      T, bytes of text
//    32  u64      DatabaseKey of the database the lexicon was made for
//    40  u32      FNV-1a (32 bits) of every byte after the header
//    44  u32      Z, bytes of the text as stored (zlib), at most 64 MiB
//   C characters of 24 bytes, in database id order
//     u32 code point; u32 first reference; u8 words (at most 8); u8 parts; u16 0;
//     u32 first part; u32 ON reading word; u32 KUN reading word (0xFFFFFFFF: none)
//   W words of 8 bytes
//     u32 offset of its texts; u8 bytes of writing; u8 bytes of reading;
//     u16 bytes of meaning, the high bit set for a common word
//     (writing, reading and meaning follow one another in the text)
//   R references of 4 bytes: u32 word index (a character's words are R[first .. first + count))
//   P parts of 16 bytes: u32 code point; u16 database id of that character (0xFFFF: none); u16 0;
//     u64 the strokes of the character that draw the part (bit k: stroke k; 0: not known)
//   Z bytes: the T bytes of UTF-8 text, compressed by zlib (it is mostly kana and English, and
//   takes about a third of its size so)
//
// The file is exactly that long. Everything is checked when it is opened, and the text is
// unpacked then.

#include "Lexicon.h"

#include "DatabaseLoadException.h"
#include "LexiconFormat.h"
#include "StoreMessages.h"
#include "Utf8.h"

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <new>
#include <sys/stat.h>
#include <unistd.h>
#include <zlib.h>

using ZavorenCommon::DatabaseLoadException;
namespace F = LexiconFormat;

namespace {

std::uint32_t U32(const std::uint8_t* p)
{
    return static_cast<std::uint32_t>(p[0]) | (static_cast<std::uint32_t>(p[1]) << 8)
        | (static_cast<std::uint32_t>(p[2]) << 16) | (static_cast<std::uint32_t>(p[3]) << 24);
}

std::uint16_t U16(const std::uint8_t* p)
{
    return static_cast<std::uint16_t>(p[0] | (p[1] << 8));
}

std::uint64_t U64(const std::uint8_t* p)
{
    return static_cast<std::uint64_t>(U32(p)) | (static_cast<std::uint64_t>(U32(p + 4)) << 32);
}

[[noreturn]] void Damaged()
{
    throw DatabaseLoadException(StoreMessage::DamagedLexicon);
}

bool IsScalar(std::uint32_t c)
{
    return c > 0 && c <= 0x10FFFF && (c < 0xD800 || c > 0xDFFF);
}

/// Whether the bytes are well-formed UTF-8 without NUL.
bool IsUtf8(const std::uint8_t* p, std::size_t size)
{
    const std::string_view text(reinterpret_cast<const char*>(p), size);
    return text.find('\0') == std::string_view::npos && ::IsUtf8(text);
}

} // namespace

Lexicon::Lexicon(const std::string& path)
{
    // Not blocking, and only a regular file: a FIFO named "lexicon" must not hang the program.
    const int descriptor = ::open(path.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC);
    if (descriptor < 0)
        throw DatabaseLoadException(StoreMessage::OpenLexicon);
    struct stat info { };
    if (::fstat(descriptor, &info) != 0 || !S_ISREG(info.st_mode)) {
        ::close(descriptor);
        throw DatabaseLoadException(StoreMessage::OpenLexicon);
    }
    const auto size = static_cast<std::uint64_t>(info.st_size);
    if (size > F::MaxFileSize) {
        ::close(descriptor);
        Damaged();
    }
    try {
        m_bytes.resize(static_cast<std::size_t>(size));
    } catch (const std::bad_alloc&) {
        ::close(descriptor);
        throw DatabaseLoadException(StoreMessage::OpenLexicon);
    }
    std::size_t done = 0;
    while (done < m_bytes.size()) {
        const ssize_t n = ::pread(descriptor, m_bytes.data() + done, m_bytes.size() - done, static_cast<off_t>(done));
        if (n < 0 && errno == EINTR)
            continue;
        if (n <= 0)
            break;
        done += static_cast<std::size_t>(n);
    }
    ::close(descriptor);
    // A file that shrank while it was read is checked as what was read, and found short.
    m_bytes.resize(done);
    Check();
}

Lexicon::Lexicon(std::vector<std::uint8_t> bytes) : m_bytes(std::move(bytes))
{
    Check();
}

void Lexicon::Check()
{
    const std::uint8_t* b = m_bytes.data();
    const std::size_t size = m_bytes.size();
    if (size < F::HeaderSize || std::memcmp(b, F::Magic, sizeof F::Magic) != 0 || U32(b + 8) != F::Version)
        Damaged();
    m_characterCount = U32(b + 12);
    m_wordCount = U32(b + 16);
    m_referenceCount = U32(b + 20);
    m_partCount = U32(b + 24);
    m_textSize = U32(b + 28);
    m_databaseKey = U64(b + 32);
    const std::uint32_t stored = U32(b + 44);
    // zlib packs at most about 1032 to 1: a text claiming more than that of its stream is not
    // unpacked into memory it would never fill.
    if (m_characterCount > 0xFFFF || m_textSize > F::MaxFileSize || m_textSize > std::uint64_t(stored) * 1032 + 64)
        Damaged();
    // In 64 bits, so that no count can wrap the sum around.
    const std::uint64_t expected = F::HeaderSize + std::uint64_t(m_characterCount) * F::CharacterSize
        + std::uint64_t(m_wordCount) * F::WordSize + std::uint64_t(m_referenceCount) * F::ReferenceSize
        + std::uint64_t(m_partCount) * F::PartSize + stored;
    if (expected != size)
        Damaged();
    if (F::Checksum(b + F::HeaderSize, size - F::HeaderSize) != U32(b + 40))
        Damaged();
    m_characters = F::HeaderSize;
    m_words = m_characters + std::size_t(m_characterCount) * F::CharacterSize;
    m_references = m_words + std::size_t(m_wordCount) * F::WordSize;
    m_parts = m_references + std::size_t(m_referenceCount) * F::ReferenceSize;
    const std::size_t text = m_parts + std::size_t(m_partCount) * F::PartSize;
    try {
        m_text.resize(m_textSize);
    } catch (const std::bad_alloc&) {
        throw DatabaseLoadException(StoreMessage::OpenLexicon);
    }
    uLongf unpacked = m_textSize;
    // An empty text is stored as an empty stream; anything else must unpack to exactly T bytes.
    if (m_textSize > 0 && (::uncompress(m_text.data(), &unpacked, b + text, stored) != Z_OK || unpacked != m_textSize))
        Damaged();
    if (m_textSize == 0 && stored != 0)
        Damaged();
    const std::uint8_t* t = m_text.data();

    for (std::uint32_t w = 0; w < m_wordCount; ++w) {
        const std::uint8_t* p = b + m_words + std::size_t(w) * F::WordSize;
        const std::uint64_t offset = U32(p);
        const std::uint64_t length = std::uint64_t(p[4]) + p[5] + (U16(p + 6) & ~F::CommonBit);
        if (p[4] == 0 || offset + length > m_textSize || !IsUtf8(t + offset, p[4]) || !IsUtf8(t + offset + p[4], p[5])
            || !IsUtf8(t + offset + p[4] + p[5], U16(p + 6) & ~F::CommonBit))
            Damaged();
    }
    for (std::uint32_t r = 0; r < m_referenceCount; ++r)
        if (U32(b + m_references + std::size_t(r) * F::ReferenceSize) >= m_wordCount)
            Damaged();
    for (std::uint32_t k = 0; k < m_partCount; ++k) {
        const std::uint8_t* p = b + m_parts + std::size_t(k) * F::PartSize;
        const std::uint16_t id = U16(p + 4);
        if (!IsScalar(U32(p)) || (id != NoCharacter && id >= m_characterCount) || U16(p + 6) != 0)
            Damaged();
    }
    m_byCodePoint.reserve(m_characterCount);
    for (std::uint32_t id = 0; id < m_characterCount; ++id) {
        const std::uint8_t* p = b + m_characters + std::size_t(id) * F::CharacterSize;
        const std::uint32_t codePoint = U32(p);
        const std::uint64_t firstWord = U32(p + 4);
        const std::uint64_t firstPart = U32(p + 12);
        const std::uint32_t on = U32(p + 16);
        const std::uint32_t kun = U32(p + 20);
        if (!IsScalar(codePoint) || p[8] > F::MaxWords || firstWord + p[8] > m_referenceCount
            || firstPart + p[9] > m_partCount || U16(p + 10) != 0 || (on != F::NoWord && on >= m_wordCount)
            || (kun != F::NoWord && kun >= m_wordCount))
            Damaged();
        m_byCodePoint.emplace_back(static_cast<char32_t>(codePoint), static_cast<std::uint16_t>(id));
    }
    std::sort(m_byCodePoint.begin(), m_byCodePoint.end());
    if (std::adjacent_find(
            m_byCodePoint.begin(), m_byCodePoint.end(), [](const auto& a, const auto& b) { return a.first == b.first; })
        != m_byCodePoint.end())
        Damaged();
}

void Lexicon::CheckMadeFor(std::uint64_t key) const
{
    if (key != m_databaseKey)
        throw DatabaseLoadException(StoreMessage::ForeignLexicon);
}

const std::uint8_t* Lexicon::CharacterRecord(std::uint16_t id) const
{
    if (id >= m_characterCount)
        return nullptr;
    return m_bytes.data() + m_characters + std::size_t(id) * F::CharacterSize;
}

char32_t Lexicon::CodePoint(std::uint16_t id) const
{
    const std::uint8_t* p = CharacterRecord(id);
    return p ? static_cast<char32_t>(U32(p)) : 0;
}

std::uint16_t Lexicon::CharacterOf(char32_t codePoint) const
{
    const auto found
        = std::lower_bound(m_byCodePoint.begin(), m_byCodePoint.end(), std::make_pair(codePoint, std::uint16_t{0}));
    return found != m_byCodePoint.end() && found->first == codePoint ? found->second : NoCharacter;
}

LexiconWord Lexicon::WordAt(std::uint32_t index) const
{
    const std::uint8_t* p = m_bytes.data() + m_words + std::size_t(index) * F::WordSize;
    const char* text = reinterpret_cast<const char*>(m_text.data() + U32(p));
    const std::uint16_t meaning = U16(p + 6);
    LexiconWord word;
    word.writing = std::string_view(text, p[4]);
    word.reading = std::string_view(text + p[4], p[5]);
    word.meaning = std::string_view(text + p[4] + p[5], meaning & ~F::CommonBit);
    word.common = (meaning & F::CommonBit) != 0;
    return word;
}

std::vector<LexiconWord> Lexicon::Words(std::uint16_t id) const
{
    std::vector<LexiconWord> words;
    if (const std::uint8_t* p = CharacterRecord(id)) {
        const std::size_t first = U32(p + 4);
        for (std::size_t i = 0; i < p[8]; ++i)
            words.push_back(WordAt(U32(m_bytes.data() + m_references + (first + i) * F::ReferenceSize)));
    }
    return words;
}

std::vector<LexiconPart> Lexicon::Parts(std::uint16_t id) const
{
    std::vector<LexiconPart> parts;
    if (const std::uint8_t* p = CharacterRecord(id)) {
        const std::size_t first = U32(p + 12);
        for (std::size_t i = 0; i < p[9]; ++i) {
            const std::uint8_t* part = m_bytes.data() + m_parts + (first + i) * F::PartSize;
            parts.push_back(LexiconPart{static_cast<char32_t>(U32(part)), U16(part + 4), U64(part + 8)});
        }
    }
    return parts;
}

std::optional<LexiconWord> Lexicon::ReadingWord(std::uint16_t id, Reading reading) const
{
    const std::uint8_t* p = CharacterRecord(id);
    if (!p)
        return std::nullopt;
    const std::uint32_t index = U32(p + (reading == Reading::On ? 16 : 20));
    if (index == F::NoWord)
        return std::nullopt;
    return WordAt(index);
}
