#include "PracticeSheet.h"

#include "Character.h"
#include "CharacterDatabase.h"
#include "GlyphRendering.h"
#include "Lexicon.h"

#include <QFont>
#include <QFontMetricsF>
#include <QImage>
#include <QPageSize>
#include <QPainter>
#include <QPainterPath>
#include <QPdfWriter>
#include <QSaveFile>

namespace {

/// The sheet's colours: paper, ink, the stroke of a frame in its accent, the character to
/// trace, the boxes and their dashed cross.
const QColor PaperColour(255, 255, 255);
const QColor Ink(20, 20, 20);
const QColor Earlier(70, 70, 70);
const QColor Accent(208, 40, 32);
const QColor Trace(200, 200, 200);
const QColor Border(128, 128, 128);
const QColor Cross(176, 176, 176);

/// A font with Japanese and Latin letters, the same on screen, on paper and embedded in a PDF.
QFont SheetFont(double pixels)
{
    QFont font;
    font.setFamilies({QStringLiteral("IPAGothic"), QStringLiteral("IPAPGothic"), QStringLiteral("Noto Sans CJK JP"),
        QStringLiteral("Droid Sans Fallback")});
    font.setPixelSize(std::max(1, static_cast<int>(pixels + 0.5)));
    font.setHintingPreference(QFont::PreferNoHinting);
    return font;
}

QString Text(const char* text)
{
    return QString::fromUtf8(text ? text : "");
}

/// Draws the page in millimetres onto a device of so many dots per millimetre.
class PagePainter {
public:
    PagePainter(QPainter& painter, double scale) : m_p(painter), m_s(scale) { }

    QRectF Map(const SheetRect& r) const { return {r.x * m_s, r.y * m_s, r.width * m_s, r.height * m_s}; }
    QPen Pen(const QColor& colour, double millimetres, Qt::PenStyle style = Qt::SolidLine) const
    {
        QPen pen(colour, std::max(0.5, millimetres * m_s), style, Qt::RoundCap, Qt::RoundJoin);
        return pen;
    }

    /// Stroke `k` of the form placed in `target`.
    QPainterPath StrokePath(const Form& form, std::uint16_t k, const QRectF& target) const
    {
        return StrokePathOf(form.GetStroke(k), [&](Point p) {
            return QPointF(target.left() + p.x * target.width() / form.Width(),
                target.top() + p.y * target.height() / form.Height());
        });
    }

    /// A square with the practice sheet's dashed cross through its middle.
    void Box(const SheetRect& r, double border)
    {
        const QRectF box = Map(r);
        m_p.setBrush(Qt::NoBrush);
        m_p.setPen(Pen(Cross, 0.15, Qt::DashLine));
        m_p.drawLine(QPointF(box.center().x(), box.top()), QPointF(box.center().x(), box.bottom()));
        m_p.drawLine(QPointF(box.left(), box.center().y()), QPointF(box.right(), box.center().y()));
        m_p.setPen(Pen(Border, border));
        m_p.drawRect(box);
    }

    /// Strokes [0, count) of the form in `r` (less a margin), the last one in `last` when set.
    void Glyph(const Form& form, const SheetRect& r, std::uint16_t count, const QColor& ink, double width,
        const QColor* last = nullptr)
    {
        const double inset = r.width * 0.08;
        const QRectF target = Map({r.x + inset, r.y + inset, r.width - 2 * inset, r.height - 2 * inset});
        m_p.setBrush(Qt::NoBrush);
        for (std::uint16_t k = 0; k < count && k < form.StrokeCount(); ++k) {
            m_p.setPen(Pen(last && k + 1 == count ? *last : ink, width));
            m_p.drawPath(StrokePath(form, k, target));
        }
        if (last && count > 0 && count <= form.StrokeCount()) {
            // Where the stroke starts.
            const QPointF start = StrokePath(form, static_cast<std::uint16_t>(count - 1), target).pointAtPercent(0);
            m_p.setPen(Qt::NoPen);
            m_p.setBrush(*last);
            m_p.drawEllipse(start, width * 1.3 * m_s, width * 1.3 * m_s);
        }
    }

    void Line(const QString& text, const SheetRect& r, double size, const QColor& colour, int flags = Qt::AlignLeft)
    {
        const QFont font = SheetFont(size * m_s);
        m_p.setFont(font);
        m_p.setPen(colour);
        const QRectF box = Map(r);
        m_p.drawText(box, flags | Qt::AlignVCenter | Qt::TextSingleLine,
            QFontMetricsF(font).elidedText(text, Qt::ElideRight, box.width()));
    }

private:
    QPainter& m_p;
    double m_s;
};

} // namespace

std::vector<SheetCharacter> PracticeSheet::Load(
    CharacterDatabase& database, const Lexicon* lexicon, const std::vector<std::uint16_t>& ids, QString& error)
{
    std::vector<SheetCharacter> characters;
    for (std::uint16_t id : ids) {
        if (!database.CharacterExists(id)) {
            error = QStringLiteral("no character %1 in the database").arg(id);
            return {};
        }
        const auto character = database.LoadCharacter(id);
        SheetCharacter c;
        c.id = id;
        c.glyph = database.LoadElement(character->ElementId());
        c.on = Text(character->OnReading());
        c.kun = Text(character->KunReading());
        c.meaning = Text(character->Meaning());
        if (lexicon)
            for (const LexiconWord& word : lexicon->Words(id))
                if (word.common && c.words.size() < 2 && word.writing.size() > 3)
                    c.words << QString::fromUtf8(word.writing.data(), static_cast<qsizetype>(word.writing.size()))
                            + QLatin1Char(' ')
                            + QString::fromUtf8(word.reading.data(), static_cast<qsizetype>(word.reading.size()))
                            + QLatin1Char(' ')
                            + QString::fromUtf8(word.meaning.data(), static_cast<qsizetype>(word.meaning.size()));
        characters.push_back(std::move(c));
    }
    return characters;
}

