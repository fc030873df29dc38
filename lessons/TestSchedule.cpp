#include "TestSchedule.h"

void TestSchedule::Start(std::vector<std::uint16_t> codes, std::optional<std::uint16_t> skipped)
{
    m_codes = std::move(codes);
    m_page = 0;
    m_records.assign(m_codes.size(), std::vector<Entry>(m_pageCount));
    if (skipped && *skipped < m_pageCount)
        for (auto& entries : m_records)
            entries[*skipped].state = State::Passed;
    m_current.reset();
    ChooseNext();
}

std::optional<std::uint16_t> TestSchedule::CurrentCode() const
{
    if (!m_current)
        return std::nullopt;
    return m_codes.at(*m_current);
}

void TestSchedule::Answer(std::uint16_t page, bool clean)
{
    if (!m_current || page != m_page)
        return;
    Entry& entry = m_records.at(*m_current).at(page);
    if (entry.state != State::Open)
        return;
    if (clean) {
        ++entry.clean;
        if (entry.clean == entry.mistakes + 2)
            entry.state = State::Passed;
    } else {
        ++entry.mistakes;
        if (entry.mistakes == 2)
            entry.state = State::Failed;
    }
}

bool TestSchedule::Next()
{
    if (m_current)
        ++m_page; // the other kind of question comes next when it is due
    if (!AnyOpen()) {
        m_current.reset();
        return false;
    }
    ChooseNext();
    return true;
}

TestSchedule::State TestSchedule::Status(std::size_t character) const
{
    const auto& entries = m_records.at(character);
    for (const Entry& e : entries)
        if (e.state == State::Open)
            return State::Open;
    for (const Entry& e : entries)
        if (e.state == State::Failed)
            return State::Failed;
    return State::Passed;
}

std::uint16_t TestSchedule::Attempts(std::size_t character) const
{
    std::uint16_t sum = 0;
    for (const Entry& e : m_records.at(character))
        sum = static_cast<std::uint16_t>(sum + e.Attempts());
    return sum;
}

int TestSchedule::MistakesOf(std::uint16_t code) const
{
    for (std::size_t i = 0; i < m_codes.size(); ++i) {
        if (m_codes[i] != code)
            continue;
        int sum = 0;
        for (const Entry& e : m_records.at(i))
            sum += e.mistakes;
        return sum;
    }
    return 0;
}

bool TestSchedule::AnyOpen() const
{
    for (std::size_t i = 0; i < m_codes.size(); ++i)
        if (Status(i) == State::Open)
            return true;
    return false;
}

void TestSchedule::ChooseNext()
{
    // The open character with the fewest attempts; the earliest among equals.
    std::optional<std::size_t> chosen;
    for (std::size_t i = 0; i < m_codes.size(); ++i) {
        if (Status(i) != State::Open)
            continue;
        if (!chosen || Attempts(i) < Attempts(*chosen))
            chosen = i;
    }
    m_current = chosen;
    if (!chosen)
        return;
    // The open page with the fewest attempts, preferring the page after the one just asked.
    if (m_page >= m_pageCount)
        m_page = 0;
    const auto& entries = m_records[*chosen];
    for (std::uint16_t i = 0; i < m_pageCount; ++i) {
        if (entries[i].state != State::Open)
            continue;
        const bool keep = entries[m_page].state == State::Open && entries[m_page].Attempts() <= entries[i].Attempts();
        if (!keep)
            m_page = i;
    }
}

std::vector<std::uint16_t> TestSchedule::PassedCodes() const
{
    std::vector<std::uint16_t> out;
    for (std::size_t i = 0; i < m_codes.size(); ++i)
        if (Status(i) == State::Passed)
            out.push_back(m_codes[i]);
    return out;
}

std::vector<std::uint16_t> TestSchedule::FailedCodes() const
{
    std::vector<std::uint16_t> out;
    for (std::size_t i = 0; i < m_codes.size(); ++i)
        if (Status(i) == State::Failed)
            out.push_back(m_codes[i]);
    return out;
}
