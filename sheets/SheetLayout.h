#pragma once

#include <cstddef>
#include <vector>

/// The paper a practice sheet is printed on.
enum class Paper { A4, Letter };

/// What a practice sheet holds besides each character: the learner's choices.
struct SheetOptions {
    static constexpr int MinimumBoxes = 6;
    static constexpr int MaximumBoxes = 12;
    static constexpr int MinimumTrace = 1;
    static constexpr int MaximumTrace = 6;

    Paper paper = Paper::A4;
    int boxesPerRow = 8; ///< practice boxes in a character's row
    int traceBoxes = 3; ///< the first boxes hold the character in light grey, to trace
    bool strokeOrder = true; ///< a row of small frames, one per stroke
    bool words = true; ///< two common words under the readings

    /// The same choices brought into their ranges.
    SheetOptions Clamped() const;
    bool operator==(const SheetOptions&) const = default;
};

/// A rectangle on the page, in millimetres from its top-left corner.
struct SheetRect {
    double x = 0;
    double y = 0;
    double width = 0;
    double height = 0;
    double Bottom() const { return y + height; }
    double Right() const { return x + width; }
};

/// What is to be laid out for one character.
struct SheetItem {
    int strokeCount = 0;
    bool hasWords = false; ///< the lexicon has common words for it
};

/// One character's block: the character large with its readings and meaning (and words) beside
/// it, its stroke order as a row of frames under the texts, then a row of practice boxes.
struct SheetBlock {
    std::size_t item = 0; ///< index in the items laid out
    SheetRect bounds;
    SheetRect glyph;
    SheetRect text; ///< `textLines` lines of SheetLayout::LineHeight
    int textLines = 0;
    std::vector<SheetRect> order; ///< frame k shows strokes 1..k
    std::vector<SheetRect> boxes;
    int traceBoxes = 0; ///< the first boxes to trace
};

struct SheetPage {
    std::vector<SheetBlock> blocks;
};

/// Where everything of a practice sheet goes: blocks one under the other, as many as a page
/// holds, a block never cut across pages. Plain arithmetic in millimetres, no Qt.
class SheetLayout {
public:
    /// Every edge keeps this much paper free (common printers need 10 mm at most).
    static constexpr double Margin = 12;
    /// Kept at the foot of each page's content for its number.
    static constexpr double Footer = 6;
    static constexpr double GlyphSide = 22;
    static constexpr double LineHeight = 5;
    static constexpr double FrameSide = 8;
    static constexpr double FrameGap = 1;
    /// Between the large character and its texts, between the parts of a block, between blocks.
    static constexpr double Gap = 2;
    static constexpr double BlockGap = 4;

    /// The paper's width and height in millimetres.
    static SheetRect PaperSize(Paper paper);
    /// The area blocks are laid in (the paper less its margins and footer).
    static SheetRect ContentArea(Paper paper);
    /// Lays out one block per item, in order, on as many pages as they take.
    static std::vector<SheetPage> Lay(const std::vector<SheetItem>& items, const SheetOptions& options);
    /// One item's block with its top-left corner at (x, y).
    static SheetBlock LayBlock(const SheetItem& item, std::size_t index, const SheetOptions& options, double x, double y);
};
