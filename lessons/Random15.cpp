#include "Random15.h"

#include <ctime>

std::uint32_t ClockSeed()
{
    return static_cast<std::uint32_t>(std::time(nullptr));
}
