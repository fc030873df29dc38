#pragma once

#include "Stroke.h"

#include <stdexcept>
#include <string_view>

/// A path's data could not be read; the message says what and where.
class SvgPathError : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

/// Turns the `d` attribute of one SVG path into a stroke. The first moveto is the stroke's
/// start; a later moveto becomes a Move segment. Accepts M/m, L/l, H/h, V/v, C/c, S/s (with the
/// reflected control point) and Z/z, implicit repetition of parameters, and numbers written
/// without separators ("62.16-0.26", "0.5.5"). Throws SvgPathError for anything else.
Stroke ParseSvgPath(std::string_view data);
