#pragma once

#include "User.h"

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

class CharacterDatabase;

/// One learner's record in a file of its own, to back it up or move it to another installation:
/// a ZavorenLearner root element with the format version and the number of categories of the
/// database it was written with, holding the same User element as config.xml.
namespace LearnerFile {

/// Why a file could not be read.
enum class Problem {
    None,
    CannotRead, ///< no such file, or not readable
    NotAnExport, ///< some other file, or one of a newer format
    Damaged, ///< an export, but something in it cannot be read
    OtherDatabase, ///< written with a database of another number of categories
};

/// Writes `learner`'s progress (one Progress element for each of `categories`) and the events of
/// their `history`; false when the file could not be written (the previous file, if any, is
/// whole).
bool Export(
    const std::string& path, User& learner, const std::vector<LearnerEvent>& history, std::uint16_t categories);

struct Imported {
    std::unique_ptr<User> learner; ///< null unless the problem is None
    Problem problem = Problem::None;
    std::uint16_t fileCategories = 0; ///< the categories the file was written with
};

/// Reads a learner's file, checked against `database`: every category and character must be
/// one of it.
Imported Import(const std::string& path, CharacterDatabase& database);

} // namespace LearnerFile
