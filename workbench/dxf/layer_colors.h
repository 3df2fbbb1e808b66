#pragma once

#include "workbench/dxf/dxf_drawing.h"

#include <string_view>
#include <unordered_map>
#include <vector>

namespace workbench {

/// The colours of a drawing's layers, for who asks for many of them: FindLayerColor() goes through
/// all layers each time.
class CLayerColors
{
public:
    /// The layers are not needed afterwards.
    explicit CLayerColors(const std::vector<CDxfLayer>& layers);

    /// As FindLayerColor() has it.
    int Of(std::wstring_view name) const;

private:
    /// By names in lower case.
    std::unordered_map<CString, int> m_colors;
};

} // namespace workbench
