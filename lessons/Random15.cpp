#include "Random15.h"

#include <ctime>

void Random15::SeedFromClock()
{
    const std::uint32_t overridden = TestSeedOverride();
    Seed(overridden ? overridden : static_cast<std::uint32_t>(std::time(nullptr)));
}

std::uint32_t& TestSeedOverride()
{
    static std::uint32_t seed = 0;
    return seed;
}
