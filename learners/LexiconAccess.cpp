#include "LexiconAccess.h"

#include "CharacterDatabase.h"
#include "DatabaseKey.h"
#include "DatabaseLoadException.h"
#include "StoreMessages.h"
#include "User.h"
#include "Utf8.h"

#include <cstring>

LexiconAccess::LexiconAccess(std::string path, CharacterDatabase& database)
    : m_path(std::move(path)), m_database(&database)
{
}

LexiconAccess::LexiconAccess(std::unique_ptr<Lexicon> lexicon) : m_lexicon(std::move(lexicon)), m_tried(true) { }

LexiconAccess::~LexiconAccess() = default;

const Lexicon* LexiconAccess::Get()
{
    if (m_tried)
        return m_lexicon.get();
    m_tried = true;
    try {
        auto lexicon = std::make_unique<Lexicon>(m_path);
        lexicon->CheckMadeFor(DatabaseKey::Of(*m_database));
        m_lexicon = std::move(lexicon);
    } catch (const ZavorenCommon::DatabaseLoadException& e) {
        // Only damage is worth a message: no file, or one for another database, is no words.
        if (std::strcmp(e.what(), StoreMessage::DamagedLexicon) == 0)
            m_problem = StoreMessage::DamagedLexicon;
    }
    return m_lexicon.get();
}

const char* LexiconAccess::TakeProblem()
{
    const char* problem = m_problem;
    m_problem = nullptr;
    return problem;
}

std::vector<WordPiece> SplitByKnowledge(
    const Lexicon& lexicon, std::string_view writing, const std::function<bool(std::uint16_t)>& learned)
{
    std::vector<WordPiece> pieces;
    for (std::size_t i = 0; i < writing.size();) {
        // The lexicon's texts are checked when it is opened; a bad byte is taken on its own.
        const Utf8Sequence sequence = DecodeUtf8At(writing, i);
        const std::size_t length = sequence.length ? sequence.length : 1;
        const char32_t c = sequence.codePoint;
        bool known = true;
        if (IsKanji(c)) {
            const std::uint16_t id = lexicon.CharacterOf(c);
            known = id != Lexicon::NoCharacter && learned && learned(id);
        }
        if (pieces.empty() || pieces.back().known != known)
            pieces.push_back(WordPiece{std::string(), known});
        pieces.back().text.append(writing.substr(i, length));
        i += length;
    }
    return pieces;
}

bool HasLearned(const User& learner, std::uint16_t id)
{
    for (const CategoryProgress& progress : learner.Progress())
        if (progress.IsLearned(id))
            return true;
    return false;
}

std::function<bool(std::uint16_t)> LearnedBy(const User& learner)
{
    return [&learner](std::uint16_t id) { return HasLearned(learner, id); };
}
