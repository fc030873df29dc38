#pragma once

#include "LearnerEvent.h"
#include "ReviewSchedule.h"

#include <QtPlugin>

#include <string>
#include <vector>

class CharacterDatabase;
class LexiconAccess;
class Prompt;
class QWidget;
class User;

/// Makes the progress window. The window lives in a module of its own, loaded on first use, so
/// that the charts it draws cost nothing at start-up.
class ProgressViewFactory {
public:
    virtual ~ProgressViewFactory() = default;

    /// A window (not yet shown, deleted when closed) on `learner`'s progress and whole
    /// `history` up to the date of `now` (an event time), with their `reviews` when the aid is
    /// on, owned by `parent`. Characters open in Kanji Info through `database` and `prompt`,
    /// with their words and parts from `words` (null with the aid off); `learner` and `words`
    /// must outlive the window.
    virtual QWidget* CreateProgressView(CharacterDatabase& database, Prompt& prompt, const User& learner,
        std::vector<LearnerEvent> history, const std::string& now, std::optional<ReviewSchedule> reviews,
        LexiconAccess* words, QWidget* parent)
        = 0;
};

#define ZavorenProgressViewFactory_iid "io.github.zavoren.Zavoren.ProgressViewFactory/1.3"
Q_DECLARE_INTERFACE(ProgressViewFactory, ZavorenProgressViewFactory_iid)
