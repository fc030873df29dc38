#include "TextRules.h"

#include <cstdint>

std::uint16_t ParseId(std::string_view text)
{
    std::size_t i = 0;
    while (i < text.size() && (text[i] == ' ' || (text[i] >= '\t' && text[i] <= '\r')))
        ++i;
    bool negative = false;
    if (i < text.size() && (text[i] == '+' || text[i] == '-')) {
        negative = text[i] == '-';
        ++i;
    }
    std::int64_t value = 0;
    for (; i < text.size() && text[i] >= '0' && text[i] <= '9'; ++i) {
        value = value * 10 + (text[i] - '0');
        if (value > 2147483648LL)
            value = 2147483648LL; // beyond a 32-bit int: saturate, as the runtime does
    }
    if (negative)
        value = -value;
    if (value > 2147483647LL)
        value = 2147483647LL;
    return static_cast<std::uint16_t>(static_cast<std::uint32_t>(static_cast<std::int32_t>(value)));
}

bool EqualsIgnoringAsciiCase(std::string_view a, std::string_view b)
{
    if (a.size() != b.size())
        return false;
    for (std::size_t i = 0; i < a.size(); ++i) {
        char x = a[i], y = b[i];
        if (x >= 'A' && x <= 'Z')
            x = static_cast<char>(x - 'A' + 'a');
        if (y >= 'A' && y <= 'Z')
            y = static_cast<char>(y - 'A' + 'a');
        if (x != y)
            return false;
    }
    return true;
}

bool ParsePlainNumber(std::string_view text, unsigned& value)
{
    if (text.empty() || text.size() > 5)
        return false;
    value = 0;
    for (const char c : text) {
        if (c < '0' || c > '9')
            return false;
        value = value * 10 + static_cast<unsigned>(c - '0');
    }
    return value <= 0xFFFF;
}
