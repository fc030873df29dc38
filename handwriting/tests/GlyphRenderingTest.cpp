#include "GlyphRendering.h"

#include <gtest/gtest.h>

#include <QGuiApplication>
#include <QImage>
#include <QPainter>
#include <QPalette>

namespace {

Form OneDot(float x, float y)
{
    // A short line with round ends.
    Form form(100, 100);
    Stroke s(Point{x, y});
    s.AppendSegment(Segment(SegmentType::Line, {x + 10, y}));
    form.AppendStroke(s);
    return form;
}

QImage Canvas(int w, int h, QRgb colour = qRgb(255, 255, 255))
{
    QImage image(w, h, QImage::Format_RGB32);
    image.fill(colour);
    return image;
}

} // namespace

TEST(GlyphRendering, FullyInkedBlockGivesTheExactInkColour)
{
    // A thick horizontal bar through the middle of a 100 x 100 target.
    Form form(100, 100);
    Stroke s(Point{10, 50});
    s.AppendSegment(Segment(SegmentType::Line, {90, 50}));
    form.AppendStroke(s);
    QImage image = Canvas(100, 100, qRgb(200, 210, 220));
    DrawFormSmooth(image, QRect(0, 0, 100, 100), form, qRgb(10, 20, 30), 4);
    EXPECT_EQ(image.pixel(50, 50), qRgb(10, 20, 30));
    EXPECT_EQ(image.pixel(50, 10), qRgb(200, 210, 220)); // far from the bar: untouched
}

TEST(GlyphRendering, FilterFullBlockSetsInkAndCentreFourBlend)
{
    // Two target pixels side by side: the first block fully inked, the second only in its centre.
    QImage enlarged(8, 4, QImage::Format_ARGB32_Premultiplied);
    enlarged.fill(Qt::transparent);
    for (int y = 0; y < 4; ++y)
        for (int x = 0; x < 4; ++x)
            enlarged.setPixel(x, y, qRgb(0, 0, 0));
    for (int y = 1; y < 3; ++y)
        for (int x = 5; x < 7; ++x)
            enlarged.setPixel(x, y, qRgb(0, 0, 0));
    QImage image = Canvas(2, 1, qRgb(255, 255, 255));
    FilterEnlargedGlyph(enlarged, image, QRect(0, 0, 2, 1), qRgb(0, 10, 255));
    EXPECT_EQ(image.pixel(0, 0), qRgb(0, 10, 255));
    // v = 0.364: 255 + (0 - 255) * v = 162.18, 255 + (10 - 255) * v = 165.8, blue stays 255.
    EXPECT_EQ(image.pixel(1, 0), qRgb(162, 166, 255));
}

TEST(GlyphRendering, FilterLeavesUninkedPixelsAlone)
{
    QImage enlarged(4, 4, QImage::Format_ARGB32_Premultiplied);
    enlarged.fill(Qt::transparent);
    QImage image = Canvas(1, 1, qRgb(9, 8, 7));
    FilterEnlargedGlyph(enlarged, image, QRect(0, 0, 1, 1), qRgb(0, 0, 0));
    EXPECT_EQ(image.pixel(0, 0), qRgb(9, 8, 7));
    // One corner position: v = 0.03, a faint blend read from the pixel already there.
    enlarged.setPixel(0, 0, qRgb(0, 0, 0));
    FilterEnlargedGlyph(enlarged, image, QRect(0, 0, 1, 1), qRgb(109, 208, 7));
    EXPECT_EQ(image.pixel(0, 0), qRgb(12, 14, 7));
}

TEST(GlyphRendering, SmoothDotBlendsGreys)
{
    const QImage before = Canvas(20, 20);
    QImage image = before;
    DrawFormSmooth(image, QRect(0, 0, 20, 20), OneDot(50, 50), qRgb(0, 0, 0), 1);
    int changed = 0;
    for (int y = 0; y < 20; ++y)
        for (int x = 0; x < 20; ++x)
            if (image.pixel(x, y) != before.pixel(x, y)) {
                ++changed;
                EXPECT_EQ(qRed(image.pixel(x, y)), qGreen(image.pixel(x, y)));
            }
    EXPECT_GT(changed, 0);
    EXPECT_LT(changed, 30);
}

