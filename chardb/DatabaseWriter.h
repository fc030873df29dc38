#pragma once

#include "Form.h"

#include <cstdint>
#include <string>
#include <vector>

/// Assembles a `database` file: elements, characters and categories by dense id. Records are
/// laid out after the header and the three dictionaries.
class DatabaseWriter {
public:
    /// Adds an element made of one kind-1 form; returns its id.
    std::uint16_t AddStrokeElement(const Form& form);
    /// Adds an element made of several kind-1 forms (at most 255), in this order; returns its id.
    std::uint16_t AddStrokeElement(const std::vector<Form>& forms);
    /// Adds an element from already encoded form bytes (u8 form count then forms); returns its id.
    std::uint16_t AddRawElement(std::vector<std::uint8_t> record);
    /// Adds a character; texts longer than 255 bytes are a programming error. Returns its id.
    std::uint16_t AddCharacter(
        std::uint16_t elementId, const std::string& on, const std::string& kun, const std::string& meaning);
    /// Keeps an id with no character (one gone from the data, whose id is never given again):
    /// the reader finds no character there. Returns the id.
    std::uint16_t AddMissingCharacter();
    /// Adds a category with its members in teaching order; returns its id.
    std::uint16_t AddCategory(const std::string& name, const std::vector<std::uint16_t>& members);

    /// The whole file. Throws std::length_error when a record or a dictionary is too large for
    /// the format (a record over 65535 bytes, more than 65535 entries).
    std::vector<std::uint8_t> Serialize() const;

private:
    std::vector<std::vector<std::uint8_t>> m_elements;
    std::vector<std::vector<std::uint8_t>> m_characters;
    std::vector<std::vector<std::uint8_t>> m_categories;
};
