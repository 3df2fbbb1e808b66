#include "workbench/dxf/dxf_drawing.h"

#include <algorithm>

namespace workbench {

const CDxfBlock* FindBlock(const CDxfDrawing& drawing, std::wstring_view name)
{
    const CString wanted = ToLower(CString(name));
    const auto found = std::ranges::find_if(
        drawing.blocks, [&](const CDxfBlock& block) { return ToLower(block.strName) == wanted; });
    return found != drawing.blocks.end() ? &*found : nullptr;
}

CString FindAttribute(const std::vector<CDxfAttribute>& attributes, std::wstring_view name)
{
    const auto found = std::ranges::find(attributes, name, &CDxfAttribute::strName);
    return found != attributes.end() ? found->strWert : CString();
}

int FindLayerColor(const std::vector<CDxfLayer>& layers, std::wstring_view name)
{
    const CString wanted = ToLower(CString(name));
    const auto found = std::ranges::find_if(
        layers, [&](const CDxfLayer& layer) { return ToLower(layer.strName) == wanted; });
    return found != layers.end() ? found->nColor : kColorDefault;
}

} // namespace workbench
