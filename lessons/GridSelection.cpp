#include "GridSelection.h"

#include <algorithm>

void GridSelection::Reset(std::size_t cellCount)
{
    m_selected.assign(cellCount, false);
    m_focus = m_anchor = cellCount > 0 ? 0 : -1;
}

void GridSelection::SelectOnly(int cell)
{
    std::fill(m_selected.begin(), m_selected.end(), false);
    if (!Exists(cell))
        return;
    m_selected[static_cast<std::size_t>(cell)] = true;
    m_focus = m_anchor = cell;
}

void GridSelection::Toggle(int cell)
{
    if (!Exists(cell))
        return;
    m_selected[static_cast<std::size_t>(cell)] = !m_selected[static_cast<std::size_t>(cell)];
    m_focus = m_anchor = cell;
}

void GridSelection::ExtendTo(int cell)
{
    if (!Exists(cell))
        return;
    if (m_anchor < 0) {
        SelectOnly(cell);
        return;
    }
    std::fill(m_selected.begin(), m_selected.end(), false);
    for (int i = std::min(m_anchor, cell); i <= std::max(m_anchor, cell); ++i)
        m_selected[static_cast<std::size_t>(i)] = true;
    m_focus = cell;
}

bool GridSelection::IsSelected(int cell) const
{
    return Exists(cell) && m_selected[static_cast<std::size_t>(cell)];
}

std::vector<int> GridSelection::Selected() const
{
    std::vector<int> cells;
    for (std::size_t i = 0; i < m_selected.size(); ++i)
        if (m_selected[i])
            cells.push_back(static_cast<int>(i));
    return cells;
}

int GridSelection::FirstSelected() const
{
    const auto found = std::find(m_selected.begin(), m_selected.end(), true);
    return found == m_selected.end() ? -1 : static_cast<int>(found - m_selected.begin());
}
