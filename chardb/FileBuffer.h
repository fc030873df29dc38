#pragma once

#include <cstddef>
#include <cstdint>

/// Room for the bytes of a whole file, taken straight from the system rather than the heap:
/// placed on a 2 MB boundary and marked for huge pages where the system offers them, then
/// populated in one call. Read into, the room needs one page fault per 2 MB instead of one per
/// 4 kB page, which is most of the cost of reading a few megabytes at start-up. Move-only.
class FileBuffer {
public:
    FileBuffer() = default;
    /// Room for `size` bytes; throws std::bad_alloc when the system has none.
    explicit FileBuffer(std::size_t size);
    ~FileBuffer();
    FileBuffer(FileBuffer&& other) noexcept;
    FileBuffer& operator=(FileBuffer&& other) noexcept;
    FileBuffer(const FileBuffer&) = delete;
    FileBuffer& operator=(const FileBuffer&) = delete;

    std::uint8_t* Data() { return m_data; }
    const std::uint8_t* Data() const { return m_data; }
    std::size_t Size() const { return m_size; }

    /// Makes the bytes read-only from now on: writing to them ends the program instead of
    /// quietly changing what was read.
    void Seal();
    /// Gives back the memory of the whole pages within bytes [from, to): they are not read again
    /// (reading them would give zeros). Those of the pages at either end are kept.
    void Drop(std::size_t from, std::size_t to);

private:
    void Release();

    std::uint8_t* m_data = nullptr;
    std::size_t m_size = 0;
    std::size_t m_mappedSize = 0;
};
