#include "GlyphLoading.h"

#include "CharacterDatabase.h"
#include "DatabaseLoadException.h"
#include "MessageBox.h"

namespace {
const char* const DatabaseErrorTitle = "Zavoren Database Error";
} // namespace

std::unique_ptr<Element> LoadGlyphOrReport(CharacterDatabase& database, std::uint16_t elementId, QWidget* parent)
{
    try {
        auto glyph = database.LoadElement(elementId);
        if (glyph->FormCount() > 0)
            return glyph;
        ShowStoreError(parent, DatabaseErrorTitle, "Unable to load element");
    } catch (const ZavorenCommon::DatabaseLoadException& e) {
        ShowStoreError(parent, DatabaseErrorTitle, e.what());
    } catch (const std::out_of_range&) {
        // A composed form naming a form its element lacks.
        ShowStoreError(parent, DatabaseErrorTitle, "Unable to load element");
    }
    return nullptr;
}

CharacterWithGlyph LoadCharacterOrReport(CharacterDatabase& database, std::uint16_t code, QWidget* parent)
{
    std::unique_ptr<Character> character;
    try {
        character = database.LoadCharacter(code);
    } catch (const ZavorenCommon::DatabaseLoadException& e) {
        ShowStoreError(parent, DatabaseErrorTitle, e.what());
        return {};
    }
    auto glyph = LoadGlyphOrReport(database, character->ElementId(), parent);
    if (!glyph)
        return {};
    return {std::move(character), std::move(glyph)};
}