TEST(GlyphRendering, FormWithoutStrokesLeavesTheTargetUntouched)
{
    QImage image = Canvas(50, 50, qRgb(1, 2, 3));
    const QImage before = image;
    DrawFormSmooth(image, QRect(0, 0, 50, 50), Form(109, 109), qRgb(0, 0, 0), 2);
    EXPECT_EQ(image, before);
}

TEST(GlyphRendering, TargetOutsideTheImageIsClipped)
{
    QImage image = Canvas(30, 30);
    DrawFormSmooth(image, QRect(-50, -50, 100, 100), OneDot(60, 60), qRgb(0, 0, 0), 2);
    EXPECT_NE(image.pixel(10, 10), qRgb(255, 255, 255));
}

TEST(GlyphRendering, MarkerWithIndexEqualToStrokeCountDrawsNothing)
{
    QImage image = Canvas(100, 100);
    const QImage before = image;
    QPainter painter(&image);
    DrawStrokeMarker(&painter, QRect(0, 0, 100, 100), OneDot(50, 50), 1);
    DrawStrokeMarker(nullptr, QRect(0, 0, 100, 100), OneDot(50, 50), 0);
    painter.end();
    EXPECT_EQ(image, before);
}

TEST(GlyphRendering, MarkerIsAnEightPixelDiscAtTheStrokeStart)
{
    QImage image = Canvas(100, 100);
    QPainter painter(&image);
    DrawStrokeMarker(&painter, QRect(0, 0, 100, 100), OneDot(40.7f, 60.2f), 0);
    painter.end();
    const QRgb marker = StrokeMarkerColour().rgb();
    EXPECT_EQ(image.pixel(40, 60), marker);
    EXPECT_EQ(image.pixel(37, 60), marker);
    EXPECT_EQ(image.pixel(40, 57), marker);
    EXPECT_EQ(image.pixel(45, 60), qRgb(255, 255, 255));
    EXPECT_EQ(image.pixel(40, 65), qRgb(255, 255, 255));
    const QPalette palette = QGuiApplication::palette();
    EXPECT_EQ(StrokeMarkerColour().red(),
        (palette.color(QPalette::Window).red() + palette.color(QPalette::WindowText).red()) / 2);
}

TEST(GlyphRendering, DrawStrokeSnapsToTheGrid)
{
    QImage image = Canvas(100, 100);
    QPainter painter(&image);
    painter.setPen(QPen(Qt::black, 1));
    Form form(100, 100);
    Stroke s(Point{13, 10});
    s.AppendSegment(Segment(SegmentType::Line, {13, 90}));
    form.AppendStroke(s);
    DrawStroke(painter, QRect(0, 0, 100, 100), form, 0, 4, 1, 0);
    painter.end();
    // 13 snaps to 12, plus the offset 1: the line is drawn at x = 13... from 12 + 1.
    EXPECT_EQ(image.pixel(13, 50), qRgb(0, 0, 0));
    EXPECT_EQ(image.pixel(14, 50), qRgb(255, 255, 255));
    EXPECT_THROW(DrawStroke(painter, QRect(0, 0, 100, 100), form, 1, 4, 0, 0), std::out_of_range);
}

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", qgetenv("QT_QPA_PLATFORM").isEmpty() ? "offscreen" : qgetenv("QT_QPA_PLATFORM"));
    QGuiApplication app(argc, argv);
    ::testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}

namespace {

/// The box of the pixels that are not `background`.
QRect InkBox(const QImage& image, QRgb background)
{
    QRect box;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            if (image.pixel(x, y) != background)
                box |= QRect(x, y, 1, 1);
    return box;
}

/// A character of two strokes: a tall line in the left quarter, a short one at the bottom right.
Form LeftLineAndDot()
{
    Form form(100, 100);
    Stroke tall(Point{20, 10});
    tall.AppendSegment(Segment(SegmentType::Line, {20, 90}));
    form.AppendStroke(tall);
    Stroke dot(Point{80, 85});
    dot.AppendSegment(Segment(SegmentType::Line, {85, 85}));
    form.AppendStroke(dot);
    return form;
}

} // namespace

