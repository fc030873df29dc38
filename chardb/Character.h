#pragma once

#include <cstdint>
#include <optional>
#include <string>

/// One character of the database: ids and three UTF-8 texts, each absent when empty.
class Character {
public:
    /// Id in the database; 0xFFFF in a fresh object.
    std::uint16_t Id() const { return m_id; }
    /// Sets the id.
    void SetId(std::uint16_t id) { m_id = id; }
    /// Id of the glyph element whose first form draws this character.
    std::uint16_t ElementId() const { return m_elementId; }
    /// Sets the glyph element id.
    void SetElementId(std::uint16_t id) { m_elementId = id; }

    /// ON readings, or null when the database has none.
    const char* OnReading() const { return Text(m_onReading); }
    /// KUN readings, or null when the database has none.
    const char* KunReading() const { return Text(m_kunReading); }
    /// Meaning, or null when the database has none.
    const char* Meaning() const { return Text(m_meaning); }
    /// Sets the ON readings; an empty text is kept as no text.
    void SetOnReading(std::string text) { Assign(m_onReading, std::move(text)); }
    /// Sets the KUN readings; an empty text is kept as no text.
    void SetKunReading(std::string text) { Assign(m_kunReading, std::move(text)); }
    /// Sets the meaning; an empty text is kept as no text.
    void SetMeaning(std::string text) { Assign(m_meaning, std::move(text)); }

private:
    static const char* Text(const std::optional<std::string>& text) { return text ? text->c_str() : nullptr; }
    static void Assign(std::optional<std::string>& target, std::string text)
    {
        if (text.empty())
            target.reset();
        else
            target = std::move(text);
    }

    std::uint16_t m_id = 0xFFFF;
    std::uint16_t m_elementId = 0;
    std::optional<std::string> m_meaning;
    std::optional<std::string> m_onReading;
    std::optional<std::string> m_kunReading;
};
