#include "FileCharacterDatabase.h"
#include "StoreMessages.h"

#include "ByteReader.h"
#include "DatabaseLoadException.h"
#include "FormFormat.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <fcntl.h>
#include <new>
#include <sys/stat.h>
#include <unistd.h>

using ZavorenCommon::DatabaseLoadException;

namespace {

constexpr std::size_t HeaderSize = 12;
constexpr std::size_t EntrySize = 6;

std::uint32_t LittleU32(const std::uint8_t* p)
{
    return static_cast<std::uint32_t>(p[0]) | (static_cast<std::uint32_t>(p[1]) << 8)
        | (static_cast<std::uint32_t>(p[2]) << 16) | (static_cast<std::uint32_t>(p[3]) << 24);
}

std::uint16_t LittleU16(const std::uint8_t* p)
{
    return static_cast<std::uint16_t>(p[0] | (p[1] << 8));
}

std::size_t ItemCount(const Element& element)
{
    std::size_t count = 0;
    for (std::uint8_t f = 0; f < element.FormCount(); ++f)
        for (const Stroke& stroke : element.GetForm(f).Strokes())
            count += 1 + stroke.Segments().size();
    return count;
}

/// What tells whether the open file was written since: its size and its modification time. Not
/// its change time, which also moves when the file is only renamed or removed from its folder
/// (a package upgrade putting a new file in its place), which leaves the open file as it was.
std::array<long long, 3> StampOf(int descriptor)
{
    struct stat info { };
    if (::fstat(descriptor, &info) != 0)
        return {-1, -1, -1};
    return {static_cast<long long>(info.st_size), static_cast<long long>(info.st_mtim.tv_sec),
        static_cast<long long>(info.st_mtim.tv_nsec)};
}

} // namespace

FileCharacterDatabase::FileCharacterDatabase(const std::string& path)
{
    // Not blocking: a FIFO or a device named "database" must not hang the start. Only a regular
    // file (or a link to one) is a database.
    m_descriptor = ::open(path.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC);
    if (m_descriptor < 0)
        throw DatabaseLoadException(StoreMessage::OpenDatabase);
    try {
        struct stat info { };
        if (::fstat(m_descriptor, &info) != 0 || !S_ISREG(info.st_mode))
            throw DatabaseLoadException(StoreMessage::OpenDatabase);
        const auto size = static_cast<std::uint64_t>(info.st_size);
        if (size <= MaxInMemorySize) {
            // One read of the whole file; a file that changes size meanwhile keeps what was read.
            m_contents = FileBuffer(static_cast<std::size_t>(size));
            std::size_t done = 0;
            while (done < size) {
                const ssize_t n
                    = ::pread(m_descriptor, m_contents.Data() + done, size - done, static_cast<off_t>(done));
                if (n < 0 && errno == EINTR)
                    continue;
                if (n <= 0)
                    break;
                done += static_cast<std::size_t>(n);
            }
            m_contentsSize = done;
            m_contents.Seal();
            m_readStamp = StampOf(m_descriptor);
            m_glyphFile = m_descriptor;
            m_descriptor = -1;
        }
        RecordBytes header;
        if (!ReadAt(0, HeaderSize, header))
            throw DatabaseLoadException(StoreMessage::ReadHeader);
        m_elementDictionary = ReadDictionary(LittleU32(header.data));
        m_characterDictionary = ReadDictionary(LittleU32(header.data + 4));
        m_categoryDictionaryOffset = LittleU32(header.data + 8);
        m_categoryDictionary = ReadDictionary(m_categoryDictionaryOffset);
    } catch (const std::bad_alloc&) {
        Close();
        throw DatabaseLoadException(StoreMessage::OpenDatabase);
    } catch (...) {
        Close();
        throw;
    }
}

FileCharacterDatabase::~FileCharacterDatabase()
{
    Close();
}

void FileCharacterDatabase::Close()
{
    if (m_descriptor >= 0)
        ::close(m_descriptor);
    m_descriptor = -1;
    if (m_glyphFile >= 0)
        ::close(m_glyphFile);
    m_glyphFile = -1;
}

