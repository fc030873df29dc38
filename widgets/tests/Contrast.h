#pragma once

// Contrast between colours as it is defined for text on screen, and a dark palette to try the
// pages in.

#include <QColor>
#include <QImage>
#include <QPalette>

#include <algorithm>
#include <cmath>

namespace testsupport {

/// Relative luminance of a colour.
inline double Luminance(const QColor& c)
{
    auto channel = [](double v) { return v <= 0.03928 ? v / 12.92 : std::pow((v + 0.055) / 1.055, 2.4); };
    return 0.2126 * channel(c.redF()) + 0.7152 * channel(c.greenF()) + 0.0722 * channel(c.blueF());
}

/// Contrast ratio of two colours, from 1 (the same) to 21 (black and white).
inline double Contrast(const QColor& a, const QColor& b)
{
    const double la = Luminance(a), lb = Luminance(b);
    return (std::max(la, lb) + 0.05) / (std::min(la, lb) + 0.05);
}

/// A dark palette like a desktop's dark theme.
inline QPalette DarkPalette()
{
    QPalette p;
    p.setColor(QPalette::Window, QColor(45, 45, 48));
    p.setColor(QPalette::WindowText, QColor(230, 230, 230));
    p.setColor(QPalette::Base, QColor(30, 30, 30));
    p.setColor(QPalette::Text, QColor(230, 230, 230));
    p.setColor(QPalette::Button, QColor(45, 45, 48));
    p.setColor(QPalette::ButtonText, QColor(230, 230, 230));
    p.setColor(QPalette::Mid, QColor(110, 110, 110));
    p.setColor(QPalette::Highlight, QColor(42, 130, 218));
    p.setColor(QPalette::HighlightedText, QColor(255, 255, 255));
    return p;
}

/// The colour most unlike `paper` within `area` of an image: the ink where ink is.
inline QColor FarthestFrom(const QImage& image, const QColor& paper, QRect area = QRect())
{
    if (area.isNull())
        area = image.rect();
    area &= image.rect();
    QColor best = paper;
    double distance = -1;
    for (int y = area.top(); y <= area.bottom(); ++y)
        for (int x = area.left(); x <= area.right(); ++x) {
            const double d = Contrast(image.pixelColor(x, y), paper);
            if (d > distance) {
                distance = d;
                best = image.pixelColor(x, y);
            }
        }
    return best;
}

} // namespace testsupport
