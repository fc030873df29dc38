#pragma once

#include "GridGeometry.h"
#include "GridSelection.h"

#include <QAbstractScrollArea>
#include <QHash>
#include <QImage>

#include <cstdint>
#include <functional>
#include <vector>

class Form;

/// An owner-drawn grid of characters in titled groups (each group starts on a new row), with
/// scrolling, keyboard movement, mouse selection (Ctrl and Shift add) and a message shown when
/// it is empty. Cells show the glyph smoothly; cell images are cached and only visible cells
/// are drawn. Where the cells lie and which are selected are decided by GridGeometry and
/// GridSelection; the grid paints and forwards input.
class CharacterGrid : public QAbstractScrollArea {
    Q_OBJECT
public:
    struct Group {
        QString title; ///< empty: no header
        std::vector<std::uint16_t> codes;
    };
    /// Gives a character's glyph for drawing a cell (null when it has none).
    using GlyphSource = std::function<const Form*(std::uint16_t code)>;

    explicit CharacterGrid(QWidget* parent = nullptr);

    void SetGlyphSource(GlyphSource source);
    /// Replaces the groups; the selection and focus are cleared.
    void SetGroups(std::vector<Group> groups);
    const std::vector<Group>& Groups() const { return m_groups; }
    /// Shown in place of the cells when there are none.
    void SetEmptyMessage(const QString& message);
    QString EmptyMessage() const { return m_emptyMessage; }

    /// Selected cells' codes, in cell order; the first is what Info and Learn act on.
    std::vector<std::uint16_t> SelectedCodes() const;
    /// Group of the first selected cell, or -1 when nothing is selected.
    int FirstSelectedGroup() const;
    /// Cell with keyboard focus, or -1.
    int FocusedCell() const { return m_selection.Focus(); }
    /// Selects one cell (and focuses it); -1 clears the selection.
    void SelectCell(int cell);
    /// The first cell showing `code`, or -1.
    int CellOf(std::uint16_t code) const;
    /// The cell under a viewport position, or -1.
    int CellAt(const QPoint& viewportPosition) const;
    /// The cell's rectangle in viewport coordinates.
    QRect CellRect(int cell) const;
    /// Side of a cell in pixels (31 dialog units).
    int CellSide() const { return m_cellSide; }
    /// Number of cell images drawn so far (cells are drawn once and cached).
    int RenderedCells() const { return m_rendered; }
    /// Number of columns at the current width.
    int Columns() const;

signals:
    /// The selection changed.
    void selectionChanged();
    /// A context menu is asked for over `cell` (-1 for none) at a global position.
    void contextMenuRequested(int cell, const QPoint& globalPosition);
    /// A cell was double-clicked.
    void cellActivated(int cell);

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;

private:
    void Relayout();
    /// Selection changed: repaint and tell.
    void SelectionChanged();
    void EnsureVisible(int cell);
    const QImage& CellImage(std::uint16_t code, bool selected);
    std::uint16_t CodeOfCell(int cell) const;
    int HeaderHeight() const;

    std::vector<Group> m_groups;
    std::vector<std::uint16_t> m_codes; ///< every cell's code, group after group
    GridGeometry m_geometry{{}, {}, 0, 1, 0};
    GridSelection m_selection;
    int m_cellSide = 40;
    int m_rendered = 0;
    QString m_emptyMessage;
    GlyphSource m_glyphs;
    QHash<quint32, QImage> m_cache; ///< key: code and selected flag
    QFont m_titleFont;
    QFont m_itemFont;
};
