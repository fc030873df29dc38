#pragma once

#include <cstdint>

/// Receives the progress of CharacterDatabase::Preload (the start-up window shows it).
class DatabaseProgress {
public:
    virtual ~DatabaseProgress() = default;
    /// The current position inside the range.
    virtual void SetPosition(std::uint32_t position) = 0;
    /// The range of positions that will be reported.
    virtual void SetRange(std::uint32_t lowest, std::uint32_t highest) = 0;
};