bool FileCharacterDatabase::ReadElement(std::uint16_t id, RecordBytes& out) const
{
    const DictionaryEntry& entry = m_elementDictionary[id];
    if (!m_glyphsFromFile)
        return ReadRecord(entry, out);
    // A file written since Preload checked it is not what was checked: its glyphs are refused.
    if (entry.size == 0 || entry.offset == NoRecord || StampOf(m_glyphFile) != m_glyphFileStamp)
        return false;
    return ReadFromFile(m_glyphFile, entry.offset, entry.size, out);
}

bool FileCharacterDatabase::ReadFromFile(int file, std::uint64_t offset, std::size_t size, RecordBytes& out)
{
    // Read at the offset: a file that shrank since it was opened gives a short read, never more.
    out.owned.resize(size);
    std::size_t done = 0;
    while (done < size) {
        const ssize_t n = ::pread(file, out.owned.data() + done, size - done, static_cast<off_t>(offset + done));
        if (n < 0 && errno == EINTR)
            continue;
        if (n <= 0)
            return false;
        done += static_cast<std::size_t>(n);
    }
    out.data = out.owned.data();
    out.size = size;
    return true;
}

void FileCharacterDatabase::GiveBackGlyphs()
{
    if (m_glyphFile < 0 || m_descriptor >= 0 || m_glyphsFromFile || m_elementDictionary.empty())
        return;
    // Read again only while the file stays as it was when it was read whole.
    m_glyphFileStamp = StampOf(m_glyphFile);
    if (m_glyphFileStamp != m_readStamp)
        return;
    std::size_t from = m_contentsSize, to = 0;
    for (std::size_t id = 0; id < m_elementDictionary.size(); ++id) {
        if (!m_elementPresent[id])
            continue;
        const DictionaryEntry& entry = m_elementDictionary[id];
        from = std::min<std::size_t>(from, entry.offset);
        to = std::max<std::size_t>(to, std::size_t{entry.offset} + entry.size);
    }
    m_glyphsFromFile = true;
    // Only the bytes between the first and the last glyph record: the dictionaries, the
    // characters and the categories stay in memory.
    m_contents.Drop(from, to);
}

bool FileCharacterDatabase::ReadAt(std::uint64_t offset, std::size_t size, RecordBytes& out) const
{
    if (size == 0)
        return false;
    if (m_descriptor < 0) {
        if (offset > m_contentsSize || size > m_contentsSize - offset)
            return false;
        out.data = m_contents.Data() + offset;
        out.size = size;
        return true;
    }
    return ReadFromFile(m_descriptor, offset, size, out);
}

std::vector<FileCharacterDatabase::DictionaryEntry> FileCharacterDatabase::ReadDictionary(std::uint32_t offset) const
{
    RecordBytes countBytes;
    if (!ReadAt(offset, 2, countBytes))
        throw DatabaseLoadException(StoreMessage::ReadDictionary);
    const std::uint16_t count = LittleU16(countBytes.data);
    std::vector<DictionaryEntry> entries(count);
    if (count == 0)
        return entries;
    RecordBytes raw;
    if (!ReadAt(std::uint64_t{offset} + 2, std::size_t{count} * EntrySize, raw))
        throw DatabaseLoadException(StoreMessage::ReadDictionary);
    for (std::size_t i = 0; i < count; ++i)
        entries[i] = {LittleU32(raw.data + i * EntrySize), LittleU16(raw.data + i * EntrySize + 4)};
    return entries;
}

bool FileCharacterDatabase::ReadRecord(const DictionaryEntry& entry, RecordBytes& out) const
{
    return ReadAt(entry.offset, entry.size, out);
}

bool FileCharacterDatabase::CharacterExists(std::uint16_t id)
{
    if (id >= m_characterDictionary.size())
        return false;
    if (m_preloaded && id < m_characterPresent.size())
        return m_characterPresent[id];
    const DictionaryEntry& entry = m_characterDictionary[id];
    if (entry.offset == NoRecord)
        return false;
    RecordBytes scratch;
    return ReadRecord(entry, scratch);
}

bool FileCharacterDatabase::ElementExists(std::uint16_t id)
{
    if (id >= m_elementDictionary.size())
        return false;
    if (m_preloaded && id < m_elementPresent.size())
        return m_elementPresent[id];
    // No hole test here: an offset of 0xFFFFFFFF simply fails to read.
    RecordBytes scratch;
    return ReadElement(id, scratch);
}

