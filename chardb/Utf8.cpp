#include "Utf8.h"

Utf8Sequence DecodeUtf8At(std::string_view text, std::size_t at)
{
    const auto lead = static_cast<unsigned char>(text[at]);
    if (lead < 0x80)
        return {lead, 1};
    std::size_t length = 0;
    char32_t c = 0;
    if ((lead & 0xE0) == 0xC0) {
        length = 2;
        c = lead & 0x1F;
    } else if ((lead & 0xF0) == 0xE0) {
        length = 3;
        c = lead & 0x0F;
    } else if ((lead & 0xF8) == 0xF0) {
        length = 4;
        c = lead & 0x07;
    } else {
        return {};
    }
    if (length > text.size() - at)
        return {};
    for (std::size_t k = 1; k < length; ++k) {
        const auto next = static_cast<unsigned char>(text[at + k]);
        if ((next & 0xC0) != 0x80)
            return {};
        c = (c << 6) | (next & 0x3F);
    }
    const char32_t smallest = length == 2 ? 0x80 : length == 3 ? 0x800 : 0x10000;
    if (c < smallest || c > 0x10FFFF || (c >= 0xD800 && c <= 0xDFFF))
        return {};
    return {c, length};
}

bool IsUtf8(std::string_view text)
{
    for (std::size_t i = 0; i < text.size();) {
        const Utf8Sequence s = DecodeUtf8At(text, i);
        if (s.length == 0)
            return false;
        i += s.length;
    }
    return true;
}

std::vector<char32_t> CodePointsOf(std::string_view text)
{
    std::vector<char32_t> points;
    for (std::size_t i = 0; i < text.size();) {
        const Utf8Sequence s = DecodeUtf8At(text, i);
        if (s.length == 0)
            break;
        points.push_back(s.codePoint);
        i += s.length;
    }
    return points;
}

std::string EncodeUtf8(char32_t c)
{
    std::string out;
    if (c < 0x80) {
        out += static_cast<char>(c);
    } else if (c < 0x800) {
        out += static_cast<char>(0xC0 | (c >> 6));
        out += static_cast<char>(0x80 | (c & 0x3F));
    } else if (c < 0x10000) {
        out += static_cast<char>(0xE0 | (c >> 12));
        out += static_cast<char>(0x80 | ((c >> 6) & 0x3F));
        out += static_cast<char>(0x80 | (c & 0x3F));
    } else {
        out += static_cast<char>(0xF0 | (c >> 18));
        out += static_cast<char>(0x80 | ((c >> 12) & 0x3F));
        out += static_cast<char>(0x80 | ((c >> 6) & 0x3F));
        out += static_cast<char>(0x80 | (c & 0x3F));
    }
    return out;
}

bool IsKanji(char32_t c)
{
    return (c >= 0x4E00 && c <= 0x9FFF) || (c >= 0x3400 && c <= 0x4DBF) || (c >= 0xF900 && c <= 0xFAFF)
        || (c >= 0x20000 && c <= 0x3134F);
}
