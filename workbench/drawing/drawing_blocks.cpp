#include "workbench/drawing/drawing_blocks.h"

#include "host/host_prefs.h"

#include <utility>

namespace workbench {

CDrawingBlocks ReadDrawingBlocks()
{
    CDrawingBlocks blocks;
    CString path;
    if (lmGetDWGDefPath(LumoDWGDefsNames::heizkoerper, path)) {
        auto read = ReadDxfFile(path);
        if (auto* const error = std::get_if<CFileFault>(&read)) {
            blocks.errors.push_back(std::move(*error));
        } else {
            blocks.heizkoerper = std::get<CDxfDrawing>(std::move(read));
        }
    }
    if (lmGetDWGDefPath(LumoDWGDefsNames::ventile, path)) {
        blocks.ventile.emplace(path);
        const auto& errors = blocks.ventile->GetErrors();
        blocks.errors.insert(blocks.errors.end(), errors.begin(), errors.end());
    }
    return blocks;
}

} // namespace workbench
