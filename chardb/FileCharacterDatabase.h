#pragma once

#include "CharacterDatabase.h"

#include <cstdint>
#include <cstdio>
#include <map>
#include <memory>
#include <string>
#include <vector>

/// The reader of the binary `database` file: a 12-byte header, three dictionaries and the
/// records they point at. Keeps the file open; `Preload` caches every character and element.
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

private:
    /// Where a record lies in the file.
    struct DictionaryEntry {
        std::uint32_t offset = 0;
        std::uint16_t size = 0;
    };
    static constexpr std::uint32_t NoRecord = 0xFFFFFFFF;

    std::vector<DictionaryEntry> ReadDictionary(std::uint32_t offset);
    bool ReadRecord(const DictionaryEntry& entry, std::vector<std::uint8_t>& buffer);
    std::unique_ptr<Element> ParseElement(std::uint16_t id);

    std::vector<std::unique_ptr<Character>> m_characterCache;
    std::vector<std::unique_ptr<Element>> m_elementCache;
    bool m_preloaded = false;
    std::vector<DictionaryEntry> m_elementDictionary;
    std::vector<DictionaryEntry> m_characterDictionary;
    std::vector<DictionaryEntry> m_categoryDictionary;
    std::uint32_t m_categoryDictionaryOffset = 0;
    std::FILE* m_file = nullptr;

    // Elements being composed by the load in progress (guards against cycles and depth),
    // and the elements it has already parsed, so that a shared part is read only once.
    std::vector<std::uint16_t> m_loading;
    std::map<std::uint16_t, Element> m_composeMemo;
};