TEST(GlyphRendering, StrokesFittedFillTheImageCentredWithTheirProportions)
{
    const QRgb white = qRgb(255, 255, 255);
    // Only the tall line (bit 0): moved from the left quarter to the middle, filling the height
    // less the margin, and staying thin.
    QImage image = Canvas(60, 60, white);
    DrawStrokesFitted(image, LeftLineAndDot(), 0b01, 5, qRgb(0, 0, 0), 2);
    const QRect box = InkBox(image, white);
    ASSERT_FALSE(box.isEmpty());
    EXPECT_NEAR(box.center().x(), 30, 2);
    EXPECT_NEAR(box.center().y(), 30, 2);
    EXPECT_GE(box.height(), 48);
    EXPECT_LE(box.width(), 6);
    // The dot alone is scaled as if it spanned a quarter of the character's box: its 5 units
    // over 25 give 10 px of the 50, plus the pen (blown up, it would fill the 50).
    QImage dot = Canvas(60, 60, white);
    DrawStrokesFitted(dot, LeftLineAndDot(), 0b10, 5, qRgb(0, 0, 0), 2);
    EXPECT_GE(InkBox(dot, white).width(), 10);
    EXPECT_LE(InkBox(dot, white).width(), 16);
    // No strokes picked, or strokes past the character's: nothing drawn.
    QImage none = Canvas(60, 60, white);
    DrawStrokesFitted(none, LeftLineAndDot(), 0, 5, qRgb(0, 0, 0), 2);
    DrawStrokesFitted(none, LeftLineAndDot(), 0b100, 5, qRgb(0, 0, 0), 2);
    EXPECT_TRUE(InkBox(none, white).isEmpty());
}

TEST(GlyphRendering, ASmallGlyphOnATransparentImageKeepsItsPartlyCoveredPixels)
{
    // A thin slanted line drawn small, as the progress window draws its glyphs: every pixel the
    // ink reaches shows on a transparent image as it does on an opaque one, not only those it
    // covers whole.
    Form form(109, 109);
    Stroke slant(Point{10, 20});
    slant.AppendSegment(Segment(SegmentType::Line, Point{99, 70}));
    form.AppendStroke(slant);
    QImage opaque(20, 20, QImage::Format_RGB32);
    opaque.fill(Qt::white);
    DrawFormSmooth(opaque, opaque.rect(), form, qRgb(0, 0, 0), 1.5);
    for (QImage::Format format : {QImage::Format_ARGB32_Premultiplied, QImage::Format_ARGB32}) {
        QImage clear(20, 20, format);
        clear.fill(Qt::transparent);
        DrawFormSmooth(clear, clear.rect(), form, qRgb(0, 0, 0), 1.5);
        int inked = 0, shown = 0, partly = 0;
        for (int y = 0; y < 20; ++y)
            for (int x = 0; x < 20; ++x) {
                const bool reached = opaque.pixel(x, y) != qRgb(255, 255, 255);
                inked += reached;
                shown += reached && qAlpha(clear.pixel(x, y)) > 0;
                partly += qAlpha(clear.pixel(x, y)) > 0 && qAlpha(clear.pixel(x, y)) < 255;
                // Over white, the translucent pixel looks as the opaque one does.
                if (reached) {
                    const QColor c = QColor::fromRgba(clear.pixel(x, y));
                    const int seen = qRound(c.alphaF() * c.red() + (1 - c.alphaF()) * 255);
                    EXPECT_NEAR(seen, qRed(opaque.pixel(x, y)), 2) << x << "," << y;
                }
            }
        EXPECT_GT(inked, 0);
        EXPECT_EQ(shown, inked) << format;
        EXPECT_GT(partly, 0) << format; // the line's edges are partly covered
    }
}
