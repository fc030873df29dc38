#pragma once

#include "LearnerEvent.h"
#include "Lexicon.h"
#include "Random15.h"
#include "User.h"

#include <cstdint>
#include <functional>
#include <set>
#include <string>
#include <vector>

/// A word a words test can ask: how it is written, read and meant, and for each of its
/// characters the database character to write, or NoCharacter for a kana printed in its cell.
struct WordQuestion {
    std::string writing;
    std::string reading;
    std::string meaning;
    bool common = false;
    std::vector<char32_t> codePoints;
    std::vector<std::uint16_t> characters;
    /// How many of its characters are written (kanji).
    std::size_t KanjiCount() const;
    bool operator==(const WordQuestion&) const = default;
};

/// The words test of a category: which words it asks, and what writing them records.
/// Which words:  words of the lexicon that use the category's
/// learned characters and are made only of characters the learner has learned (in any category)
/// and kana. A common word is drawn CommonWeight times as often as another; no word twice in a
/// test, and none of the previous test's words while others are left, so that over many tests
/// every word comes up. Words of one character only when the category has fewer than TestSize
/// longer ones. No Qt.
class WordsTest {
public:
    static constexpr std::size_t TestSize = 5;
    static constexpr int CommonWeight = 3;
    /// Longer words do not fit the page's row of writing squares.
    static constexpr std::size_t LongestWord = 4;
    using Learned = std::function<bool(std::uint16_t id)>;

    /// The words a test of the category could ask, in the order of the category's learned
    /// characters and of each one's words; each word once.
    static std::vector<WordQuestion> Eligible(
        const Lexicon& lexicon, const std::vector<std::uint16_t>& categoryLearned, const Learned& learned);
    /// Up to TestSize words drawn from `eligible`; a word whose writing is in `previous` only when
    /// too few others are left.
    static std::vector<WordQuestion> Choose(
        const std::vector<WordQuestion>& eligible, Random15& random, const std::set<std::string>& previous);
    /// What writing one word records, as one action dated `at`: for each kanji of the word a
    /// "word" event in the category where `learner` learned it (`categoryId` when learned there),
    /// with its hints taken as mistakes, or without a count (-1 in `mistakes`) when not written.
    /// `mistakes` has one entry per character of the word; kana are skipped.
    static std::vector<LearnerEvent> Events(const User& learner, std::uint16_t categoryId, const WordQuestion& word,
        const std::vector<int>& mistakes, const std::string& at);
    /// Whether a code point is kana (hiragana, katakana, the long-vowel mark), printed in a word.
    static bool IsKana(char32_t codePoint);
};
