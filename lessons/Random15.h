#pragma once

#include <cstdint>

/// The program's pseudo-random generator: results 0..32767, like the classic C library rand()
/// (seed * 214013 + 2531011, bits 16..30), so that lo + floor(r * (hi - lo + 1) / 32768) is a
/// uniform draw in [lo, hi]. Pages seed it from the clock right before use; tests seed it.
class Random15 {
public:
    static constexpr int Max = 32767;

    explicit Random15(std::uint32_t seed = 1) : m_state(seed) { }
    /// Restarts the sequence.
    void Seed(std::uint32_t seed) { m_state = seed; }
    /// Seeds with the current time in seconds.
    void SeedFromClock();
    /// The next value, 0..32767.
    int Next()
    {
        m_state = m_state * 214013u + 2531011u;
        return static_cast<int>((m_state >> 16) & 0x7FFF);
    }
    /// A uniform integer in [lo, hi]: lo + floor(r * (hi - lo + 1) / 32768).
    int Uniform(int lo, int hi)
    {
        return lo + static_cast<int>(static_cast<std::int64_t>(Next()) * (hi - lo + 1) / 32768);
    }

private:
    std::uint32_t m_state;
};

/// Seed that the pages use; tests replace it to make draws repeatable (0 means the clock).
std::uint32_t& TestSeedOverride();
