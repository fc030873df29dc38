#pragma once

// Helpers for widget tests: a learner's hand on the canvases, and small databases.

#include "CanvasBase.h"
#include "DatabaseWriter.h"
#include "FileCharacterDatabase.h"
#include "Flattening.h"
#include "StrokePath.h"

#include <QTemporaryDir>
#include <QTest>

#include <cmath>
#include <fstream>
#include <memory>

namespace testsupport {

/// Presses, moves through and releases along points given in the canvas's client coordinates.
inline void DrawInk(CanvasBase* canvas, const std::vector<Point>& points)
{
    const QPoint offset = canvas->contentsRect().topLeft();
    auto at = [&](const Point& p) { return QPoint(static_cast<int>(p.x), static_cast<int>(p.y)) + offset; };
    QTest::mousePress(canvas, Qt::LeftButton, Qt::NoModifier, at(points.front()));
    for (std::size_t i = 1; i < points.size(); ++i)
        QTest::mouseMove(canvas, at(points[i]));
    QTest::mouseRelease(canvas, Qt::LeftButton, Qt::NoModifier, at(points.back()));
}

/// The glyph's stroke as a mouse would deliver it on a canvas of `side` pixels: flattened,
/// scaled, and re-sampled to points about 3 px apart.
inline std::vector<Point> StrokeAsMouse(const Form& form, std::uint16_t index, int side)
{
    StrokePath path(FlattenStroke(form.GetStroke(index)));
    path.ScaleAndOffset(static_cast<float>(side) / form.Width(), static_cast<float>(side) / form.Height(), 0, 0);
    path.ResampleInPlace(std::max<std::uint32_t>(2, static_cast<std::uint32_t>(std::lround(path.Length() / 3)) + 1));
    return path.Points();
}

/// Writes a database file into a temporary folder and opens it.
class SmallDatabase {
public:
    DatabaseWriter writer;
    std::unique_ptr<FileCharacterDatabase> Open()
    {
        const QString path = m_dir.filePath("database");
        const auto bytes = writer.Serialize();
        std::ofstream(path.toStdString(), std::ios::binary)
            .write(reinterpret_cast<const char*>(bytes.data()), static_cast<std::streamsize>(bytes.size()));
        auto db = std::make_unique<FileCharacterDatabase>(path.toStdString());
        db->Preload(nullptr);
        return db;
    }
    /// A glyph of straight strokes given as (x0, y0, x1, y1) in a 109 x 109 box.
    static Form Lines(std::initializer_list<std::array<float, 4>> lines)
    {
        Form form(109, 109);
        for (const auto& l : lines) {
            Stroke s(Point{l[0], l[1]});
            s.AppendSegment(Segment(SegmentType::Line, {l[2], l[3]}));
            form.AppendStroke(s);
        }
        return form;
    }

private:
    QTemporaryDir m_dir;
};

/// Number of pixels of the image within `tolerance` of the colour in each channel.
inline int CountNear(const QImage& image, const QColor& colour, int tolerance)
{
    int n = 0;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x) {
            const QColor c = image.pixelColor(x, y);
            n += std::abs(c.red() - colour.red()) <= tolerance && std::abs(c.green() - colour.green()) <= tolerance
                && std::abs(c.blue() - colour.blue()) <= tolerance;
        }
    return n;
}

/// Number of pixels of the image that are not the given colour.
inline int CountNot(const QImage& image, QRgb colour)
{
    int n = 0;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            n += image.pixel(x, y) != colour;
    return n;
}

} // namespace testsupport
