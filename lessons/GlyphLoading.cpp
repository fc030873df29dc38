#include "GlyphLoading.h"
#include "StoreMessages.h"

#include "CharacterDatabase.h"
#include "DatabaseLoadException.h"
#include "LexiconAccess.h"
#include "Prompt.h"

std::unique_ptr<Element> LoadGlyphOrReport(
    CharacterDatabase& database, std::uint16_t elementId, Prompt& prompt, QWidget* parent)
{
    try {
        auto glyph = database.LoadElement(elementId);
        if (glyph->FormCount() > 0)
            return glyph;
        prompt.StoreError(parent, DatabaseErrorTitle, StoreMessage::LoadElement);
    } catch (const ZavorenCommon::DatabaseLoadException& e) {
        prompt.StoreError(parent, DatabaseErrorTitle, e.what());
    } catch (const std::out_of_range&) {
        // A composed form naming a form its element lacks.
        prompt.StoreError(parent, DatabaseErrorTitle, StoreMessage::LoadElement);
    }
    return nullptr;
}

CharacterWithGlyph LoadCharacterOrReport(
    CharacterDatabase& database, std::uint16_t code, Prompt& prompt, QWidget* parent)
{
    std::unique_ptr<Character> character;
    try {
        character = database.LoadCharacter(code);
    } catch (const ZavorenCommon::DatabaseLoadException& e) {
        prompt.StoreError(parent, DatabaseErrorTitle, e.what());
        return {};
    }
    auto glyph = LoadGlyphOrReport(database, character->ElementId(), prompt, parent);
    if (!glyph)
        return {};
    return {std::move(character), std::move(glyph)};
}

const Lexicon* LexiconOrReport(LexiconAccess& words, Prompt& prompt, QWidget* parent)
{
    const Lexicon* lexicon = words.Get();
    if (const char* problem = words.TakeProblem())
        prompt.Ask(parent, QMessageBox::Warning, QCoreApplication::translate("LexiconAccess", "Words and parts"),
            QCoreApplication::translate("LexiconAccess", "Words and parts cannot be shown: %1").arg(StoreText(problem)));
    return lexicon;
}

const Form* GlyphCache::operator()(std::uint16_t code)
{
    auto found = m_glyphs.find(code);
    if (found == m_glyphs.end()) {
        std::shared_ptr<Element> glyph;
        try {
            glyph = m_database.LoadElement(m_database.LoadCharacter(code)->ElementId());
        } catch (const ZavorenCommon::DatabaseLoadException&) {
            // A cell without a readable glyph stays blank.
        }
        found = m_glyphs.insert(code, glyph);
    }
    return *found && (*found)->FormCount() > 0 ? &(*found)->GetForm(0) : nullptr;
}
