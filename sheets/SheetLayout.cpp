#include "SheetLayout.h"

#include <algorithm>
#include <cmath>

SheetOptions SheetOptions::Clamped() const
{
    SheetOptions o = *this;
    o.boxesPerRow = std::clamp(o.boxesPerRow, MinimumBoxes, MaximumBoxes);
    o.traceBoxes = std::clamp(o.traceBoxes, MinimumTrace, std::min(MaximumTrace, o.boxesPerRow));
    return o;
}

SheetRect SheetLayout::PaperSize(Paper paper)
{
    return paper == Paper::Letter ? SheetRect{0, 0, 215.9, 279.4} : SheetRect{0, 0, 210, 297};
}

SheetRect SheetLayout::ContentArea(Paper paper)
{
    const SheetRect size = PaperSize(paper);
    return {Margin, Margin, size.width - 2 * Margin, size.height - 2 * Margin - Footer};
}

SheetBlock SheetLayout::LayBlock(const SheetItem& item, std::size_t index, const SheetOptions& options, double x, double y)
{
    const SheetRect area = ContentArea(options.paper);
    SheetBlock block;
    block.item = index;
    block.glyph = {x, y, GlyphSide, GlyphSide};
    const double textLeft = x + GlyphSide + Gap;
    const double textWidth = area.Right() - textLeft;
    block.textLines = 2 + (options.words && item.hasWords ? 1 : 0);
    block.text = {textLeft, y, textWidth, block.textLines * LineHeight};
    double bottom = std::max(block.glyph.Bottom(), block.text.Bottom());
    if (options.strokeOrder && item.strokeCount > 0) {
        // The frames under the texts, as many to a row as fit, the rows beside the character
        // while they last.
        const int perRow = std::max(1, static_cast<int>((textWidth + FrameGap) / (FrameSide + FrameGap)));
        const double top = block.text.Bottom() + 1;
        for (int k = 0; k < item.strokeCount; ++k)
            block.order.push_back({textLeft + (k % perRow) * (FrameSide + FrameGap),
                top + (k / perRow) * (FrameSide + FrameGap), FrameSide, FrameSide});
        bottom = std::max(block.glyph.Bottom(), block.order.back().Bottom());
    }
    const SheetOptions o = options.Clamped();
    const double side = area.width / o.boxesPerRow;
    const double boxesTop = bottom + Gap;
    for (int i = 0; i < o.boxesPerRow; ++i)
        block.boxes.push_back({area.x + i * side, boxesTop, side, side});
    block.traceBoxes = o.traceBoxes;
    block.bounds = {x, y, area.width, boxesTop + side - y};
    return block;
}

std::vector<SheetPage> SheetLayout::Lay(const std::vector<SheetItem>& items, const SheetOptions& options)
{
    const SheetRect area = ContentArea(options.paper);
    std::vector<SheetPage> pages;
    double y = area.y;
    for (std::size_t i = 0; i < items.size(); ++i) {
        SheetBlock block = LayBlock(items[i], i, options, area.x, y);
        // A block that does not fit below the last one starts the next page; one taller than a
        // page (never in practice) has a page of its own.
        if (pages.empty() || (block.bounds.Bottom() > area.Bottom() && !pages.back().blocks.empty())) {
            pages.emplace_back();
            if (y != area.y) {
                y = area.y;
                block = LayBlock(items[i], i, options, area.x, y);
            }
        }
        pages.back().blocks.push_back(block);
        y = block.bounds.Bottom() + BlockGap;
    }
    return pages;
}
