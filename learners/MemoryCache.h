#pragma once

#include "ReviewSchedule.h"

#include <array>
#include <optional>
#include <string>

/// The current learner's memories as the history database held them when the program last
/// closed, in a small file beside it (`history.db.memories`), so that the home page can say
/// what is due without opening the database at start. The file is trusted only while the
/// database and its journal are exactly as they were when it was written (same inode, size and
/// modification time); anything else, or a file that fails its checksum, and the memories are
/// read from the database as usual. Losing the file loses nothing.
namespace MemoryCache {

/// What identifies the state of the history database at `historyPath`: the inode, size and
/// modification time of the file and of its write-ahead journal (-1 for a missing one).
using Stamp = std::array<long long, 6>;
Stamp StampOf(const std::string& historyPath);

/// The file kept beside the history database at `historyPath`.
std::string PathFor(const std::string& historyPath);

/// Writes `learner`'s memories, valid while the database keeps `stamp`; false when it could not.
bool Write(const std::string& path, const Stamp& stamp, const std::string& learner, const LearnerMemories& memories);

/// `learner`'s memories when the file holds them whole, for this learner and this `stamp`.
std::optional<LearnerMemories> Read(const std::string& path, const Stamp& stamp, const std::string& learner);

} // namespace MemoryCache
