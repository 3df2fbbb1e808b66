#include "uikit/picture_file.h"

#include "platform/path.h"
#include "uikit/native/access.h"

#include <QImageReader>

#include <cstring>

namespace {

/// Largest side that a CBitmap has.
constexpr int kMaxSide = 32767;

CBitmap FromNative(const QImage& image)
{
    CBitmap bitmap(image.width(), image.height());
    const auto rowBytes = static_cast<std::size_t>(image.width()) * 4;
    for (int y = 0; y < image.height(); ++y) {
        std::memcpy(bitmap.GetData() + static_cast<std::size_t>(y) * rowBytes, image.scanLine(y),
                    rowBytes);
    }
    return bitmap;
}

} // namespace

CBitmap LoadPictureFile(const CString& path)
{
    QImageReader reader(QString::fromStdString(ResolvePath(path).string()));
    reader.setDecideFormatFromContent(true);
    const QImage image = reader.read().convertToFormat(QImage::Format_RGBA8888);
    if (image.isNull() || image.width() > kMaxSide || image.height() > kMaxSide) {
        return {};
    }
    return FromNative(image);
}
