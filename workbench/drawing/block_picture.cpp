#include "workbench/drawing/block_picture.h"

#include "workbench/drawing/block_path.h"

#include <QColor>
#include <QImage>
#include <QPainter>
#include <QPen>
#include <QTransform>

#include <algorithm>
#include <cstring>

namespace workbench {

namespace {

constexpr double kMarginShare = 0.08;
constexpr double kBlockPenWidth = 1.25;

int SideOf(int asked, int standard)
{
    return asked <= 0 ? standard : std::min(asked, kMaxPictureSide);
}

/// Puts the bounds, y upwards, into the middle of the picture.
QTransform FitInto(const QImage& image, const QRectF& bounds)
{
    const double margin = kMarginShare * std::min(image.width(), image.height());
    const double width = std::max(image.width() - 2.0 * margin, 1.0);
    const double height = std::max(image.height() - 2.0 * margin, 1.0);
    // What has no extent at all is a point, and any scale shows it.
    const double extent = std::max(bounds.width() / width, bounds.height() / height);
    const double scale = extent > 0.0 ? 1.0 / extent : 1.0;
    QTransform transform;
    transform.translate(image.width() / 2.0, image.height() / 2.0);
    transform.scale(scale, -scale);
    transform.translate(-bounds.center().x(), -bounds.center().y());
    return transform;
}

QPen PenOf(COLORREF color)
{
    QPen pen(QColor(GetRValue(color), GetGValue(color), GetBValue(color)), kBlockPenWidth);
    pen.setJoinStyle(Qt::RoundJoin);
    pen.setCapStyle(Qt::RoundCap);
    return pen;
}

CBitmap BitmapFrom(const QImage& image)
{
    CBitmap bitmap(image.width(), image.height());
    const std::size_t rowBytes = static_cast<std::size_t>(image.width()) * 4;
    for (int y = 0; y < image.height(); ++y) {
        std::memcpy(bitmap.GetData() + static_cast<std::size_t>(y) * rowBytes,
                    image.constScanLine(y), rowBytes);
    }
    return bitmap;
}

} // namespace

CBitmap DrawBlockPicture(const std::vector<CDxfLayer>& layers, const CDxfBlock& block, int width,
                         int height)
{
    QImage image(SideOf(width, kPictureWidth), SideOf(height, kPictureHeight),
                 QImage::Format_RGBA8888);
    image.fill(Qt::white);
    const std::vector<CColorPath> paths = MakeBlockPaths(CLayerColors(layers), block);
    const QTransform fit = FitInto(image, BoundsOf(paths));
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    for (const CColorPath& part : paths) {
        painter.setPen(PenOf(part.color));
        painter.drawPath(fit.map(part.path));
    }
    painter.end();
    return BitmapFrom(image);
}

} // namespace workbench
