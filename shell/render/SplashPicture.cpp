// Draws the start-up picture at a device pixel ratio into a PNG, so that the splash stays sharp
// on every screen; the program carries the pictures this draws (resources/images/splash.png at
// ratio 1, splash@2x.png at ratio 2), decoded without any font work at start-up.
//   splash_picture OUTPUT.png [RATIO]

#include <QFont>
#include <QGuiApplication>
#include <QImage>
#include <QLinearGradient>
#include <QPainter>

#include <cstdio>

int main(int argc, char** argv)
{
    QGuiApplication app(argc, argv);
    if (argc < 2) {
        std::fprintf(stderr, "usage: splash_picture OUTPUT.png [RATIO]\n");
        return 2;
    }
    const qreal ratio = argc > 2 ? QString::fromLocal8Bit(argv[2]).toDouble() : 1.0;
    if (ratio < 1 || ratio > 4) {
        std::fprintf(stderr, "the ratio is between 1 and 4\n");
        return 2;
    }
    constexpr int Width = 360;
    constexpr int Height = 250;
    QImage picture(QSize(Width, Height) * ratio, QImage::Format_RGB32);
    picture.setDevicePixelRatio(ratio);
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setRenderHint(QPainter::TextAntialiasing);
    QLinearGradient paper(0, 0, 0, Height);
    paper.setColorAt(0, QColor(255, 253, 248));
    paper.setColorAt(1, QColor(238, 229, 208));
    painter.fillRect(QRect(0, 0, Width, Height), paper);
    painter.setPen(QPen(QColor(201, 185, 143), 1));
    painter.drawRect(QRectF(0.5, 0.5, Width - 1, Height - 1));

    QFont glyph(QStringLiteral("Noto Sans CJK JP"));
    glyph.setPixelSize(84);
    painter.setFont(glyph);
    painter.setPen(QColor(176, 58, 46));
    painter.drawText(QRect(0, 14, Width, 100), Qt::AlignCenter, QString::fromUtf8("書"));

    QFont title(QStringLiteral("DejaVu Sans"));
    title.setPixelSize(27);
    title.setBold(true);
    painter.setFont(title);
    painter.setPen(QColor(51, 51, 51));
    painter.drawText(QRect(0, 136, Width, 40), Qt::AlignCenter, QStringLiteral("Zavoren!"));

    QFont subtitle(QStringLiteral("DejaVu Sans"));
    subtitle.setPixelSize(13);
    painter.setFont(subtitle);
    painter.setPen(QColor(85, 85, 85));
    painter.drawText(QRect(0, 176, Width, 24), Qt::AlignCenter, QStringLiteral("Kanji Learning Program"));
    painter.end();

    // Opaque RGB without alpha decodes fastest at start-up.
    if (!picture.convertToFormat(QImage::Format_RGB888).save(QString::fromLocal8Bit(argv[1]))) {
        std::fprintf(stderr, "cannot write %s\n", argv[1]);
        return 1;
    }
    return 0;
}
