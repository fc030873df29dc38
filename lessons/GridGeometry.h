#pragma once

#include <cstddef>
#include <vector>

/// Where the rows and cells of a grouped character grid lie, in pixels of its content (before
/// scrolling): a margin all round, each group's title row (when it has a title) and then its
/// cells, each group starting on a new row of `columns` square cells; which cell a point falls
/// on; and how the arrow keys move between cells.
class GridGeometry {
public:
    /// One row of the grid: a group's title, or up to `columns` of its cells.
    struct Row {
        std::size_t group = 0;
        bool header = false;
        std::size_t firstCell = 0; ///< index of the row's first cell (for a title row, of the group's)
        std::size_t cellCount = 0; ///< cells on this row (0 for a title row)
        int top = 0;
        int height = 0;
    };
    /// A rectangle in content pixels.
    struct Rect {
        int x = 0, y = 0, width = 0, height = 0;
        bool IsEmpty() const { return width <= 0 || height <= 0; }
    };

    /// `groupSizes` cells per group, `titled[g]` when group g has a title row; `width` of the
    /// area the cells are laid out in; cells `cellSide` square; title rows `headerHeight` high.
    GridGeometry(const std::vector<std::size_t>& groupSizes, const std::vector<bool>& titled, int width, int cellSide,
        int headerHeight);

    /// Space between the edges and the content.
    static constexpr int Margin = 10;

    std::size_t Columns() const { return m_columns; }
    std::size_t CellCount() const { return m_cellCount; }
    const std::vector<Row>& Rows() const { return m_rows; }
    /// Height of everything, margins included.
    int ContentHeight() const { return m_contentHeight; }
    /// The group a cell belongs to, or GroupCount when there is no such cell.
    std::size_t GroupOf(std::size_t cell) const;
    /// The cell's rectangle; empty for a cell that does not exist.
    Rect CellRect(std::size_t cell) const;
    /// The cell at a content point, or -1 (a margin, a title, the space after a group's last cell).
    int CellAt(int x, int y) const;

    enum class Key { Home, End, Left, Right, Up, Down };
    /// The cell focused after the key, from `cell`. Left and Right stay on the row; Up and Down
    /// cross into the neighbouring group at the same column (the last cell of a shorter row);
    /// an empty group is passed over.
    std::size_t Move(std::size_t cell, Key key) const;

private:
    std::vector<Row> m_rows;
    std::vector<std::size_t> m_groupSizes;
    std::vector<std::size_t> m_groupStarts;
    std::vector<std::size_t> m_groupEnds;
    std::size_t m_columns = 1;
    std::size_t m_cellCount = 0;
    int m_cellSide = 1;
    int m_contentHeight = 0;
};
