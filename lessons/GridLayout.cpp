#include "GridLayout.h"

#include <algorithm>

GridLayout::GridLayout(std::vector<std::size_t> groupSizes, std::size_t columns)
    : m_sizes(std::move(groupSizes)), m_columns(std::max<std::size_t>(1, columns))
{
    for (std::size_t size : m_sizes) {
        m_starts.push_back(m_total);
        m_total += size;
    }
}

GridLayout::Position GridLayout::PositionOf(std::size_t cell) const
{
    for (std::size_t g = 0; g < m_sizes.size(); ++g) {
        if (cell < m_starts[g] + m_sizes[g]) {
            const std::size_t offset = cell - m_starts[g];
            return {g, offset / m_columns, offset % m_columns};
        }
    }
    return {};
}

std::size_t GridLayout::CellAt(std::size_t group, std::size_t row, std::size_t column) const
{
    if (group >= m_sizes.size() || column >= m_columns)
        return m_total;
    const std::size_t offset = row * m_columns + column;
    return offset < m_sizes[group] ? m_starts[group] + offset : m_total;
}

std::size_t GridLayout::Move(std::size_t cell, Key key) const
{
    if (m_total == 0)
        return 0;
    if (cell >= m_total)
        return key == Key::End ? m_total - 1 : 0;
    const Position p = PositionOf(cell);
    // The row's cell at `column`, or its last cell when the row is shorter.
    auto inRow = [&](std::size_t group, std::size_t row, std::size_t column) {
        const std::size_t first = m_starts[group] + row * m_columns;
        const std::size_t last = std::min(first + m_columns, m_starts[group] + m_sizes[group]) - 1;
        return std::min(first + column, last);
    };
    switch (key) {
    case Key::Home: return 0;
    case Key::End: return m_total - 1;
    case Key::Left: return p.column == 0 ? cell : cell - 1;
    case Key::Right:
        if (cell + 1 == m_starts[p.group] + m_sizes[p.group] || p.column + 1 == m_columns)
            return cell;
        return cell + 1;
    case Key::Up:
        if (p.row > 0)
            return cell - m_columns;
        for (std::size_t g = p.group; g-- > 0;)
            if (m_sizes[g] > 0)
                return inRow(g, GroupRows(g) - 1, p.column);
        return cell;
    case Key::Down:
        if (p.row + 1 < GroupRows(p.group))
            return inRow(p.group, p.row + 1, p.column);
        for (std::size_t g = p.group + 1; g < m_sizes.size(); ++g)
            if (m_sizes[g] > 0)
                return inRow(g, 0, p.column);
        return cell;
    }
    return cell;
}
