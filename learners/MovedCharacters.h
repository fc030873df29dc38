#pragma once

#include "User.h"

#include <cstdint>
#include <vector>

class CharacterDatabase;

/// A newer KANJIDIC2 may teach a character in another grade: the database then lists it in
/// another category than the one the learner's record has it under. Its progress follows it:
/// a learned or untested character that its category no longer holds moves to the same list of
/// the category that holds it now (at the end, keeping its order among those moved). One that no
/// category holds stays where it is. Returns whether anything moved.
bool FollowMovedCharacters(User& learner, const std::vector<std::vector<std::uint16_t>>& categoryMembers);

/// As above, with the categories of `database`; nothing moves when they cannot be read.
bool FollowMovedCharacters(User& learner, CharacterDatabase& database);
