#pragma once

#include <stdexcept>

/// A build input is missing or broken; the message names the file (and the character and
/// path data for a bad SVG).
class BuildError : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};
