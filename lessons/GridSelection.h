#pragma once

#include <cstddef>
#include <vector>

/// Which cells of a character grid are selected, which has the keyboard focus, and where a
/// Shift range starts. A plain click selects one cell; Ctrl adds or removes one; Shift selects
/// the range from the anchor.
class GridSelection {
public:
    /// `cellCount` cells, none selected, the focus on the first.
    void Reset(std::size_t cellCount);
    /// Selects only `cell` and focuses it; -1 (or a cell that does not exist) clears the selection.
    void SelectOnly(int cell);
    /// Ctrl+click: `cell` joins or leaves the selection and becomes the focus and the anchor.
    void Toggle(int cell);
    /// Shift+click: the cells from the anchor to `cell` become the selection; `cell` the focus.
    void ExtendTo(int cell);

    bool IsSelected(int cell) const;
    /// The selected cells in order.
    std::vector<int> Selected() const;
    /// The first selected cell, or -1.
    int FirstSelected() const;
    /// The focused cell, or -1 when there are no cells.
    int Focus() const { return m_focus; }
    /// Where a Shift range starts, or -1.
    int Anchor() const { return m_anchor; }

private:
    bool Exists(int cell) const { return cell >= 0 && static_cast<std::size_t>(cell) < m_selected.size(); }

    std::vector<bool> m_selected;
    int m_focus = -1;
    int m_anchor = -1;
};
