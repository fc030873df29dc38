#include "CharacterGrid.h"

#include "GlyphRendering.h"

#include <QContextMenuEvent>
#include <QKeyEvent>
#include <QLinearGradient>
#include <QPainter>
#include <QScrollBar>

#include <algorithm>

namespace {
/// Pen width of glyphs in cells.
constexpr int CellPenWidth = 1;
constexpr int Margin = GridGeometry::Margin;
/// The smallest cell side, whatever the font.
constexpr int MinimumCellSide = 24;
/// Where a group's title starts from the left edge.
constexpr int TitleIndent = 13;
/// The rule under a group's title: this long, fading from this blue into the window colour.
constexpr int TitleRuleLength = 300;
const QColor TitleRuleColour(61, 149, 255);
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
    m_cellSide = std::max(MinimumCellSide, (31 * averageWidth + 2) / 4);
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
    m_codes.clear();
    for (const Group& g : m_groups)
        m_codes.insert(m_codes.end(), g.codes.begin(), g.codes.end());
    m_selection.Reset(m_codes.size());
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
    return static_cast<int>(m_geometry.Columns());
}

void CharacterGrid::Relayout()
{
    std::vector<std::size_t> sizes;
    std::vector<bool> titled;
    for (const Group& g : m_groups) {
        sizes.push_back(g.codes.size());
        titled.push_back(!g.title.isEmpty());
    }
    m_geometry = GridGeometry(sizes, titled, viewport()->width(), m_cellSide, HeaderHeight());
    const int contentHeight = m_geometry.ContentHeight();
    QScrollBar* bar = verticalScrollBar();
    bar->setRange(0, std::max(0, contentHeight - viewport()->height()));
    // Line step a hundredth and page step a tenth of the content, each at least one pixel.
    bar->setSingleStep(std::max(1, contentHeight / 100));
    bar->setPageStep(std::max(1, contentHeight / 10));
}

std::uint16_t CharacterGrid::CodeOfCell(int cell) const
{
    return cell >= 0 && static_cast<std::size_t>(cell) < m_codes.size() ? m_codes[static_cast<std::size_t>(cell)] : 0;
}

int CharacterGrid::CellOf(std::uint16_t code) const
{
    const auto found = std::find(m_codes.begin(), m_codes.end(), code);
    return found == m_codes.end() ? -1 : static_cast<int>(found - m_codes.begin());
}

QRect CharacterGrid::CellRect(int cell) const
{
    if (cell < 0)
        return {};
    const GridGeometry::Rect r = m_geometry.CellRect(static_cast<std::size_t>(cell));
    if (r.IsEmpty())
        return {};
    return QRect(r.x, r.y - verticalScrollBar()->value(), r.width, r.height);
}

int CharacterGrid::CellAt(const QPoint& p) const
{
    return m_geometry.CellAt(p.x(), p.y() + verticalScrollBar()->value());
}

std::vector<std::uint16_t> CharacterGrid::SelectedCodes() const
{
    std::vector<std::uint16_t> codes;
    for (int cell : m_selection.Selected())
        codes.push_back(CodeOfCell(cell));
    return codes;
}

int CharacterGrid::FirstSelectedGroup() const
{
    const int cell = m_selection.FirstSelected();
    return cell < 0 ? -1 : static_cast<int>(m_geometry.GroupOf(static_cast<std::size_t>(cell)));
}

void CharacterGrid::SelectCell(int cell)
{
    m_selection.SelectOnly(cell);
    if (m_selection.IsSelected(cell))
        EnsureVisible(cell);
    SelectionChanged();
}

void CharacterGrid::SelectionChanged()
{
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
    // Drawn at the device pixel ratio, so that glyphs are as sharp as the screen allows.
    const qreal ratio = devicePixelRatioF();
    const int side = static_cast<int>(m_cellSide * ratio);
    QImage image(side, side, QImage::Format_RGB32);
    image.fill(selected ? pal.color(QPalette::Highlight) : pal.color(QPalette::Base));
    const QRgb ink = selected ? pal.color(QPalette::HighlightedText).rgb() : pal.color(QPalette::Text).rgb();
    const int inset = static_cast<int>(3 * ratio);
    if (const Form* glyph = m_glyphs ? m_glyphs(code) : nullptr)
        DrawFormSmooth(
            image, QRect(inset, inset, side - 2 * inset, side - 2 * inset), *glyph, ink, CellPenWidth * ratio);
    image.setDevicePixelRatio(ratio);
    ++m_rendered;
    return *m_cache.insert(key, image);
}

