#pragma once

#include <array>

#include "CharacterDatabase.h"
#include "FileBuffer.h"
#include "FormFormat.h"

#include <cstdint>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <vector>

/// The reader of the binary `database` file: a 12-byte header, three dictionaries and the
/// records they point at. The file is read into memory once when it is opened (a file too large
/// for that is read record by record instead); `Preload` checks every character and element
/// (and keeps them, for a file read record by record).
class FileCharacterDatabase : public CharacterDatabase {
public:
    /// Opens the file and reads its dictionaries; throws DatabaseLoadException on failure.
    explicit FileCharacterDatabase(const std::string& path = "database");
    ~FileCharacterDatabase() override;
    FileCharacterDatabase(const FileCharacterDatabase&) = delete;
    FileCharacterDatabase& operator=(const FileCharacterDatabase&) = delete;

    bool ElementExists(std::uint16_t id) override;
    std::unique_ptr<Element> LoadElement(std::uint16_t id) override;
    bool CharacterExists(std::uint16_t id) override;
    std::unique_ptr<Character> LoadCharacter(std::uint16_t id) override;
    std::unique_ptr<Category> LoadCategory(std::uint16_t id) override;
    std::uint16_t CharacterCount() const override;
    std::uint16_t ElementCount() const override;
    std::uint16_t CategoryCount() const override;
    void Preload(DatabaseProgress* progress) override;

    /// Deepest nesting of composed forms that a load follows.
    static constexpr std::size_t MaxCompositionDepth = 32;
    /// Files up to this size are read into memory at once; larger ones record by record.
    static constexpr std::uint64_t MaxInMemorySize = 64u << 20;
    /// Strokes and segments that `Preload` keeps for all elements together, about 8 times what
    /// the database of every KanjiVG kanji needs (about 64 MB at most). Past it the element that
    /// would pass it fails to load, so a crafted file cannot fill the memory.
    static constexpr std::size_t MaxPreloadItems = 2u << 20;

private:
    /// Where a record lies in the file.
    struct DictionaryEntry {
        std::uint32_t offset = 0;
        std::uint16_t size = 0;
    };
    static constexpr std::uint32_t NoRecord = 0xFFFFFFFF;

    /// Bytes of one record: a view into the file's contents, or a copy read for it.
    struct RecordBytes {
        const std::uint8_t* data = nullptr;
        std::size_t size = 0;
        std::vector<std::uint8_t> owned;
    };

    /// Reads `size` bytes at `offset`; false when the file does not hold them all. A size of 0
    /// never reads, as a record is read as one item of its size.
    bool ReadAt(std::uint64_t offset, std::size_t size, RecordBytes& out) const;
    /// Reads `size` bytes at `offset` of an open file into `out`; false on a short read.
    static bool ReadFromFile(int file, std::uint64_t offset, std::size_t size, RecordBytes& out);
    std::vector<DictionaryEntry> ReadDictionary(std::uint32_t offset) const;
    bool ReadRecord(const DictionaryEntry& entry, RecordBytes& out) const;
    /// Reads element `id`'s record: from the contents, or, once the glyphs were given back
    /// after Preload, from the file while it is unchanged.
    bool ReadElement(std::uint16_t id, RecordBytes& out) const;
    /// After a Preload of a file held in memory, unchanged since it was read: gives back the
    /// memory of the element records, which are read from the file when asked for.
    void GiveBackGlyphs();
    void Close();
    std::unique_ptr<Element> LoadTopLevelElement(std::uint16_t id);
    const Element& LoadPart(std::uint16_t id);
    std::unique_ptr<Element> ParseElement(std::uint16_t id);
    /// Checks an element of plain strokes without building it: its strokes and segments, or
    /// nothing for one that composes others.
    std::optional<std::size_t> CheckPlainElement(std::uint16_t id) const;

    /// Checks a character's record as LoadCharacter reads it, without building the character.
    void CheckCharacter(std::uint16_t id) const;

    // Which character ids have a character, after Preload. As with elements, the characters
    // themselves are kept only for a file read at offsets.
    std::vector<std::unique_ptr<Character>> m_characterCache;
    std::vector<bool> m_characterPresent;
    // Which element ids have an element, after Preload. The elements themselves are kept only
    // for a file read at offsets; one held in memory is parsed again for each load, which is as
    // fast as copying and keeps thousands of small objects out of memory.
    std::vector<std::unique_ptr<Element>> m_elementCache;
    std::vector<bool> m_elementPresent;
    bool m_preloaded = false;
    std::vector<DictionaryEntry> m_elementDictionary;
    std::vector<DictionaryEntry> m_characterDictionary;
    std::vector<DictionaryEntry> m_categoryDictionary;
    std::uint32_t m_categoryDictionaryOffset = 0;
    // The whole file when it is small enough; otherwise the open file, read at offsets.
    FileBuffer m_contents;
    std::size_t m_contentsSize = 0;
    int m_descriptor = -1;
    // The file held in memory, kept open after its read: once Preload has checked the glyphs
    // their records are read from it again when asked for (a few megabytes less for the whole
    // session), as long as the file has not been written since it was read whole.
    int m_glyphFile = -1;
    bool m_glyphsFromFile = false;
    std::array<long long, 3> m_readStamp{};
    std::array<long long, 3> m_glyphFileStamp{};

    // Elements being composed by the load in progress (guards against cycles and depth), the
    // parts it has already parsed, so that a shared part is read only once, and what it built.
    std::vector<std::uint16_t> m_loading;
    std::map<std::uint16_t, std::unique_ptr<Element>> m_composeMemo;
    LoadBudget m_budget;
    std::size_t m_preloadItems = 0;
};
