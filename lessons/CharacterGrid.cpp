#include "CharacterGrid.h"

#include "GlyphRendering.h"
#include "GridLayout.h"

#include <QContextMenuEvent>
#include <QKeyEvent>
#include <QLinearGradient>
#include <QPainter>
#include <QScrollBar>

namespace {
/// Space between the control's edge and its content, in pixels.
constexpr int Margin = 10;
/// Pen width of glyphs in cells.
constexpr int CellPenWidth = 1;
} // namespace

CharacterGrid::CharacterGrid(QWidget* parent) : QAbstractScrollArea(parent)
{
    setFocusPolicy(Qt::StrongFocus);
    setAccessibleName(tr("Characters"));
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    // Group titles in Verdana bold 9 pt, items in Tahoma 8 pt (or the closest fonts present).
    m_titleFont = QFont(QStringLiteral("Verdana"));
    m_titleFont.setPointSize(9);
    m_titleFont.setBold(true);
    m_itemFont = QFont(QStringLiteral("Tahoma"));
    m_itemFont.setPointSize(8);
    // 31 dialog units across, converted with the dialog font's average character width.
    const int averageWidth = fontMetrics().averageCharWidth();
    m_cellSide = std::max(24, (31 * averageWidth + 2) / 4);
    viewport()->setAutoFillBackground(false);
}

void CharacterGrid::SetGlyphSource(GlyphSource source)
{
    m_glyphs = std::move(source);
    m_cache.clear();
    viewport()->update();
}

void CharacterGrid::SetGroups(std::vector<Group> groups)
{
    m_groups = std::move(groups);
    m_cellCount = 0;
    for (const Group& g : m_groups)
        m_cellCount += static_cast<int>(g.codes.size());
    m_selected.assign(static_cast<std::size_t>(m_cellCount), false);
    m_focus = m_cellCount > 0 ? 0 : -1;
    m_anchor = m_focus;
    Relayout();
    viewport()->update();
    emit selectionChanged();
}

void CharacterGrid::SetEmptyMessage(const QString& message)
{
    m_emptyMessage = message;
    viewport()->update();
}

int CharacterGrid::HeaderHeight() const
{
    return QFontMetrics(m_titleFont).height() + 6;
}

int CharacterGrid::Columns() const
{
    return std::max(1, (viewport()->width() - 2 * Margin) / m_cellSide);
}

void CharacterGrid::Relayout()
{
    m_rows.clear();
    const int columns = Columns();
    int top = Margin;
    int cell = 0;
    for (int g = 0; g < static_cast<int>(m_groups.size()); ++g) {
        if (!m_groups[g].title.isEmpty()) {
            m_rows.push_back({g, true, cell, top, HeaderHeight()});
            top += HeaderHeight();
        }
        const int count = static_cast<int>(m_groups[g].codes.size());
        for (int first = 0; first < count; first += columns) {
            m_rows.push_back({g, false, cell + first, top, m_cellSide});
            top += m_cellSide;
        }
        cell += count;
    }
    m_contentHeight = top + Margin;
    QScrollBar* bar = verticalScrollBar();
    const int page = viewport()->height();
    bar->setRange(0, std::max(0, m_contentHeight - page));
    // Line step a hundredth and page step a tenth of the content, each at least one pixel.
    bar->setSingleStep(std::max(1, m_contentHeight / 100));
    bar->setPageStep(std::max(1, m_contentHeight / 10));
}

std::uint16_t CharacterGrid::CodeOfCell(int cell) const
{
    for (const Group& g : m_groups) {
        if (cell < static_cast<int>(g.codes.size()))
            return g.codes[static_cast<std::size_t>(cell)];
        cell -= static_cast<int>(g.codes.size());
    }
    return 0;
}

int CharacterGrid::GroupOfCell(int cell) const
{
    for (int g = 0; g < static_cast<int>(m_groups.size()); ++g) {
        if (cell < static_cast<int>(m_groups[g].codes.size()))
            return g;
        cell -= static_cast<int>(m_groups[g].codes.size());
    }
    return -1;
}

