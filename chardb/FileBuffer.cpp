#include "FileBuffer.h"

#include <cstdint>
#include <new>
#include <sys/mman.h>
#include <unistd.h>
#include <utility>

namespace {

constexpr std::size_t HugePage = std::size_t{2} << 20;

std::size_t RoundUp(std::size_t value, std::size_t unit)
{
    return (value + unit - 1) / unit * unit;
}

} // namespace

FileBuffer::FileBuffer(std::size_t size)
{
    if (size == 0)
        return;
    const auto page = static_cast<std::size_t>(::sysconf(_SC_PAGESIZE));
    const std::size_t length = RoundUp(size, page);
    // Below one huge page there is nothing to align: the room is used as it comes.
    const std::size_t slack = length >= HugePage ? HugePage : 0;
    if (length + slack < length)
        throw std::bad_alloc();
    void* mapped = ::mmap(nullptr, length + slack, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
    if (mapped == MAP_FAILED)
        throw std::bad_alloc();
    auto* start = static_cast<std::uint8_t*>(mapped);
    if (slack != 0) {
        // Keep only the huge-page-aligned part; the rest goes back at once.
        const auto address = reinterpret_cast<std::uintptr_t>(start);
        auto* aligned = reinterpret_cast<std::uint8_t*>(RoundUp(address, HugePage));
        const std::size_t head = static_cast<std::size_t>(aligned - start);
        if (head != 0)
            ::munmap(start, head);
        if (slack - head != 0)
            ::munmap(aligned + length, slack - head);
        start = aligned;
#ifdef MADV_HUGEPAGE
        ::madvise(start, length, MADV_HUGEPAGE); // a hint: without huge pages it still works
#endif
    }
#ifdef MADV_POPULATE_WRITE
    ::madvise(start, length, MADV_POPULATE_WRITE); // a hint too: otherwise the read faults them in
#endif
    m_data = start;
    m_size = size;
    m_mappedSize = length;
}

FileBuffer::~FileBuffer()
{
    Release();
}

FileBuffer::FileBuffer(FileBuffer&& other) noexcept
    : m_data(std::exchange(other.m_data, nullptr)), m_size(std::exchange(other.m_size, 0)),
      m_mappedSize(std::exchange(other.m_mappedSize, 0))
{
}

FileBuffer& FileBuffer::operator=(FileBuffer&& other) noexcept
{
    if (this != &other) {
        Release();
        m_data = std::exchange(other.m_data, nullptr);
        m_size = std::exchange(other.m_size, 0);
        m_mappedSize = std::exchange(other.m_mappedSize, 0);
    }
    return *this;
}

void FileBuffer::Seal()
{
    if (m_data)
        ::mprotect(m_data, m_mappedSize, PROT_READ);
}

void FileBuffer::Drop(std::size_t from, std::size_t to)
{
    if (!m_data || to > m_size || from >= to)
        return;
    const auto page = static_cast<std::size_t>(::sysconf(_SC_PAGESIZE));
    const std::size_t first = RoundUp(from, page);
    const std::size_t last = to / page * page;
    if (last > first)
        ::madvise(m_data + first, last - first, MADV_DONTNEED);
}

void FileBuffer::Release()
{
    if (m_data)
        ::munmap(m_data, m_mappedSize);
    m_data = nullptr;
    m_size = 0;
    m_mappedSize = 0;
}
