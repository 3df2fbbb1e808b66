#include "workbench/dxf/layer_colors.h"

namespace workbench {

CLayerColors::CLayerColors(const std::vector<CDxfLayer>& layers)
{
    for (const CDxfLayer& layer : layers) {
        // Of layers with one name the first counts.
        m_colors.try_emplace(ToLower(layer.strName), layer.nColor);
    }
}

int CLayerColors::Of(std::wstring_view name) const
{
    const auto found = m_colors.find(ToLower(CString(name)));
    return found != m_colors.end() ? found->second : kColorDefault;
}

} // namespace workbench
