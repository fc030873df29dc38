#pragma once

#include <bit>
#include <cstdint>
#include <string_view>
#include <vector>

/// Appends little-endian values to a byte vector, in the database's encoding.
class ByteWriter {
public:
    explicit ByteWriter(std::vector<std::uint8_t>& out) : m_out(out) { }

    void U8(std::uint8_t v) { m_out.push_back(v); }
    void U16(std::uint16_t v)
    {
        m_out.push_back(static_cast<std::uint8_t>(v));
        m_out.push_back(static_cast<std::uint8_t>(v >> 8));
    }
    void U32(std::uint32_t v)
    {
        for (int shift = 0; shift < 32; shift += 8)
            m_out.push_back(static_cast<std::uint8_t>(v >> shift));
    }
    void F32(float v) { U32(std::bit_cast<std::uint32_t>(v)); }
    /// A short string: u8 length then the bytes; the caller keeps it within 255 bytes.
    void ShortString(std::string_view text)
    {
        U8(static_cast<std::uint8_t>(text.size()));
        m_out.insert(m_out.end(), text.begin(), text.end());
    }

private:
    std::vector<std::uint8_t>& m_out;
};
