#pragma once

#include "Random15.h"

#include <string>
#include <vector>

class Character;
class CharacterDatabase;

/// The offered readings of a reading question: the right one and distractors (readings of
/// random characters of the whole database), all different, the right one at a random place.
struct ReadingChoices {
    std::vector<std::string> on; ///< one per ON button; "" stands for no reading
    std::vector<std::string> kun; ///< one per KUN button

    /// Draws the choices for `character`. Draws stop after `maxDraws` per list when the
    /// database has too few different readings, leaving the list shorter.
    static ReadingChoices Build(CharacterDatabase& database, const Character& character, Random15& random,
        std::size_t buttons = 5, int maxDraws = 100000);
};
