#pragma once

#include <cstdint>
#include <string_view>

class CharacterDatabase;

/// A fingerprint of a database's characters that does not depend on the language of its
/// meanings: the count of characters and, in id order, each one's ON and KUN readings. The
/// lexicon records the key of the database it was made for, so that one made for another
/// database (where id 12 is another character) is never read as this one's.
class DatabaseKey {
public:
    /// Adds the next character's readings (null or empty for none).
    void Add(std::string_view onReading, std::string_view kunReading);
    /// The key of what was added.
    std::uint64_t Value() const;

    /// The key of every character of `database`; throws DatabaseLoadException as its loads do.
    static std::uint64_t Of(CharacterDatabase& database);

private:
    void Mix(std::string_view bytes);

    std::uint64_t m_hash = 0xcbf29ce484222325ULL; // FNV-1a offset basis
    std::uint32_t m_count = 0;
};