std::unique_ptr<Character> FileCharacterDatabase::LoadCharacter(std::uint16_t id)
{
    if (id >= m_characterDictionary.size())
        throw DatabaseLoadException(StoreMessage::CharacterIdRange);
    if (m_preloaded && id < m_characterPresent.size()) {
        if (!m_characterPresent[id])
            throw DatabaseLoadException(StoreMessage::NoCharacter);
        // Bytes held in memory cannot change: parsing them again gives the character Preload saw.
        if (!m_characterCache.empty())
            return std::make_unique<Character>(*m_characterCache[id]);
    }
    const DictionaryEntry& entry = m_characterDictionary[id];
    if (entry.offset == NoRecord)
        throw DatabaseLoadException(StoreMessage::NoCharacter);
    RecordBytes record;
    if (!ReadRecord(entry, record))
        throw DatabaseLoadException(StoreMessage::LoadCharacter);
    ByteReader reader(record.data, record.size, StoreMessage::LoadCharacter);
    auto character = std::make_unique<Character>();
    character->SetId(id);
    character->SetElementId(reader.U16());
    character->SetOnReading(reader.ShortString());
    character->SetKunReading(reader.ShortString());
    character->SetMeaning(reader.ShortString());
    return character;
}

void FileCharacterDatabase::CheckCharacter(std::uint16_t id) const
{
    RecordBytes record;
    if (!ReadRecord(m_characterDictionary[id], record))
        throw DatabaseLoadException(StoreMessage::LoadCharacter);
    // What LoadCharacter reads, in the same order and with the same checks.
    ByteReader reader(record.data, record.size, StoreMessage::LoadCharacter);
    reader.Skip(2); // element id
    for (int text = 0; text < 3; ++text) // ON reading, KUN reading, meaning
        reader.Skip(reader.U8());
}

std::unique_ptr<Element> FileCharacterDatabase::LoadElement(std::uint16_t id)
{
    if (id >= m_elementDictionary.size())
        throw DatabaseLoadException(StoreMessage::ElementIdRange);
    if (m_preloaded && id < m_elementPresent.size()) {
        if (!m_elementPresent[id])
            throw DatabaseLoadException(StoreMessage::NoElement);
        // Bytes held in memory cannot change: parsing them again gives the element Preload saw.
        if (m_elementCache.empty())
            return LoadTopLevelElement(id);
        return std::make_unique<Element>(*m_elementCache[id]);
    }
    return LoadTopLevelElement(id);
}

std::unique_ptr<Element> FileCharacterDatabase::LoadTopLevelElement(std::uint16_t id)
{
    // A load starts with an empty budget and forgets its parts when it ends, however it ends.
    struct EndOfLoad {
        FileCharacterDatabase& db;
        ~EndOfLoad()
        {
            db.m_composeMemo.clear();
            db.m_budget = {};
        }
    } endOfLoad{*this};
    m_budget = {};
    try {
        return ParseElement(id);
    } catch (const std::bad_alloc&) {
        throw DatabaseLoadException(StoreMessage::LoadElement);
    }
}

const Element& FileCharacterDatabase::LoadPart(std::uint16_t id)
{
    if (id >= m_elementDictionary.size())
        throw DatabaseLoadException(StoreMessage::ElementIdRange);
    // Refuse cycles and runaway nesting.
    if (std::find(m_loading.begin(), m_loading.end(), id) != m_loading.end() || m_loading.size() > MaxCompositionDepth)
        throw DatabaseLoadException(StoreMessage::LoadElement);
    auto& part = m_composeMemo[id];
    if (!part)
        part = ParseElement(id);
    return *part;
}

std::optional<std::size_t> FileCharacterDatabase::CheckPlainElement(std::uint16_t id) const
{
    RecordBytes record;
    if (!ReadElement(id, record))
        throw DatabaseLoadException(StoreMessage::LoadElement);
    ByteReader reader(record.data, record.size, StoreMessage::LoadElement);
    LoadBudget budget;
    return CheckPlainElementRecord(reader, budget);
}

std::unique_ptr<Element> FileCharacterDatabase::ParseElement(std::uint16_t id)
{
    RecordBytes record;
    if (!ReadElement(id, record))
        throw DatabaseLoadException(StoreMessage::LoadElement);
    m_loading.push_back(id);
    struct PopOnExit {
        std::vector<std::uint16_t>& stack;
        ~PopOnExit() { stack.pop_back(); }
    } pop{m_loading};
    auto element = std::make_unique<Element>(id);
    ByteReader reader(record.data, record.size, StoreMessage::LoadElement);
    ParseElementRecord(
        reader, *element, [this](std::uint16_t placed) -> const Element& { return LoadPart(placed); }, m_budget);
    return element;
}

