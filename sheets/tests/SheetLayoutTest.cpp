// Where a practice sheet's blocks go: as many to a page as fit for each paper and box count,
// none cut across pages or overlapping, one stroke-order frame per stroke, the boxes to trace.

#include "SheetLayout.h"

#include <gtest/gtest.h>

namespace {

std::vector<SheetItem> Items(std::size_t count, int strokes, bool words)
{
    return std::vector<SheetItem>(count, SheetItem{strokes, words});
}

bool Inside(const SheetRect& inner, const SheetRect& outer)
{
    const double e = 1e-9;
    return inner.x >= outer.x - e && inner.y >= outer.y - e && inner.Right() <= outer.Right() + e
        && inner.Bottom() <= outer.Bottom() + e;
}

bool Overlap(const SheetRect& a, const SheetRect& b)
{
    return a.x < b.Right() && b.x < a.Right() && a.y < b.Bottom() && b.y < a.Bottom();
}

} // namespace

TEST(SheetLayout, EveryPaperAndBoxCountFillsPagesWithWholeBlocksInOrder)
{
    for (Paper paper : {Paper::A4, Paper::Letter})
        for (int boxes = SheetOptions::MinimumBoxes; boxes <= SheetOptions::MaximumBoxes; ++boxes)
            for (bool words : {false, true}) {
                SheetOptions options;
                options.paper = paper;
                options.boxesPerRow = boxes;
                const auto items = Items(40, 9, words);
                const std::vector<SheetPage> pages = SheetLayout::Lay(items, options);
                const SheetRect area = SheetLayout::ContentArea(paper);
                const SheetRect size = SheetLayout::PaperSize(paper);
                // The margins keep 12 mm of paper free on every side.
                EXPECT_GE(area.x, 10.0);
                EXPECT_GE(size.width - area.Right(), 10.0);
                EXPECT_GE(size.height - area.Bottom() - SheetLayout::Footer, 10.0);
                std::size_t next = 0;
                const std::size_t perPage = pages.front().blocks.size();
                for (std::size_t p = 0; p < pages.size(); ++p) {
                    const auto& blocks = pages[p].blocks;
                    ASSERT_FALSE(blocks.empty());
                    for (std::size_t b = 0; b < blocks.size(); ++b) {
                        const SheetBlock& block = blocks[b];
                        EXPECT_EQ(block.item, next++);
                        // Never cut: the whole block, and everything in it, on the page.
                        EXPECT_TRUE(Inside(block.bounds, area)) << "page " << p << " block " << b;
                        for (const SheetRect& r : block.boxes)
                            EXPECT_TRUE(Inside(r, block.bounds));
                        for (const SheetRect& r : block.order)
                            EXPECT_TRUE(Inside(r, block.bounds));
                        EXPECT_TRUE(Inside(block.glyph, block.bounds));
                        if (b > 0) {
                            EXPECT_FALSE(Overlap(block.bounds, blocks[b - 1].bounds));
                        }
                        EXPECT_EQ(block.boxes.size(), static_cast<std::size_t>(boxes));
                    }
                    // Every page but the last as full as the first: the next block would not fit.
                    if (p + 1 < pages.size()) {
                        EXPECT_EQ(blocks.size(), perPage);
                        const SheetBlock following
                            = SheetLayout::LayBlock(items[next], next, options, area.x, blocks.back().bounds.Bottom() + SheetLayout::BlockGap);
                        EXPECT_GT(following.bounds.Bottom(), area.Bottom());
                    }
                }
                EXPECT_EQ(next, items.size());
                EXPECT_EQ(pages.size(), (items.size() + perPage - 1) / perPage);
            }
}

TEST(SheetLayout, FiveCharactersToAnA4PageOfEightBoxes)
{
    SheetOptions options;
    EXPECT_EQ(SheetLayout::Lay(Items(80, 8, true), options).size(), 16u);
    EXPECT_EQ(SheetLayout::Lay(Items(80, 8, true), options).front().blocks.size(), 5u);
    // Larger boxes take more room.
    options.boxesPerRow = 6;
    EXPECT_EQ(SheetLayout::Lay(Items(80, 8, true), options).front().blocks.size(), 4u);
}

TEST(SheetLayout, OneStrokeOrderFramePerStrokeInRowsThatWrap)
{
    SheetOptions options;
    for (int strokes : {1, 4, 12, 18, 19, 29}) {
        const SheetBlock block = SheetLayout::Lay(Items(1, strokes, false), options).front().blocks.front();
        ASSERT_EQ(block.order.size(), static_cast<std::size_t>(strokes));
        for (std::size_t k = 0; k < block.order.size(); ++k) {
            EXPECT_EQ(block.order[k].width, SheetLayout::FrameSide);
            EXPECT_GE(block.order[k].x, block.text.x);
            EXPECT_GE(block.order[k].y, block.text.Bottom());
            EXPECT_LT(block.order[k].Bottom(), block.boxes.front().y);
            for (std::size_t j = 0; j < k; ++j)
                EXPECT_FALSE(Overlap(block.order[k], block.order[j]));
        }
    }
    // Without the stroke order, no frames and a shorter block.
    options.strokeOrder = false;
    const SheetBlock plain = SheetLayout::Lay(Items(1, 29, false), options).front().blocks.front();
    EXPECT_TRUE(plain.order.empty());
    options.strokeOrder = true;
    EXPECT_LT(plain.bounds.height, SheetLayout::Lay(Items(1, 29, false), options).front().blocks.front().bounds.height);
}

TEST(SheetLayout, ChoicesOutOfRangeAreBroughtIntoIt)
{
    SheetOptions options;
    options.boxesPerRow = 40;
    options.traceBoxes = 0;
    const SheetBlock block = SheetLayout::Lay(Items(1, 3, false), options).front().blocks.front();
    EXPECT_EQ(block.boxes.size(), 12u);
    EXPECT_EQ(block.traceBoxes, 1);
    options.boxesPerRow = 2;
    options.traceBoxes = 9;
    EXPECT_EQ(options.Clamped().boxesPerRow, 6);
    EXPECT_EQ(options.Clamped().traceBoxes, 6);
    EXPECT_TRUE(SheetLayout::Lay({}, SheetOptions{}).empty());
}