void CharacterGrid::paintEvent(QPaintEvent* event)
{
    if (!m_cache.isEmpty() && m_cache.begin()->devicePixelRatio() != devicePixelRatioF())
        m_cache.clear(); // the window went to a screen of another ratio
    QPainter painter(viewport());
    const QPalette& pal = palette();
    painter.fillRect(event->rect(), pal.color(QPalette::Base));
    if (m_codes.empty() && !m_emptyMessage.isEmpty()) {
        painter.setFont(m_itemFont);
        painter.setPen(pal.color(QPalette::PlaceholderText));
        painter.drawText(viewport()->rect().adjusted(Margin, Margin, -Margin, -Margin),
            Qt::AlignCenter | Qt::TextWordWrap, m_emptyMessage);
        return;
    }
    const int scroll = verticalScrollBar()->value();
    const QFontMetrics titleMetrics(m_titleFont);
    const int focus = hasFocus() ? m_selection.Focus() : -1;
    for (const GridGeometry::Row& row : m_geometry.Rows()) {
        const int top = row.top - scroll;
        if (top + row.height < event->rect().top() || top > event->rect().bottom())
            continue; // only what is visible is drawn
        if (row.header) {
            const QRect header(0, top, viewport()->width(), row.height);
            painter.fillRect(header, pal.color(QPalette::Window));
            painter.setFont(m_titleFont);
            painter.setPen(pal.color(QPalette::WindowText));
            const int titleTop = header.bottom() + 1 - titleMetrics.height() - 5;
            painter.drawText(QPoint(TitleIndent, titleTop + titleMetrics.ascent()), m_groups[row.group].title);
            QLinearGradient gradient(0, 0, TitleRuleLength, 0);
            gradient.setColorAt(0, TitleRuleColour);
            gradient.setColorAt(1, pal.color(QPalette::Window));
            painter.fillRect(QRect(0, titleTop + titleMetrics.height() + 4, TitleRuleLength, 1), gradient);
            continue;
        }
        for (std::size_t c = 0; c < row.cellCount; ++c) {
            const int cell = static_cast<int>(row.firstCell + c);
            const QRect r(Margin + static_cast<int>(c) * m_cellSide, top, m_cellSide, m_cellSide);
            painter.drawImage(r.topLeft(), CellImage(CodeOfCell(cell), m_selection.IsSelected(cell)));
            painter.setPen(pal.color(QPalette::Mid));
            painter.drawRect(r.adjusted(0, 0, -1, -1));
            if (cell == focus) {
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
    if (event->button() == Qt::RightButton && m_selection.IsSelected(cell))
        return; // keep the selection for the context menu
    if (cell < 0) {
        if (event->button() == Qt::LeftButton)
            SelectCell(-1);
        return;
    }
    if (event->modifiers() & Qt::ControlModifier)
        m_selection.Toggle(cell);
    else if (event->modifiers() & Qt::ShiftModifier)
        m_selection.ExtendTo(cell);
    else {
        SelectCell(cell);
        return;
    }
    SelectionChanged();
}

void CharacterGrid::mouseDoubleClickEvent(QMouseEvent* event)
{
    // The scroll area hands on its viewport's events in viewport coordinates already.
    const int cell = event->button() == Qt::LeftButton ? CellAt(event->position().toPoint()) : -1;
    if (cell >= 0) {
        if (!m_selection.IsSelected(cell))
            SelectCell(cell);
        emit cellActivated(cell);
    }
    else
        QAbstractScrollArea::mouseDoubleClickEvent(event);
}

void CharacterGrid::keyPressEvent(QKeyEvent* event)
{
    using Key = GridGeometry::Key;
    Key key;
    switch (event->key()) {
    case Qt::Key_Home: key = Key::Home; break;
    case Qt::Key_End: key = Key::End; break;
    case Qt::Key_Left: key = Key::Left; break;
    case Qt::Key_Right: key = Key::Right; break;
    case Qt::Key_Up: key = Key::Up; break;
    case Qt::Key_Down: key = Key::Down; break;
    case Qt::Key_Space:
        if (m_selection.Focus() >= 0)
            SelectCell(m_selection.Focus());
        return;
    default: QAbstractScrollArea::keyPressEvent(event); return;
    }
    if (m_codes.empty())
        return;
    SelectCell(static_cast<int>(m_geometry.Move(static_cast<std::size_t>(std::max(0, m_selection.Focus())), key)));
}

void CharacterGrid::contextMenuEvent(QContextMenuEvent* event)
{
    int cell = -1;
    if (event->reason() == QContextMenuEvent::Mouse) {
        // The scroll area hands on its viewport's events in viewport coordinates already.
        cell = CellAt(event->pos());
        if (cell >= 0 && !m_selection.IsSelected(cell))
            SelectCell(cell);
    } else {
        cell = m_selection.Focus();
    }
    emit contextMenuRequested(cell, event->globalPos());
}
