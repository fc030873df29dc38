#include "LexiconWriter.h"

#include "ByteWriter.h"
#include "LexiconFormat.h"

#include <cstring>
#include <zlib.h>

namespace F = LexiconFormat;

std::uint32_t LexiconWriter::WordIndex(const Word& word)
{
    const auto [found, added] = m_wordIndex.emplace(word, static_cast<std::uint32_t>(m_words.size()));
    if (added)
        m_words.push_back(word);
    return found->second;
}

void LexiconWriter::AddCharacter(char32_t codePoint, const std::vector<Word>& words, const std::vector<Part>& parts,
    const std::optional<Word>& onWord, const std::optional<Word>& kunWord)
{
    if (words.size() > F::MaxWords || parts.size() > 255)
        throw std::length_error("too many words or parts for one character");
    CharacterEntry entry{codePoint, static_cast<std::uint32_t>(m_references.size()),
        static_cast<std::uint8_t>(words.size()), static_cast<std::uint32_t>(m_parts.size()),
        static_cast<std::uint8_t>(parts.size()), F::NoWord, F::NoWord};
    for (const Word& word : words)
        m_references.push_back(WordIndex(word));
    m_parts.insert(m_parts.end(), parts.begin(), parts.end());
    if (onWord)
        entry.onWord = WordIndex(*onWord);
    if (kunWord)
        entry.kunWord = WordIndex(*kunWord);
    m_characters.push_back(entry);
}

std::vector<std::uint8_t> LexiconWriter::Serialize() const
{
    if (m_characters.size() > 0xFFFF)
        throw std::length_error("more than 65535 characters");
    std::vector<std::uint8_t> text;
    std::vector<std::uint8_t> body;
    ByteWriter out(body);
    for (const CharacterEntry& c : m_characters) {
        out.U32(static_cast<std::uint32_t>(c.codePoint));
        out.U32(c.firstReference);
        out.U8(c.wordCount);
        out.U8(c.partCount);
        out.U16(0);
        out.U32(c.firstPart);
        out.U32(c.onWord);
        out.U32(c.kunWord);
    }
    for (const Word& word : m_words) {
        if (word.writing.empty() || word.writing.size() > 255 || word.reading.size() > 255
            || word.meaning.size() > F::MaxMeaningBytes)
            throw std::length_error("a word's texts are too long for the lexicon: " + word.writing);
        out.U32(static_cast<std::uint32_t>(text.size()));
        out.U8(static_cast<std::uint8_t>(word.writing.size()));
        out.U8(static_cast<std::uint8_t>(word.reading.size()));
        out.U16(static_cast<std::uint16_t>(word.meaning.size() | (word.common ? F::CommonBit : 0)));
        for (const std::string* t : {&word.writing, &word.reading, &word.meaning})
            text.insert(text.end(), t->begin(), t->end());
    }
    for (std::uint32_t reference : m_references)
        out.U32(reference);
    for (const Part& part : m_parts) {
        out.U32(static_cast<std::uint32_t>(part.codePoint));
        out.U16(part.characterId);
        out.U16(0);
        out.U32(static_cast<std::uint32_t>(part.strokes));
        out.U32(static_cast<std::uint32_t>(part.strokes >> 32));
    }
    std::vector<std::uint8_t> packed;
    if (!text.empty()) {
        uLongf packedSize = ::compressBound(text.size());
        packed.resize(packedSize);
        if (::compress2(packed.data(), &packedSize, text.data(), text.size(), Z_BEST_COMPRESSION) != Z_OK)
            throw std::length_error("the text cannot be compressed");
        packed.resize(packedSize);
    }
    body.insert(body.end(), packed.begin(), packed.end());

    std::vector<std::uint8_t> file(F::Magic, F::Magic + sizeof F::Magic);
    ByteWriter header(file);
    header.U32(F::Version);
    header.U32(static_cast<std::uint32_t>(m_characters.size()));
    header.U32(static_cast<std::uint32_t>(m_words.size()));
    header.U32(static_cast<std::uint32_t>(m_references.size()));
    header.U32(static_cast<std::uint32_t>(m_parts.size()));
    header.U32(static_cast<std::uint32_t>(text.size()));
    header.U32(static_cast<std::uint32_t>(m_databaseKey));
    header.U32(static_cast<std::uint32_t>(m_databaseKey >> 32));
    header.U32(F::Checksum(body.data(), body.size()));
    header.U32(static_cast<std::uint32_t>(packed.size()));
    file.insert(file.end(), body.begin(), body.end());
    return file;
}
