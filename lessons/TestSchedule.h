#pragma once

#include <cstdint>
#include <optional>
#include <vector>

/// The bookkeeping of a test: for every character and question page, how often it was answered
/// cleanly and with mistakes, and which question comes next. A question passes after two clean
/// answers when never missed, after three when missed once; a second miss fails it for good.
class TestSchedule {
public:
    enum class State : std::int32_t { Open = 0, Passed = 1, Failed = 2 };
    struct Entry {
        State state = State::Open;
        std::uint16_t clean = 0;
        std::uint16_t mistakes = 0;
        std::uint16_t Attempts() const { return static_cast<std::uint16_t>(clean + mistakes); }
    };

    explicit TestSchedule(std::uint16_t pageCount = 2) : m_pageCount(pageCount) { }

    /// Starts a test of these codes and chooses the first question (none for an empty list).
    /// The page `skipped` is never asked: it counts as passed without an attempt.
    void Start(std::vector<std::uint16_t> codes, std::optional<std::uint16_t> skipped = std::nullopt);
    /// Records an answer from `page`; ignored unless it is the page now asked, or when the
    /// question is already decided.
    void Answer(std::uint16_t page, bool clean);
    /// Moves on after an answer: false when no character is open any more (test finished).
    bool Next();

    /// Whether a question is being asked.
    bool HasQuestion() const { return m_current.has_value(); }
    /// Index (in the list) of the character asked.
    std::optional<std::size_t> CurrentCharacter() const { return m_current; }
    /// The code asked, when a question is asked.
    std::optional<std::uint16_t> CurrentCode() const;
    /// The page asked.
    std::uint16_t CurrentPage() const { return m_page; }
    /// A character's status: its first open entry makes it open, else its first failed entry
    /// failed, else passed.
    State Status(std::size_t character) const;
    /// Sum of a character's attempts over its pages.
    std::uint16_t Attempts(std::size_t character) const;
    /// Questions of the character with this code answered with mistakes (0 for a code not in
    /// the test).
    int MistakesOf(std::uint16_t code) const;
    /// One entry; throws std::out_of_range for a bad index.
    const Entry& EntryOf(std::size_t character, std::uint16_t page) const { return m_records.at(character).at(page); }
    /// The codes under test.
    const std::vector<std::uint16_t>& Codes() const { return m_codes; }
    /// Codes whose status is passed, in list order.
    std::vector<std::uint16_t> PassedCodes() const;
    /// Codes whose status is failed, in list order.
    std::vector<std::uint16_t> FailedCodes() const;

private:
    void ChooseNext();
    bool AnyOpen() const;

    std::uint16_t m_pageCount;
    std::vector<std::uint16_t> m_codes;
    std::vector<std::vector<Entry>> m_records;
    std::optional<std::size_t> m_current;
    std::uint16_t m_page = 0;
};
