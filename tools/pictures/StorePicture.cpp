// Decodes a picture once, at build time, into the form the program shows without decoding:
// "ZVPIC1" then width, height, QImage format and bytes per line (32-bit little-endian), then
// the pixels as QImage holds them (RGB32 for opaque pictures, premultiplied ARGB32 otherwise).
//   zavoren-store-picture INPUT.png OUTPUT

#include <QFile>
#include <QGuiApplication>
#include <QImage>
#include <QtEndian>

#include <cstdio>

int main(int argc, char** argv)
{
    QGuiApplication app(argc, argv);
    if (argc != 3) {
        std::fprintf(stderr, "usage: zavoren-store-picture INPUT.png OUTPUT\n");
        return 2;
    }
    QImage picture(QString::fromLocal8Bit(argv[1]));
    if (picture.isNull()) {
        std::fprintf(stderr, "zavoren-store-picture: cannot read %s\n", argv[1]);
        return 1;
    }
    picture = picture.convertToFormat(
        picture.hasAlphaChannel() ? QImage::Format_ARGB32_Premultiplied : QImage::Format_RGB32);
    QFile out(QString::fromLocal8Bit(argv[2]));
    if (!out.open(QIODevice::WriteOnly | QIODevice::Truncate)) {
        std::fprintf(stderr, "zavoren-store-picture: cannot write %s\n", argv[2]);
        return 1;
    }
    QByteArray head("ZVPIC1");
    for (quint32 value : {quint32(picture.width()), quint32(picture.height()), quint32(picture.format()),
             quint32(picture.bytesPerLine())}) {
        char bytes[4];
        qToLittleEndian(value, bytes);
        head.append(bytes, 4);
    }
    out.write(head);
    out.write(reinterpret_cast<const char*>(picture.constBits()), picture.sizeInBytes());
    return out.flush() ? 0 : 1;
}
