#include "StoredPicture.h"

#include <QFile>
#include <QGuiApplication>
#include <QResource>
#include <QTest>

#include <cstdint>

namespace {

/// Kilobytes of the program's memory that the mapping holding `address` has resident now.
long ResidentKilobytesAround(const void* address)
{
    QFile maps(QStringLiteral("/proc/self/smaps"));
    if (!maps.open(QIODevice::ReadOnly | QIODevice::Text))
        return -1;
    const auto where = reinterpret_cast<std::uintptr_t>(address);
    bool inside = false;
    // Read whole: a file of /proc reports no size, so it seems to end before it is read.
    const QList<QByteArray> lines = maps.readAll().split('\n');
    for (const QByteArray& line : lines) {
        // A mapping's line starts "start-end perms ..."; the lines of its figures "Name: value".
        const QByteArray range = line.left(line.indexOf(' '));
        const qsizetype dash = range.indexOf('-');
        bool startOk = false;
        bool endOk = false;
        const std::uintptr_t start = range.left(dash).toULongLong(&startOk, 16);
        const std::uintptr_t end = range.mid(dash + 1).toULongLong(&endOk, 16);
        if (dash > 0 && startOk && endOk) {
            inside = start <= where && where < end;
            continue;
        }
        if (inside && line.startsWith("Rss:"))
            return line.mid(4).trimmed().split(' ').first().toLong();
    }
    return -1;
}

} // namespace

class StoredPictureTest : public QObject {
    Q_OBJECT
private slots:
    void picturesAreTheirPngsDecoded()
    {
        for (const QString& name : {QStringLiteral("splash"), QStringLiteral("category-new"),
                 QStringLiteral("pen-cursor"), QStringLiteral("zavoren")}) {
            const QImage stored = StoredPicture(name);
            QVERIFY2(!stored.isNull(), qPrintable(name));
            const QImage png(QStringLiteral(ZAVOREN_IMAGES "/%1.png").arg(name));
            QVERIFY(!png.isNull());
            QCOMPARE(stored.size(), png.size());
            // Pixel for pixel (the PNG's colour space tag aside, which the stored picture lacks).
            const QImage a = stored.convertToFormat(QImage::Format_ARGB32_Premultiplied);
            const QImage b = png.convertToFormat(QImage::Format_ARGB32_Premultiplied);
            int different = 0;
            for (int y = 0; y < a.height(); ++y)
                for (int x = 0; x < a.width(); ++x)
                    different += a.pixel(x, y) != b.pixel(x, y);
            QCOMPARE(different, 0);
        }
        QCOMPARE(StoredPicture(QStringLiteral("splash@2x")).devicePixelRatio(), 2.0);
        QVERIFY(StoredPicture(QStringLiteral("no such picture")).isNull());
    }

    void aReleasedPictureLeavesMemoryAndComesBackTheSame()
    {
        const QImage before = StoredPicture(QStringLiteral("splash@2x")).copy();
        const QResource resource(QStringLiteral(":/pictures/splash@2x.pic"));
        QVERIFY(resource.isValid());
        // Every pixel read: the picture's pages are resident.
        QCOMPARE(StoredPicture(QStringLiteral("splash@2x")), before);
        const long resident = ResidentKilobytesAround(resource.data());
        QVERIFY2(resident > 0, qPrintable(QString::number(resident)));
        ReleaseStoredPicture(QStringLiteral("splash@2x"));
        const long released = ResidentKilobytesAround(resource.data());
        const long pictureKilobytes = long(resource.size() / 1024);
        QVERIFY2(resident - released >= pictureKilobytes - 8,
            qPrintable(QStringLiteral("%1 kB resident, %2 kB after release, picture %3 kB")
                           .arg(resident).arg(released).arg(pictureKilobytes)));
        // Read again from the program's file, pixel for pixel.
        QCOMPARE(StoredPicture(QStringLiteral("splash@2x")), before);
        ReleaseStoredPicture(QStringLiteral("no such picture")); // nothing to give back
    }
};

QTEST_MAIN(StoredPictureTest)
#include "StoredPictureTest.moc"
