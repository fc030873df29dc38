#include "DatabaseKey.h"

#include "CharacterDatabase.h"

namespace {
constexpr std::uint64_t FnvPrime = 0x100000001b3ULL;
}

void DatabaseKey::Mix(std::string_view bytes)
{
    for (const char c : bytes) {
        m_hash ^= static_cast<std::uint8_t>(c);
        m_hash *= FnvPrime;
    }
}

void DatabaseKey::Add(std::string_view onReading, std::string_view kunReading)
{
    // The separators keep ("ab", "") apart from ("a", "b").
    Mix(onReading);
    Mix(std::string_view("\0", 1));
    Mix(kunReading);
    Mix(std::string_view("\n", 1));
    ++m_count;
}

std::uint64_t DatabaseKey::Value() const
{
    std::uint64_t hash = m_hash;
    for (int shift = 0; shift < 32; shift += 8) {
        hash ^= (m_count >> shift) & 0xFF;
        hash *= FnvPrime;
    }
    return hash;
}

std::uint64_t DatabaseKey::Of(CharacterDatabase& database)
{
    DatabaseKey key;
    const std::uint16_t count = database.CharacterCount();
    for (std::uint32_t id = 0; id < count; ++id) {
        if (!database.CharacterExists(static_cast<std::uint16_t>(id))) {
            key.Add("\x01", "\x01"); // a hole in the dictionary, unlike any reading
            continue;
        }
        const auto character = database.LoadCharacter(static_cast<std::uint16_t>(id));
        const char* on = character->OnReading();
        const char* kun = character->KunReading();
        key.Add(on ? on : "", kun ? kun : "");
    }
    return key.Value();
}
