// Draws the program's icon from the KanjiVG strokes of 書 ("to write"): white strokes on a red
// rounded square, as PNG pictures of the sizes the desktop's icon theme asks for and as one
// scalable SVG.
//   zavoren-icons KANJIVG_066F8_SVG OUTPUT_FOLDER SIZE...

#include "GlyphRendering.h"
#include "SvgPath.h"

#include <QDir>
#include <QGuiApplication>
#include <QImage>
#include <QPainter>

#include <algorithm>
#include <cstdio>
#include <fstream>
#include <sstream>
#include <string>
#include <vector>

namespace {

constexpr int Side = 109; // KanjiVG's box
const QColor Red(176, 58, 46);

/// The `d` attributes of the file's paths, in stroke order.
std::vector<std::string> PathData(const std::string& svg)
{
    std::vector<std::string> paths;
    for (std::size_t at = svg.find(" d=\""); at != std::string::npos; at = svg.find(" d=\"", at + 1)) {
        const std::size_t begin = at + 4;
        const std::size_t end = svg.find('"', begin);
        if (end == std::string::npos)
            break;
        paths.push_back(svg.substr(begin, end - begin));
    }
    return paths;
}

QImage Picture(const Form& glyph, int size)
{
    QImage image(size, size, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    {
        QPainter painter(&image);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(Qt::NoPen);
        painter.setBrush(Red);
        const qreal radius = size * 0.18;
        painter.drawRoundedRect(QRectF(0, 0, size, size), radius, radius);
    }
    const int inset = std::max(1, size / 10);
    const qreal pen = std::max(1.0, size / 22.0);
    DrawFormSmooth(image, QRect(inset, inset, size - 2 * inset, size - 2 * inset), glyph, qRgb(255, 255, 255), pen);
    return image;
}

std::string Svg(const std::vector<std::string>& paths)
{
    std::ostringstream svg;
    svg << "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
        << "<!-- Zavoren! icon: the strokes of 書 from KanjiVG (CC BY-SA 3.0, Ulrich Apel) -->\n"
        << "<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"128\" height=\"128\" viewBox=\"0 0 " << Side << ' '
        << Side << "\">\n"
        << "  <rect width=\"" << Side << "\" height=\"" << Side << "\" rx=\"20\" fill=\"#b03a2e\"/>\n"
        << "  <g transform=\"translate(10.9 10.9) scale(0.8)\" fill=\"none\" stroke=\"#ffffff\" stroke-width=\"6\""
        << " stroke-linecap=\"round\" stroke-linejoin=\"round\">\n";
    for (const std::string& d : paths)
        svg << "    <path d=\"" << d << "\"/>\n";
    svg << "  </g>\n</svg>\n";
    return svg.str();
}

} // namespace

int main(int argc, char** argv)
{
    QGuiApplication app(argc, argv);
    if (argc < 4) {
        std::fprintf(stderr, "usage: zavoren-icons KANJIVG_066F8_SVG OUTPUT_FOLDER SIZE...\n");
        return 2;
    }
    std::ifstream file(argv[1]);
    std::stringstream content;
    content << file.rdbuf();
    const std::vector<std::string> paths = PathData(content.str());
    if (!file || paths.empty()) {
        std::fprintf(stderr, "zavoren-icons: no strokes in %s\n", argv[1]);
        return 1;
    }
    Form glyph(Side, Side);
    try {
        for (const std::string& d : paths)
            glyph.AppendStroke(ParseSvgPath(d));
    } catch (const std::exception& e) {
        std::fprintf(stderr, "zavoren-icons: %s\n", e.what());
        return 1;
    }
    const QDir out(QString::fromLocal8Bit(argv[2]));
    QDir().mkpath(out.path());
    for (int i = 3; i < argc; ++i) {
        const int size = std::atoi(argv[i]);
        if (size < 8 || size > 1024 || !Picture(glyph, size).save(out.filePath(QStringLiteral("zavoren-%1.png").arg(size)))) {
            std::fprintf(stderr, "zavoren-icons: cannot draw or write size %s\n", argv[i]);
            return 1;
        }
    }
    std::ofstream(out.filePath(QStringLiteral("zavoren.svg")).toStdString()) << Svg(paths);
    return 0;
}
