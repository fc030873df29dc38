#pragma once

#include <string>

/// How replacing a file went.
enum class FileWrite {
    Written,
    NoRights, ///< the folder takes no new files (the file itself may still be writable)
    Failed,   ///< the disk is full, the file too large, or the rename failed
};

/// Replaces the file at `path` with `text` so that a failure at any point leaves the previous
/// file complete: a sibling file is written, made durable and renamed over it; an existing
/// file's permissions are kept.
FileWrite ReplaceFileAtomically(const std::string& path, const std::string& text);

/// Writes all of `text` to `fd`, going on after interruptions; false when a write fails.
bool WriteAll(int fd, const std::string& text);
