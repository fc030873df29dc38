#include "WordsTest.h"

#include "Utf8.h"

#include <algorithm>
#include <unordered_set>

std::size_t WordQuestion::KanjiCount() const
{
    return static_cast<std::size_t>(
        std::count_if(characters.begin(), characters.end(), [](std::uint16_t id) { return id != Lexicon::NoCharacter; }));
}

bool WordsTest::IsKana(char32_t c)
{
    return (c >= 0x3041 && c <= 0x3096) || (c >= 0x30A1 && c <= 0x30FA) || c == 0x30FC;
}

std::vector<WordQuestion> WordsTest::Eligible(
    const Lexicon& lexicon, const std::vector<std::uint16_t>& categoryLearned, const Learned& learned)
{
    std::vector<WordQuestion> longer, single;
    std::unordered_set<std::string_view> seen;
    for (std::uint16_t id : categoryLearned)
        for (const LexiconWord& word : lexicon.Words(id)) {
            if (!seen.insert(word.writing).second)
                continue;
            WordQuestion question;
            question.codePoints = CodePointsOf(word.writing);
            if (question.codePoints.empty() || question.codePoints.size() > LongestWord)
                continue;
            bool usable = true;
            for (char32_t c : question.codePoints) {
                if (IsKana(c)) {
                    question.characters.push_back(Lexicon::NoCharacter);
                    continue;
                }
                const std::uint16_t character = lexicon.CharacterOf(c);
                if (character == Lexicon::NoCharacter || !learned(character)) {
                    usable = false;
                    break;
                }
                question.characters.push_back(character);
            }
            if (!usable || question.KanjiCount() == 0)
                continue;
            question.writing = std::string(word.writing);
            question.reading = std::string(word.reading);
            question.meaning = std::string(word.meaning);
            question.common = word.common;
            (question.codePoints.size() == 1 ? single : longer).push_back(std::move(question));
        }
    if (longer.size() < TestSize)
        longer.insert(longer.end(), std::make_move_iterator(single.begin()), std::make_move_iterator(single.end()));
    return longer;
}

std::vector<WordQuestion> WordsTest::Choose(
    const std::vector<WordQuestion>& eligible, Random15& random, const std::set<std::string>& previous)
{
    // The previous test's words stand aside while enough others are left.
    std::vector<const WordQuestion*> fresh, again;
    for (const WordQuestion& word : eligible)
        (previous.count(word.writing) ? again : fresh).push_back(&word);
    std::vector<WordQuestion> chosen;
    for (std::vector<const WordQuestion*>* pool : {&fresh, &again}) {
        // Drawn one at a time, each in proportion to its weight, without putting back.
        long total = 0;
        for (const WordQuestion* word : *pool)
            total += word->common ? CommonWeight : 1;
        while (chosen.size() < TestSize && !pool->empty()) {
            // Two draws of 15 bits: enough for any pool's total weight.
            const long r = (static_cast<long>(random.Next()) << 15 | random.Next()) % total;
            long at = 0;
            auto picked = pool->begin();
            for (; picked != pool->end(); ++picked) {
                at += (*picked)->common ? CommonWeight : 1;
                if (r < at)
                    break;
            }
            total -= (*picked)->common ? CommonWeight : 1;
            chosen.push_back(**picked);
            pool->erase(picked);
        }
    }
    return chosen;
}

std::vector<LearnerEvent> WordsTest::Events(const User& learner, std::uint16_t categoryId, const WordQuestion& word,
    const std::vector<int>& mistakes, const std::string& at)
{
    std::vector<LearnerEvent> events;
    for (std::size_t i = 0; i < word.characters.size() && i < mistakes.size(); ++i) {
        const std::uint16_t id = word.characters[i];
        if (id == Lexicon::NoCharacter)
            continue;
        // Where it was learned: this category first.
        std::uint16_t where = categoryId;
        bool found = false;
        for (const CategoryProgress& progress : learner.Progress())
            if (progress.IsLearned(id) && (!found || progress.CategoryId() == categoryId)) {
                where = progress.CategoryId();
                found = true;
            }
        events.push_back({at, LearnerEvent::Word, where, id, mistakes[i] < 0 ? -1 : mistakes[i]});
    }
    return events;
}