std::unique_ptr<Category> FileCharacterDatabase::LoadCategory(std::uint16_t id)
{
    // Deliberately a strict greater-than: an id equal to the count reads the six bytes that
    // follow the last dictionary entry as if they were one more entry.
    if (id > m_categoryDictionary.size())
        throw DatabaseLoadException(StoreMessage::NoCategory);
    DictionaryEntry entry;
    if (id < m_categoryDictionary.size()) {
        entry = m_categoryDictionary[id];
    } else {
        RecordBytes raw;
        if (!ReadAt(std::uint64_t{m_categoryDictionaryOffset} + 2 + EntrySize * id, EntrySize, raw))
            throw DatabaseLoadException(StoreMessage::LoadCategory);
        entry = {LittleU32(raw.data), LittleU16(raw.data + 4)};
    }
    RecordBytes record;
    if (!ReadRecord(entry, record))
        throw DatabaseLoadException(StoreMessage::LoadCategory);
    ByteReader reader(record.data, record.size, StoreMessage::LoadCategory);
    auto category = std::make_unique<Category>();
    category->SetId(id);
    category->SetName(reader.ShortString());
    const std::uint16_t count = reader.U16();
    for (std::uint16_t i = 0; i < count; ++i)
        category->AppendCharacter(reader.U16());
    return category;
}

std::uint16_t FileCharacterDatabase::CharacterCount() const
{
    return static_cast<std::uint16_t>(m_characterDictionary.size());
}

std::uint16_t FileCharacterDatabase::ElementCount() const
{
    return static_cast<std::uint16_t>(m_elementDictionary.size());
}

std::uint16_t FileCharacterDatabase::CategoryCount() const
{
    return static_cast<std::uint16_t>(m_categoryDictionary.size());
}

void FileCharacterDatabase::Preload(DatabaseProgress* progress)
{
    // Preloading is meant to happen once per process; a second call keeps the caches as they
    // are rather than reading everything again.
    if (m_preloaded)
        return;
    // A preload that failed part-way left partial caches; start them afresh.
    m_characterCache.clear();
    m_characterPresent.clear();
    m_elementCache.clear();
    m_elementPresent.clear();
    m_preloadItems = 0;
    const std::uint16_t characters = CharacterCount();
    const std::uint16_t elements = ElementCount();
    if (progress)
        progress->SetRange(0, std::uint32_t{characters} + elements);
    m_characterPresent.reserve(characters);
    for (std::uint32_t id = 0; id < characters; ++id) {
        if (progress)
            progress->SetPosition(id);
        const auto cid = static_cast<std::uint16_t>(id);
        const bool present = CharacterExists(cid);
        // A character held in memory is checked where it lies and built when asked for; one
        // of a file read at offsets is kept as it was read.
        if (m_descriptor >= 0)
            m_characterCache.push_back(present ? LoadCharacter(cid) : nullptr);
        else if (present)
            CheckCharacter(cid);
        m_characterPresent.push_back(present);
    }
    m_elementPresent.reserve(elements);
    for (std::uint32_t id = 0; id < elements; ++id) {
        if (progress)
            progress->SetPosition(std::uint32_t{characters} + id);
        const auto eid = static_cast<std::uint16_t>(id);
        const bool present = ElementExists(eid);
        std::unique_ptr<Element> element;
        if (present) {
            // An element of plain strokes held in memory is checked where it lies; others are
            // loaded whole (a composition needs its parts).
            std::optional<std::size_t> items = m_descriptor < 0 ? CheckPlainElement(eid) : std::nullopt;
            if (!items) {
                element = LoadElement(eid);
                items = ItemCount(*element);
            }
            if (*items > MaxPreloadItems - m_preloadItems)
                throw DatabaseLoadException(StoreMessage::LoadElement);
            m_preloadItems += *items;
        }
        m_elementPresent.push_back(present);
        // A file read at offsets may change under the reader: keep what was read.
        if (m_descriptor >= 0)
            m_elementCache.push_back(std::move(element));
    }
    m_preloaded = true;
    GiveBackGlyphs();
}
