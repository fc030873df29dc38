#include "StoredPicture.h"

#include <QPixmap>
#include <QResource>
#include <QtEndian>

#include <cstdint>
#include <sys/mman.h>
#include <unistd.h>

namespace {

QString PicturePath(const QString& name)
{
    return QStringLiteral(":/pictures/%1.pic").arg(name);
}

} // namespace

QImage StoredPicture(const QString& name)
{
    const QResource resource(PicturePath(name));
    constexpr qint64 HeadSize = 6 + 4 * 4;
    if (!resource.isValid() || resource.compressionAlgorithm() != QResource::NoCompression
        || resource.size() < HeadSize)
        return QImage();
    const uchar* data = resource.data();
    if (QByteArray::fromRawData(reinterpret_cast<const char*>(data), 6) != "ZVPIC1")
        return QImage();
    const auto field = [data](int index) { return qFromLittleEndian<quint32>(data + 6 + 4 * index); };
    const quint32 width = field(0), height = field(1), format = field(2), stride = field(3);
    const bool knownFormat = format == QImage::Format_RGB32 || format == QImage::Format_ARGB32_Premultiplied;
    if (!knownFormat || width == 0 || height == 0 || stride < 4 * width
        || qint64(stride) * height > resource.size() - HeadSize)
        return QImage();
    // The pixels stay where the program's file holds them: nothing is copied.
    QImage picture(data + HeadSize, int(width), int(height), int(stride), QImage::Format(format));
    if (name.endsWith(QLatin1String("@2x")))
        picture.setDevicePixelRatio(2.0);
    return picture;
}

QIcon ProgramIcon()
{
    return QIcon(QPixmap::fromImage(StoredPicture(QStringLiteral("zavoren"))));
}

void ReleaseStoredPicture(const QString& name)
{
    const QResource resource(PicturePath(name));
    if (!resource.isValid() || resource.compressionAlgorithm() != QResource::NoCompression)
        return;
    // Only whole pages inside the picture: the bytes around it may be in use. The pages are
    // part of the program's read-only file image, so dropping them loses nothing.
    const auto page = static_cast<std::uintptr_t>(::sysconf(_SC_PAGESIZE));
    const auto begin = reinterpret_cast<std::uintptr_t>(resource.data());
    const std::uintptr_t first = (begin + page - 1) / page * page;
    const std::uintptr_t last = (begin + static_cast<std::uintptr_t>(resource.size())) / page * page;
    if (last > first)
        ::madvise(reinterpret_cast<void*>(first), last - first, MADV_DONTNEED);
}
