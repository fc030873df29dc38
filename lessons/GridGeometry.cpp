#include "GridGeometry.h"

#include <algorithm>

GridGeometry::GridGeometry(const std::vector<std::size_t>& groupSizes, const std::vector<bool>& titled, int width,
    int cellSide, int headerHeight)
    : m_cellSide(std::max(1, cellSide))
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
