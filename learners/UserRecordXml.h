#pragma once

#include "User.h"

#include <pugixml.hpp>

#include <cstdint>
#include <vector>

/// A learner's record as the children of their User element, the same in config.xml and in an
/// exported learner file: one Progress element per category (Learned and Untested lists of
/// Character ids), then a History element of dated events when there are any.
///
/// History is written compactly: an Event leaves out `at`, `kind` and `categoryId` when they are
/// the same as the event before it (the characters of one lesson or test share them), and takes
/// them from the event before it when read. An event whose fields cannot be read is dropped, and
/// so not written back; one of a kind this program does not record is kept as it is.

/// Reads the progress and history under `node` into `user` (its name aside).
void ReadUserRecord(const pugi::xml_node& node, User& user);

/// The events of a History element, in order.
std::vector<LearnerEvent> ReadHistory(const pugi::xml_node& history);

/// Writes the progress of `categories` categories of `user` and the events of `history` as
/// children of `node`, which has no children yet.
void WriteUserRecord(
    pugi::xml_node node, User& user, std::uint16_t categories, const std::vector<LearnerEvent>& history);
