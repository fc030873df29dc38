#pragma once

#include "ProgressRecorder.h"
#include "ReviewSchedule.h"
#include "ReviewSitting.h"

#include <cstdint>
#include <optional>

class LearnerSession;

/// The rules for the open learner's progress in category `categoryId`, their events kept in
/// the session's history (none without a learner). Retest sends the due characters of `reviews`
/// back first (none: the reviews are off).
std::optional<ProgressRecorder> RecorderFor(
    LearnerSession& session, std::uint16_t categoryId, const std::optional<ReviewSchedule>& reviews);

/// A character of a review sitting answered: recorded in its own category as a test result
/// (kept in the history at once), and the learner's record written when the character left the
/// learned list, so that nothing answered is lost if the program ends before the sitting does.
/// Throws ConfigException when the record cannot be written; does nothing without a learner.
void RecordReview(LearnerSession& session, const ReviewSitting::Item& item, bool passed, int mistakes);
