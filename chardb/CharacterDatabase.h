#pragma once

#include "Category.h"
#include "Character.h"
#include "DatabaseProgress.h"
#include "Element.h"

#include <cstdint>
#include <memory>

/// Read-only source of characters, categories and glyph elements. Loads hand out new objects
/// owned by the caller; failures throw ZavorenCommon::DatabaseLoadException.
class CharacterDatabase {
public:
    virtual ~CharacterDatabase() = default;
    /// Whether an element with this id can be read.
    virtual bool ElementExists(std::uint16_t id) = 0;
    /// A deep copy of the element, with composed forms resolved.
    virtual std::unique_ptr<Element> LoadElement(std::uint16_t id) = 0;
    /// Whether a character with this id exists.
    virtual bool CharacterExists(std::uint16_t id) = 0;
    /// A copy of the character.
    virtual std::unique_ptr<Character> LoadCharacter(std::uint16_t id) = 0;
    /// The category read afresh from the file.
    virtual std::unique_ptr<Category> LoadCategory(std::uint16_t id) = 0;
    /// Number of entries of the character dictionary.
    virtual std::uint16_t CharacterCount() const = 0;
    /// Number of entries of the element dictionary.
    virtual std::uint16_t ElementCount() const = 0;
    /// Number of entries of the category dictionary.
    virtual std::uint16_t CategoryCount() const = 0;
    /// Reads every character and element into memory; `progress` may be null. Call once.
    virtual void Preload(DatabaseProgress* progress) = 0;
};

/// The process's database, opened on first use from the file "database" in the current folder.
/// A failed open throws and leaves it unset, so the next call tries again.
CharacterDatabase& GetDatabase();

/// Destroys the process's database; the next GetDatabase opens it again.
void ReleaseDatabase();
