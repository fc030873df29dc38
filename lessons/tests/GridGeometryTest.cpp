#include "GridGeometry.h"

#include <gtest/gtest.h>


namespace {

// Two groups: the first titled with 7 cells, the second untitled with 2; 3 columns of 40 px.
GridGeometry Sample()
{
    return GridGeometry({7, 2}, {true, false}, 2 * GridGeometry::Margin + 3 * 40 + 5, 40, 20);
}

} // namespace

TEST(GridGeometry, RowsFollowGroupsAndTitles)
{
    const GridGeometry g = Sample();
    ASSERT_EQ(g.Columns(), 3u);
    ASSERT_EQ(g.Rows().size(), 5u); // title, 3 + 3 + 1 cells, then 2 cells
    EXPECT_TRUE(g.Rows()[0].header);
    EXPECT_EQ(g.Rows()[0].top, GridGeometry::Margin);
    EXPECT_EQ(g.Rows()[1].top, GridGeometry::Margin + 20);
    EXPECT_EQ(g.Rows()[3].cellCount, 1u);
    EXPECT_EQ(g.Rows()[4].firstCell, 7u);
    EXPECT_EQ(g.Rows()[4].group, 1u);
    EXPECT_EQ(g.ContentHeight(), GridGeometry::Margin + 20 + 4 * 40 + GridGeometry::Margin);
    EXPECT_EQ(g.GroupOf(6), 0u);
    EXPECT_EQ(g.GroupOf(7), 1u);
    EXPECT_EQ(g.GroupOf(9), 2u); // no such cell
}

TEST(GridGeometry, CellRectsAndHitTestingAgree)
{
    const GridGeometry g = Sample();
    for (std::size_t cell = 0; cell < g.CellCount(); ++cell) {
        const GridGeometry::Rect r = g.CellRect(cell);
        ASSERT_FALSE(r.IsEmpty()) << cell;
        EXPECT_EQ(g.CellAt(r.x, r.y), static_cast<int>(cell));
        EXPECT_EQ(g.CellAt(r.x + r.width - 1, r.y + r.height - 1), static_cast<int>(cell));
    }
    EXPECT_EQ(g.CellRect(7).y, GridGeometry::Margin + 20 + 3 * 40); // a group starts a new row
    EXPECT_TRUE(g.CellRect(9).IsEmpty());
    // Margins, the title row and the room after a group's last cell hold no cell.
    EXPECT_EQ(g.CellAt(GridGeometry::Margin - 1, 50), -1);
    EXPECT_EQ(g.CellAt(15, GridGeometry::Margin + 5), -1);
    const GridGeometry::Rect last = g.CellRect(6);
    EXPECT_EQ(g.CellAt(last.x + 40, last.y), -1);
    EXPECT_EQ(g.CellAt(GridGeometry::Margin + 3 * 40, 50), -1); // past the last column
}

TEST(GridGeometry, ArrowKeys)
{
    // Group 0: 7 cells in rows of 3 (3, 3, 1); group 1: 5 cells (3, 2).
    // Three cells of 20 px to a row: 2 x 10 px of margin and 60 px of cells.
    const GridGeometry g({7, 5}, {true, true}, 80, 20, 12);
    using K = GridGeometry::Key;
    EXPECT_EQ(g.CellCount(), 12u);
    EXPECT_EQ(g.GroupOf(8), 1u);
    EXPECT_EQ(g.Move(5, K::Home), 0u);
    EXPECT_EQ(g.Move(0, K::End), 11u);
    EXPECT_EQ(g.Move(3, K::Left), 3u); // first column stays
    EXPECT_EQ(g.Move(4, K::Left), 3u);
    EXPECT_EQ(g.Move(2, K::Right), 2u); // last column stays
    EXPECT_EQ(g.Move(6, K::Right), 6u); // last cell of its group stays
    EXPECT_EQ(g.Move(0, K::Right), 1u);
    EXPECT_EQ(g.Move(4, K::Down), 6u); // into the short last row: its last cell
    EXPECT_EQ(g.Move(1, K::Down), 4u);
    EXPECT_EQ(g.Move(6, K::Down), 7u); // across into group 1, same column
    EXPECT_EQ(g.Move(5, K::Down), 6u); // column 2 of the short row: its last cell
    EXPECT_EQ(g.Move(9, K::Up), 6u); // up from group 1 column 2: group 0's last row, last cell
    EXPECT_EQ(g.Move(8, K::Up), 6u);
    EXPECT_EQ(g.Move(7, K::Up), 6u);
    EXPECT_EQ(g.Move(11, K::Up), 8u);
    EXPECT_EQ(g.Move(11, K::Down), 11u);
    EXPECT_EQ(g.Move(0, K::Up), 0u);
    // An empty group is passed over.
    const GridGeometry e({2, 0, 2}, {false, false, false}, 100, 20, 12); // four to a row
    EXPECT_EQ(e.Move(1, K::Down), 3u);
    EXPECT_EQ(e.Move(2, K::Up), 0u);
}
