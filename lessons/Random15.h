#pragma once

#include <cstdint>
#include <functional>

/// The program's pseudo-random generator: results 0..32767, like the classic C library rand()
/// (seed * 214013 + 2531011, bits 16..30), so that lo + floor(r * (hi - lo + 1) / 32768) is a
/// uniform draw in [lo, hi]. Pages seed it from the clock right before use; tests seed it.
class Random15 {
public:
    static constexpr int Max = 32767;

    explicit Random15(std::uint32_t seed = 1) : m_state(seed) { }
    /// Restarts the sequence.
    void Seed(std::uint32_t seed) { m_state = seed; }
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

/// Where the pages take a fresh seed right before they draw (the clock in the program).
using SeedSource = std::function<std::uint32_t()>;

/// The current time in seconds, as a seed.
std::uint32_t ClockSeed();
