#pragma once

#include <cstddef>
#include <vector>

/// Where the cells of a grouped character grid lie: groups one after another, each starting on a
/// new row, with a fixed number of columns; and how the arrow keys move between cells.
class GridLayout {
public:
    struct Position {
        std::size_t group = 0;
        std::size_t row = 0; ///< row inside the group
        std::size_t column = 0;
    };

    /// `groupSizes` cells per group, `columns` per row (at least 1).
    GridLayout(std::vector<std::size_t> groupSizes, std::size_t columns);

    std::size_t CellCount() const { return m_total; }
    std::size_t Columns() const { return m_columns; }
    std::size_t GroupCount() const { return m_sizes.size(); }
    std::size_t GroupSize(std::size_t group) const { return m_sizes.at(group); }
    /// Index of the group's first cell.
    std::size_t GroupStart(std::size_t group) const { return m_starts.at(group); }
    /// Rows the group occupies.
    std::size_t GroupRows(std::size_t group) const { return (m_sizes.at(group) + m_columns - 1) / m_columns; }
    /// Where a cell lies.
    Position PositionOf(std::size_t cell) const;
    /// The cell at a position, or CellCount() when there is none.
    std::size_t CellAt(std::size_t group, std::size_t row, std::size_t column) const;

    enum class Key { Home, End, Left, Right, Up, Down };
    /// The cell focused after the key, from `cell`. Left and Right stay on the row; Up and Down
    /// cross into the neighbouring group at the same column (the last cell of a shorter row).
    std::size_t Move(std::size_t cell, Key key) const;

private:
    std::vector<std::size_t> m_sizes;
    std::vector<std::size_t> m_starts;
    std::size_t m_columns;
    std::size_t m_total = 0;
};
