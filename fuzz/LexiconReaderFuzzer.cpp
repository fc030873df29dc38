// libFuzzer target: the lexicon reader must turn any bytes into a lexicon whose every lookup
// stays inside it, or into DatabaseLoadException; never a crash, an overread or undefined
// behaviour. The checksum is made right for the mutated bytes (a mutation behind a right
// checksum is what the checks after it are for), unless the input asks otherwise.

#include "DatabaseLoadException.h"
#include "Lexicon.h"
#include "LexiconFormat.h"

#include <cstdint>
#include <vector>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    std::vector<std::uint8_t> bytes(data, data + size);
    // The first byte of the checksum field chooses: odd keeps the bytes as they came.
    if (bytes.size() >= LexiconFormat::HeaderSize && (bytes[40] & 1) == 0) {
        const std::uint32_t sum = LexiconFormat::Checksum(
            bytes.data() + LexiconFormat::HeaderSize, bytes.size() - LexiconFormat::HeaderSize);
        for (int k = 0; k < 4; ++k)
            bytes[40 + k] = static_cast<std::uint8_t>(sum >> (8 * k));
    }
    try {
        const Lexicon lexicon(std::move(bytes));
        std::size_t total = 0;
        for (std::uint32_t id = 0; id <= lexicon.CharacterCount(); ++id) {
            const auto code = static_cast<std::uint16_t>(id);
            for (const LexiconWord& word : lexicon.Words(code))
                total += word.writing.size() + word.reading.size() + word.meaning.size();
            for (const LexiconPart& part : lexicon.Parts(code))
                total += lexicon.CharacterOf(part.codePoint) + part.strokes;
            for (auto reading : {Lexicon::Reading::On, Lexicon::Reading::Kun})
                if (const auto word = lexicon.ReadingWord(code, reading))
                    total += word->writing.front() + word->meaning.size();
            total += lexicon.CodePoint(code);
        }
        static volatile std::size_t sink;
        sink = total; // used, so that nothing above is optimised away
    } catch (const ZavorenCommon::DatabaseLoadException&) {
    }
    return 0;
}