QRect CharacterGrid::CellRect(int cell) const
{
    const int columns = Columns();
    for (const Row& row : m_rows) {
        if (row.header || cell < row.firstCell || cell >= row.firstCell + columns)
            continue;
        const int groupEnd = [&] {
            int start = 0;
            for (int g = 0; g <= row.group; ++g)
                start += static_cast<int>(m_groups[g].codes.size());
            return start;
        }();
        if (cell >= groupEnd)
            continue;
        const int column = cell - row.firstCell;
        return QRect(Margin + column * m_cellSide, row.top - verticalScrollBar()->value(), m_cellSide, m_cellSide);
    }
    return {};
}

int CharacterGrid::CellAt(const QPoint& p) const
{
    const int y = p.y() + verticalScrollBar()->value();
    const int columns = Columns();
    const int column = (p.x() - Margin) / m_cellSide;
    if (p.x() < Margin || column >= columns)
        return -1;
    for (const Row& row : m_rows) {
        if (row.header || y < row.top || y >= row.top + row.height)
            continue;
        const int cell = row.firstCell + column;
        return CellRect(cell).contains(p) ? cell : -1;
    }
    return -1;
}

std::vector<std::uint16_t> CharacterGrid::SelectedCodes() const
{
    std::vector<std::uint16_t> codes;
    for (int i = 0; i < m_cellCount; ++i)
        if (m_selected[static_cast<std::size_t>(i)])
            codes.push_back(CodeOfCell(i));
    return codes;
}

int CharacterGrid::FirstSelectedGroup() const
{
    for (int i = 0; i < m_cellCount; ++i)
        if (m_selected[static_cast<std::size_t>(i)])
            return GroupOfCell(i);
    return -1;
}

void CharacterGrid::SelectCell(int cell)
{
    std::fill(m_selected.begin(), m_selected.end(), false);
    if (cell >= 0 && cell < m_cellCount) {
        m_selected[static_cast<std::size_t>(cell)] = true;
        m_focus = m_anchor = cell;
        EnsureVisible(cell);
    }
    viewport()->update();
    emit selectionChanged();
}

void CharacterGrid::EnsureVisible(int cell)
{
    const QRect r = CellRect(cell);
    if (r.isNull())
        return;
    QScrollBar* bar = verticalScrollBar();
    if (r.top() < 0)
        bar->setValue(bar->value() + r.top() - Margin);
    else if (r.bottom() > viewport()->height())
        bar->setValue(bar->value() + r.bottom() - viewport()->height() + Margin);
}

const QImage& CharacterGrid::CellImage(std::uint16_t code, bool selected)
{
    const quint32 key = (quint32(code) << 1) | (selected ? 1u : 0u);
    auto found = m_cache.find(key);
    if (found != m_cache.end())
        return *found;
    const QPalette& pal = palette();
    QImage image(m_cellSide, m_cellSide, QImage::Format_RGB32);
    image.fill(selected ? pal.color(QPalette::Highlight) : pal.color(QPalette::Base));
    const QRgb ink = selected ? pal.color(QPalette::HighlightedText).rgb() : pal.color(QPalette::Text).rgb();
    if (const Form* glyph = m_glyphs ? m_glyphs(code) : nullptr)
        DrawFormSmooth(image, QRect(3, 3, m_cellSide - 6, m_cellSide - 6), *glyph, ink, CellPenWidth);
    ++m_rendered;
    return *m_cache.insert(key, image);
}

