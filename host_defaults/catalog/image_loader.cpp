#include "host/image_loader.h"

#include "host_defaults/answers.h"
#include "host_defaults/catalog/icon_shapes.h"

namespace host_defaults {

namespace {

constexpr int kLeastSide = 8;
constexpr int kLargestSide = 64;

bool IsSide(int side)
{
    return side >= kLeastSide && side <= kLargestSide;
}

} // namespace

CBitmap LoadLumoIcon(int index, int width, int height)
{
    const std::vector<CIconShape>& shapes = IconShapes(index);
    if (shapes.empty() || !IsSide(width) || !IsSide(height)) {
        return {};
    }
    return DrawIcon(shapes, width, height);
}

} // namespace host_defaults

CBitmap CImageLoader::LoadLumoIcon(int index, int width, int height) const
{
    return host_defaults::LoadLumoIcon(index, width, height);
}
