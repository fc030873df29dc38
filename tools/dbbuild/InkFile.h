#pragma once

#include "StrokePath.h"

#include <stdexcept>
#include <string>
#include <vector>

/// The ink file is missing or not a JSON array of [x, y] pairs; the message says where.
class InkFileError : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

/// Parses a JSON array of [x, y] number pairs (canvas pixels) into learner ink.
StrokePath ParseInkJson(const std::string& text);

/// Reads and parses an ink file.
StrokePath ReadInkFile(const std::string& path);

/// Parses a JSON array of strokes, each an array of [x, y] pairs, in the order drawn.
std::vector<StrokePath> ParseInkStrokesJson(const std::string& text);

/// Reads and parses a file of strokes.
std::vector<StrokePath> ReadInkStrokesFile(const std::string& path);
