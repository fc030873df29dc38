#pragma once

// Test-side writer of database files, byte by byte, so that tests can make files the real
// builder never would: holes, short records, odd dictionaries, truncated files.

#include <bit>
#include <cstdint>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

namespace testdb {

using Bytes = std::vector<std::uint8_t>;

inline void Put16(Bytes& b, std::uint16_t v)
{
    b.push_back(static_cast<std::uint8_t>(v));
    b.push_back(static_cast<std::uint8_t>(v >> 8));
}
inline void Put32(Bytes& b, std::uint32_t v)
{
    for (int s = 0; s < 32; s += 8)
        b.push_back(static_cast<std::uint8_t>(v >> s));
}
inline void PutF(Bytes& b, float v)
{
    Put32(b, std::bit_cast<std::uint32_t>(v));
}
inline void PutString(Bytes& b, const std::string& s)
{
    b.push_back(static_cast<std::uint8_t>(s.size()));
    b.insert(b.end(), s.begin(), s.end());
}

/// A character record.
inline Bytes CharacterRecord(
    std::uint16_t element, const std::string& on, const std::string& kun, const std::string& meaning)
{
    Bytes b;
    Put16(b, element);
    PutString(b, on);
    PutString(b, kun);
    PutString(b, meaning);
    return b;
}

/// A category record.
inline Bytes CategoryRecord(const std::string& name, const std::vector<std::uint16_t>& ids)
{
    Bytes b;
    PutString(b, name);
    Put16(b, static_cast<std::uint16_t>(ids.size()));
    for (auto id : ids)
        Put16(b, id);
    return b;
}

/// Builder of a kind-1 form record (strokes).
class StrokeFormBytes {
public:
    StrokeFormBytes(std::uint16_t width, std::uint16_t height) : m_width(width), m_height(height) { }
    StrokeFormBytes& Stroke(float x, float y)
    {
        ++m_strokes;
        m_countAt = m_body.size();
        m_body.push_back(0);
        PutF(m_body, x);
        PutF(m_body, y);
        return *this;
    }
    StrokeFormBytes& Line(float x, float y) { return Segment(0, {x, y}); }
    StrokeFormBytes& Move(float x, float y) { return Segment(2, {x, y}); }
    StrokeFormBytes& Bezier(float x1, float y1, float x2, float y2, float x3, float y3)
    {
        return Segment(1, {x1, y1, x2, y2, x3, y3});
    }
    StrokeFormBytes& RawSegmentType(std::uint8_t type) { return Segment(type, {}); }
    Bytes Build() const
    {
        Bytes b{m_strokes, 1};
        Put16(b, m_width);
        Put16(b, m_height);
        b.insert(b.end(), m_body.begin(), m_body.end());
        return b;
    }

private:
    StrokeFormBytes& Segment(std::uint8_t type, std::vector<float> values)
    {
        ++m_body[m_countAt];
        m_body.push_back(type);
        for (float v : values)
            PutF(m_body, v);
        return *this;
    }
    std::uint16_t m_width, m_height;
    std::uint8_t m_strokes = 0;
    std::size_t m_countAt = 0;
    Bytes m_body;
};

struct RawPlacement {
    std::uint16_t element = 0;
    std::uint8_t form = 1;
    std::int16_t x = 0, y = 0;
    std::uint16_t width = 0, height = 0;
};

/// A kind-0 form record (composition) of 51 bytes.
inline Bytes ComposedFormBytes(std::uint16_t width, std::uint16_t height, std::vector<RawPlacement> placements)
{
    Bytes b{0, 0};
    Put16(b, width);
    Put16(b, height);
    b.push_back(0);
    placements.resize(4);
    for (const RawPlacement& p : placements) {
        Put16(b, p.element);
        b.push_back(p.form);
        Put16(b, static_cast<std::uint16_t>(p.x));
        Put16(b, static_cast<std::uint16_t>(p.y));
        Put16(b, p.width);
        Put16(b, p.height);
    }
    return b;
}

/// An element record from its forms.
inline Bytes ElementRecord(const std::vector<Bytes>& forms)
{
    Bytes b{static_cast<std::uint8_t>(forms.size())};
    for (const Bytes& f : forms)
        b.insert(b.end(), f.begin(), f.end());
    return b;
}

/// One dictionary entry as the test wants it: a record, or a hole, or a record whose dictionary
/// size is forced to another value.
struct RawRecord {
    Bytes bytes;
    bool hole = false;
    int forcedSize = -1;
    std::uint32_t forcedOffset = 0; ///< used when non-zero
};

/// A whole file: three dictionaries of records, laid out header, dictionaries, records.
class RawDatabaseFile {
public:
    std::vector<RawRecord> elements, characters, categories;
    Bytes trailingAfterCategoryDictionary; ///< bytes placed right after the category dictionary

    Bytes Build() const
    {
        const std::vector<RawRecord>* kinds[] = {&elements, &characters, &categories};
        std::uint32_t offset = 12;
        std::uint32_t dict[3];
        for (int k = 0; k < 3; ++k) {
            dict[k] = offset;
            offset += 2 + 6 * static_cast<std::uint32_t>(kinds[k]->size());
            if (k == 2)
                offset += static_cast<std::uint32_t>(trailingAfterCategoryDictionary.size());
        }
        Bytes out;
        for (auto d : dict)
            Put32(out, d);
        std::uint32_t record = offset;
        for (int k = 0; k < 3; ++k) {
            Put16(out, static_cast<std::uint16_t>(kinds[k]->size()));
            for (const RawRecord& r : *kinds[k]) {
                Put32(out, r.hole ? 0xFFFFFFFFu : (r.forcedOffset ? r.forcedOffset : record));
                Put16(out, static_cast<std::uint16_t>(r.forcedSize >= 0 ? r.forcedSize : r.bytes.size()));
                if (!r.hole)
                    record += static_cast<std::uint32_t>(r.bytes.size());
            }
            if (k == 2)
                out.insert(out.end(), trailingAfterCategoryDictionary.begin(), trailingAfterCategoryDictionary.end());
        }
        for (auto* kind : kinds)
            for (const RawRecord& r : *kind)
                if (!r.hole)
                    out.insert(out.end(), r.bytes.begin(), r.bytes.end());
        return out;
    }
};

inline void WriteFile(const std::filesystem::path& path, const Bytes& bytes)
{
    std::ofstream f(path, std::ios::binary | std::ios::trunc);
    f.write(reinterpret_cast<const char*>(bytes.data()), static_cast<std::streamsize>(bytes.size()));
}

/// A fresh temporary folder removed at the end of the test.
class TempDir {
public:
    TempDir()
    {
        std::string pattern = (std::filesystem::temp_directory_path() / "zavoren-test-XXXXXX").string();
        m_path = mkdtemp(pattern.data());
    }
    ~TempDir()
    {
        std::error_code ec;
        std::filesystem::remove_all(m_path, ec);
    }
    const std::filesystem::path& Path() const { return m_path; }
    std::filesystem::path operator/(const std::string& name) const { return m_path / name; }

private:
    std::filesystem::path m_path;
};

} // namespace testdb