PracticeSheet::PracticeSheet(std::vector<SheetCharacter> characters, SheetOptions options)
    : m_characters(std::move(characters)), m_options(options.Clamped())
{
    std::vector<SheetItem> items;
    for (const SheetCharacter& c : m_characters)
        items.push_back({c.glyph && c.glyph->FormCount() > 0 ? c.glyph->GetForm(0).StrokeCount() : 0, !c.words.isEmpty()});
    m_pages = SheetLayout::Lay(items, m_options);
}

void PracticeSheet::PaintPage(QPainter& painter, std::size_t index, double scale) const
{
    PagePainter p(painter, scale);
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    const SheetRect paper = SheetLayout::PaperSize(m_options.paper);
    painter.fillRect(p.Map(paper), PaperColour);
    if (index >= m_pages.size()) {
        painter.restore();
        return;
    }
    for (const SheetBlock& block : m_pages[index].blocks) {
        const SheetCharacter& c = m_characters.at(block.item);
        const Form* form = c.glyph && c.glyph->FormCount() > 0 ? &c.glyph->GetForm(0) : nullptr;
        p.Box(block.glyph, 0.3);
        if (form)
            p.Glyph(*form, block.glyph, form->StrokeCount(), Ink, 0.9);
        // The texts beside it.
        SheetRect line{block.text.x, block.text.y, block.text.width, SheetLayout::LineHeight};
        QString readings;
        if (!c.on.isEmpty())
            readings += QStringLiteral("ON  ") + c.on;
        if (!c.kun.isEmpty())
            readings += (readings.isEmpty() ? QString() : QStringLiteral("      ")) + QStringLiteral("KUN  ") + c.kun;
        p.Line(readings, line, 3.6, Ink);
        line.y += SheetLayout::LineHeight;
        p.Line(c.meaning, line, 3.4, Ink);
        if (block.textLines > 2) {
            line.y += SheetLayout::LineHeight;
            p.Line(c.words.join(QStringLiteral("      ")), line, 3.0, Earlier);
        }
        // The stroke order: frame k shows strokes 1..k, stroke k in the accent colour.
        for (std::size_t k = 0; form && k < block.order.size(); ++k) {
            const SheetRect& frame = block.order[k];
            p.Box(frame, 0.15);
            p.Glyph(*form, frame, static_cast<std::uint16_t>(k + 1), Earlier, 0.35, &Accent);
            p.Line(QString::number(k + 1), {frame.x + 0.5, frame.y + 0.3, frame.width, 2.2}, 1.9, Accent);
        }
        // The practice boxes: the first to trace, the others empty.
        for (std::size_t i = 0; i < block.boxes.size(); ++i) {
            p.Box(block.boxes[i], 0.3);
            if (form && static_cast<int>(i) < block.traceBoxes)
                p.Glyph(*form, block.boxes[i], form->StrokeCount(), Trace, block.boxes[i].width * 0.04);
        }
    }
    const SheetRect area = SheetLayout::ContentArea(m_options.paper);
    p.Line(QStringLiteral("Zavoren!  %1 / %2").arg(index + 1).arg(m_pages.size()),
        {area.x, area.Bottom() + 1, area.width, SheetLayout::Footer - 1}, 2.8, Border, Qt::AlignRight);
    painter.restore();
}

QImage PracticeSheet::PageImage(std::size_t index, int width, qreal ratio) const
{
    const SheetRect paper = SheetLayout::PaperSize(m_options.paper);
    const int w = std::max(1, static_cast<int>(width * ratio));
    const int h = std::max(1, static_cast<int>(w * paper.height / paper.width));
    QImage image(w, h, QImage::Format_RGB32);
    image.fill(PaperColour);
    {
        QPainter painter(&image);
        PaintPage(painter, index, w / paper.width);
    }
    image.setDevicePixelRatio(ratio);
    return image;
}

bool PracticeSheet::WritePdf(const QString& path, QString& error) const
{
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly)) {
        error = file.errorString();
        return false;
    }
    {
        QPdfWriter writer(&file);
        writer.setPageSize(QPageSize(m_options.paper == Paper::Letter ? QPageSize::Letter : QPageSize::A4));
        writer.setPageMargins(QMarginsF(0, 0, 0, 0));
        writer.setResolution(600);
        writer.setCreator(QStringLiteral("Zavoren!"));
        writer.setTitle(QStringLiteral("Zavoren! practice sheet"));
        QPainter painter(&writer);
        if (!painter.isActive()) {
            file.cancelWriting();
            error = QStringLiteral("the PDF could not be started");
            return false;
        }
        const double scale = writer.resolution() / 25.4;
        for (std::size_t i = 0; i < m_pages.size(); ++i) {
            if (i > 0)
                writer.newPage();
            PaintPage(painter, i, scale);
        }
    }
    if (!file.commit()) {
        error = file.errorString();
        return false;
    }
    return true;
}
