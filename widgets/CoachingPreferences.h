#pragma once

/// The aids a learner can switch off (Tools > Preferences). All on by default; all off, the
/// program behaves exactly as it always has.
struct CoachingPreferences {
    /// Say why a stroke was refused, show the refused ink fading, the way to a misplaced
    /// stroke's place and the start of a reversed one.
    bool explainRefusals = true;
    /// Faint guide lines through the middle of the writing canvas.
    bool practiceGrid = true;
    /// In a lesson, after three refusals of the same stroke, show where it starts.
    bool hintAfterMisses = true;
    /// At start, a window whose stored place is off every screen, or whose top-left corner is
    /// off its screen, is brought onto the screen.
    bool keepOnScreen = true;
    /// Judge each stroke's place and size in the learner's own character (fitted to the strokes
    /// already accepted), not only against the model's place on the canvas.
    bool ownFrame = true;
    /// Say how many learned characters are due for review (home page), send the due ones back
    /// first on Retest, and show the reviews in the progress window and Kanji Info.
    bool reviewWhenDue = true;
    /// The reviews' desired retention (0.80 to 0.97) and longest interval in days (30 to 3650).
    double retention = 0.90;
    int maximumInterval = 365;
    /// Kanji Info shows common words that use the character and the parts it is built from.
    bool wordsAndParts = true;
    /// The reading test shows a word that uses the character with the reading just answered.
    bool wordAfterAnswer = true;
    /// A stroke right in another stroke order that KanjiVG records (the vertical stroke of 王
    /// last, say) is accepted, and the learner is judged in that order from then on.
    bool otherOrders = true;
    /// A finished stroke is steadied (resampled and smoothed, its corners kept) before it is
    /// judged: a shaking hand's or a finger's jitter is not refused as a wrong length or shape.
    bool steadyInk = true;
    /// The category page has a Words button: a test of whole words made of learned characters.
    bool wordsTest = true;
    /// "Print practice sheet…" in the File menu and the category page's context menus.
    bool practiceSheets = true;
    /// A review sitting takes at most this many due characters (10 to 500).
    int reviewsPerSitting = 50;
    /// A review sitting asks only to write each character, not its readings.
    bool reviewWritingOnly = false;

    static CoachingPreferences AllOff()
    {
        CoachingPreferences off{false, false, false, false, false, false};
        off.wordsAndParts = false;
        off.wordAfterAnswer = false;
        off.otherOrders = false;
        off.steadyInk = false;
        off.wordsTest = false;
        off.practiceSheets = false;
        return off;
    }
    bool operator==(const CoachingPreferences&) const = default;
};