void CharacterGrid::paintEvent(QPaintEvent* event)
{
    QPainter painter(viewport());
    const QPalette& pal = palette();
    painter.fillRect(event->rect(), pal.color(QPalette::Base));
    if (m_cellCount == 0 && !m_emptyMessage.isEmpty()) {
        painter.setFont(m_itemFont);
        painter.setPen(pal.color(QPalette::PlaceholderText));
        painter.drawText(viewport()->rect().adjusted(Margin, Margin, -Margin, -Margin),
            Qt::AlignCenter | Qt::TextWordWrap, m_emptyMessage);
        return;
    }
    const int scroll = verticalScrollBar()->value();
    const int columns = Columns();
    const QFontMetrics titleMetrics(m_titleFont);
    int groupStart = 0;
    int lastGroup = -1;
    for (const Row& row : m_rows) {
        if (row.group != lastGroup) {
            groupStart = 0;
            for (int g = 0; g < row.group; ++g)
                groupStart += static_cast<int>(m_groups[g].codes.size());
            lastGroup = row.group;
        }
        const int top = row.top - scroll;
        if (top + row.height < event->rect().top() || top > event->rect().bottom())
            continue; // only what is visible is drawn
        if (row.header) {
            const QRect header(0, top, viewport()->width(), row.height);
            painter.fillRect(header, pal.color(QPalette::Window));
            painter.setFont(m_titleFont);
            painter.setPen(pal.color(QPalette::WindowText));
            const int titleTop = header.bottom() + 1 - titleMetrics.height() - 5;
            painter.drawText(QPoint(13, titleTop + titleMetrics.ascent()), m_groups[row.group].title);
            QLinearGradient gradient(0, 0, 300, 0);
            gradient.setColorAt(0, QColor(61, 149, 255));
            gradient.setColorAt(1, pal.color(QPalette::Window));
            painter.fillRect(QRect(0, titleTop + titleMetrics.height() + 4, 300, 1), gradient);
            continue;
        }
        const int groupEnd = groupStart + static_cast<int>(m_groups[row.group].codes.size());
        for (int c = 0; c < columns && row.firstCell + c < groupEnd; ++c) {
            const int cell = row.firstCell + c;
            const QRect r(Margin + c * m_cellSide, top, m_cellSide, m_cellSide);
            painter.drawImage(r.topLeft(), CellImage(CodeOfCell(cell), m_selected[static_cast<std::size_t>(cell)]));
            painter.setPen(pal.color(QPalette::Mid));
            painter.drawRect(r.adjusted(0, 0, -1, -1));
            if (cell == m_focus && hasFocus()) {
                painter.setPen(QPen(pal.color(QPalette::Highlight), 1, Qt::DotLine));
                painter.drawRect(r.adjusted(1, 1, -2, -2));
            }
        }
    }
}

void CharacterGrid::resizeEvent(QResizeEvent* event)
{
    QAbstractScrollArea::resizeEvent(event);
    Relayout();
}

void CharacterGrid::mousePressEvent(QMouseEvent* event)
{
    setFocus();
    const int cell = CellAt(event->position().toPoint());
    if (event->button() == Qt::RightButton && cell >= 0 && m_selected[static_cast<std::size_t>(cell)])
        return; // keep the selection for the context menu
    if (cell < 0) {
        if (event->button() == Qt::LeftButton)
            SelectCell(-1);
        return;
    }
    if (event->modifiers() & Qt::ControlModifier) {
        m_selected[static_cast<std::size_t>(cell)] = !m_selected[static_cast<std::size_t>(cell)];
        m_focus = m_anchor = cell;
    } else if ((event->modifiers() & Qt::ShiftModifier) && m_anchor >= 0) {
        std::fill(m_selected.begin(), m_selected.end(), false);
        for (int i = std::min(m_anchor, cell); i <= std::max(m_anchor, cell); ++i)
            m_selected[static_cast<std::size_t>(i)] = true;
        m_focus = cell;
    } else {
        SelectCell(cell);
        return;
    }
    viewport()->update();
    emit selectionChanged();
}

void CharacterGrid::keyPressEvent(QKeyEvent* event)
{
    using Key = GridLayout::Key;
    Key key;
    switch (event->key()) {
    case Qt::Key_Home: key = Key::Home; break;
    case Qt::Key_End: key = Key::End; break;
    case Qt::Key_Left: key = Key::Left; break;
    case Qt::Key_Right: key = Key::Right; break;
    case Qt::Key_Up: key = Key::Up; break;
    case Qt::Key_Down: key = Key::Down; break;
    case Qt::Key_Space:
        if (m_focus >= 0)
            SelectCell(m_focus);
        return;
    default: QAbstractScrollArea::keyPressEvent(event); return;
    }
    if (m_cellCount == 0)
        return;
    std::vector<std::size_t> sizes;
    for (const Group& g : m_groups)
        sizes.push_back(g.codes.size());
    const GridLayout layout(sizes, static_cast<std::size_t>(Columns()));
    const int target = static_cast<int>(layout.Move(static_cast<std::size_t>(std::max(0, m_focus)), key));
    SelectCell(target);
}

void CharacterGrid::contextMenuEvent(QContextMenuEvent* event)
{
    int cell = -1;
    if (event->reason() == QContextMenuEvent::Mouse) {
        cell = CellAt(viewport()->mapFrom(this, event->pos()));
        if (cell >= 0 && !m_selected[static_cast<std::size_t>(cell)])
            SelectCell(cell);
    } else {
        cell = m_focus;
    }
    emit contextMenuRequested(cell, event->globalPos());
}
