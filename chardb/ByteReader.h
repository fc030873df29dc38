#pragma once

#include "DatabaseLoadException.h"

#include <bit>
#include <cstddef>
#include <cstdint>
#include <string>

/// Little-endian cursor over one record of the database. Reading past the record's end throws
/// DatabaseLoadException with the message given for the record's kind, so that a record whose
/// contents claim more bytes than it holds is never read past its end.
class ByteReader {
public:
    ByteReader(const std::uint8_t* data, std::size_t size, const char* overrunMessage)
        : m_data(data), m_size(size), m_overrunMessage(overrunMessage)
    {
    }

    std::uint8_t U8() { return *Take(1); }
    std::uint16_t U16()
    {
        const std::uint8_t* p = Take(2);
        return static_cast<std::uint16_t>(p[0] | (p[1] << 8));
    }
    std::int16_t I16() { return static_cast<std::int16_t>(U16()); }
    std::uint32_t U32()
    {
        const std::uint8_t* p = Take(4);
        return static_cast<std::uint32_t>(p[0]) | (static_cast<std::uint32_t>(p[1]) << 8)
            | (static_cast<std::uint32_t>(p[2]) << 16) | (static_cast<std::uint32_t>(p[3]) << 24);
    }
    float F32() { return std::bit_cast<float>(U32()); }
    /// A short string: u8 length, then that many bytes.
    std::string ShortString()
    {
        const std::uint8_t length = U8();
        const std::uint8_t* p = Take(length);
        return std::string(reinterpret_cast<const char*>(p), length);
    }
    /// Skips bytes without reading them.
    void Skip(std::size_t count) { Take(count); }

    std::size_t Position() const { return m_position; }
    void SetPosition(std::size_t position) { m_position = position; }

private:
    const std::uint8_t* Take(std::size_t count)
    {
        if (count > m_size - m_position)
            throw ZavorenCommon::DatabaseLoadException(m_overrunMessage);
        const std::uint8_t* p = m_data + m_position;
        m_position += count;
        return p;
    }

    const std::uint8_t* m_data;
    std::size_t m_size;
    std::size_t m_position = 0;
    const char* m_overrunMessage;
};
