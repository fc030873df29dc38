#pragma once

#include <cstdint>
#include <functional>
#include <string>

/// One dated change of a learner's progress, kept in their history: when, what, in which
/// category, which character, and for tests how many questions of it were answered with mistakes.
struct LearnerEvent {
    /// The kinds the program records. A kind it does not know (from a newer program) is kept
    /// as it was read and written back unchanged.
    static constexpr const char* Lesson = "lesson"; ///< a character taught to the end
    static constexpr const char* Passed = "passed"; ///< a test passed: the character is learned
    static constexpr const char* Failed = "failed"; ///< a test failed: not learned again
    static constexpr const char* Retest = "retest"; ///< sent back from learned for testing
    static constexpr const char* Forget = "forget"; ///< removed from learned on the category page
    static constexpr const char* Learn = "learn"; ///< a lesson of this one new character begun
    static constexpr const char* Review = "review"; ///< a lesson of one character already taught
    /// A learned character written from memory in a word of the words test: with its mistakes
    /// (hints taken), or without a count when the learner gave up on the word before writing it.
    static constexpr const char* Word = "word";

    std::string at; ///< local date and time, ISO 8601 with the offset: 2026-11-22T09:08:07+01:00
    std::string kind;
    std::uint16_t categoryId = 0;
    std::uint16_t id = 0;
    int mistakes = -1; ///< for tests and words; -1 where it does not apply

    bool operator==(const LearnerEvent&) const = default;
};

/// Gives the local time as LearnerEvent::at spells it.
using EventClock = std::function<std::string()>;

/// The local time now, as LearnerEvent::at spells it.
std::string LocalTimeNow();

/// Whether `text` is a date and time as LearnerEvent::at spells it.
bool IsEventTime(const std::string& text);

/// The local date of an event time as a day number (days since 1970-01-01), or -1 when `at` is
/// not an event time or its date does not exist.
int EventDay(const std::string& at);

/// The date of a day number as YYYY-MM-DD.
std::string DayText(int day);

/// Day number of a civil date (proleptic Gregorian calendar).
int DayOfDate(int year, int month, int day);
