#include "GridGeometry.h"

#include <algorithm>

GridGeometry::GridGeometry(const std::vector<std::size_t>& groupSizes, const std::vector<bool>& titled, int width,
    int cellSide, int headerHeight)
    : m_groupSizes(groupSizes), m_cellSide(std::max(1, cellSide))
{
    m_columns = static_cast<std::size_t>(std::max(1, (width - 2 * Margin) / m_cellSide));
    int top = Margin;
    std::size_t cell = 0;
    for (std::size_t g = 0; g < groupSizes.size(); ++g) {
        if (g < titled.size() && titled[g]) {
            m_rows.push_back({g, true, cell, 0, top, headerHeight});
            top += headerHeight;
        }
        for (std::size_t first = 0; first < groupSizes[g]; first += m_columns) {
            m_rows.push_back({g, false, cell + first, std::min(m_columns, groupSizes[g] - first), top, m_cellSide});
            top += m_cellSide;
        }
        m_groupStarts.push_back(cell);
        cell += groupSizes[g];
        m_groupEnds.push_back(cell);
    }
    m_cellCount = cell;
    m_contentHeight = top + Margin;
}

std::size_t GridGeometry::GroupOf(std::size_t cell) const
{
    const auto end = std::upper_bound(m_groupEnds.begin(), m_groupEnds.end(), cell);
    return static_cast<std::size_t>(end - m_groupEnds.begin());
}

GridGeometry::Rect GridGeometry::CellRect(std::size_t cell) const
{
    for (const Row& row : m_rows) {
        if (!row.header && cell >= row.firstCell && cell < row.firstCell + row.cellCount) {
            const int column = static_cast<int>(cell - row.firstCell);
            return {Margin + column * m_cellSide, row.top, m_cellSide, m_cellSide};
        }
    }
    return {};
}

int GridGeometry::CellAt(int x, int y) const
{
    if (x < Margin)
        return -1;
    const auto column = static_cast<std::size_t>((x - Margin) / m_cellSide);
    if (column >= m_columns)
        return -1;
    for (const Row& row : m_rows) {
        if (row.header || y < row.top || y >= row.top + row.height)
            continue;
        return column < row.cellCount ? static_cast<int>(row.firstCell + column) : -1;
    }
    return -1;
}

std::size_t GridGeometry::Move(std::size_t cell, Key key) const
{
    if (m_cellCount == 0)
        return 0;
    if (cell >= m_cellCount)
        return key == Key::End ? m_cellCount - 1 : 0;
    const std::size_t group = GroupOf(cell);
    const std::size_t offset = cell - m_groupStarts[group];
    const std::size_t row = offset / m_columns, column = offset % m_columns;
    auto rowsOf = [&](std::size_t g) { return (m_groupSizes[g] + m_columns - 1) / m_columns; };
    // The row's cell at `column`, or its last cell when the row is shorter.
    auto inRow = [&](std::size_t g, std::size_t r, std::size_t c) {
        const std::size_t first = m_groupStarts[g] + r * m_columns;
        const std::size_t last = std::min(first + m_columns, m_groupEnds[g]) - 1;
        return std::min(first + c, last);
    };
    switch (key) {
    case Key::Home: return 0;
    case Key::End: return m_cellCount - 1;
    case Key::Left: return column == 0 ? cell : cell - 1;
    case Key::Right: return cell + 1 == m_groupEnds[group] || column + 1 == m_columns ? cell : cell + 1;
    case Key::Up:
        if (row > 0)
            return cell - m_columns;
        for (std::size_t g = group; g-- > 0;)
            if (m_groupSizes[g] > 0)
                return inRow(g, rowsOf(g) - 1, column);
        return cell;
    case Key::Down:
        if (row + 1 < rowsOf(group))
            return inRow(group, row + 1, column);
        for (std::size_t g = group + 1; g < m_groupSizes.size(); ++g)
            if (m_groupSizes[g] > 0)
                return inRow(g, 0, column);
        return cell;
    }
    return cell;
}
