#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

/// A named list of character ids in teaching order.
class Category {
public:
    /// Index of the category in the database.
    std::uint16_t Id() const { return m_id; }
    /// Sets the id.
    void SetId(std::uint16_t id) { m_id = id; }
    /// The category's name, or null when it has none.
    const char* Name() const { return m_name ? m_name->c_str() : nullptr; }
    /// Sets the name; an empty text is kept as no name.
    void SetName(std::string name)
    {
        if (name.empty())
            m_name.reset();
        else
            m_name = std::move(name);
    }
    /// Number of member characters.
    std::size_t CharacterCount() const { return m_codes.size(); }
    /// Member character id by position; throws std::out_of_range for a bad position.
    std::uint16_t CharacterAt(std::size_t index) const { return m_codes.at(index); }
    /// Appends a member.
    void AppendCharacter(std::uint16_t code) { m_codes.push_back(code); }
    /// All members in teaching order.
    const std::vector<std::uint16_t>& Characters() const { return m_codes; }

private:
    std::uint16_t m_id = 0;
    std::optional<std::string> m_name;
    std::vector<std::uint16_t> m_codes;
};
