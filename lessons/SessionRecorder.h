#pragma once

#include "ProgressRecorder.h"
#include "ReviewSchedule.h"

#include <cstdint>
#include <optional>

class LearnerSession;

/// The rules for the open learner's progress in category `categoryId`, their events kept in
/// the session's history (none without a learner). Retest sends the due characters of `reviews`
/// back first (none: the reviews are off).
std::optional<ProgressRecorder> RecorderFor(
    LearnerSession& session, std::uint16_t categoryId, const std::optional<ReviewSchedule>& reviews);
