#pragma once

#include "workbench/drawing/block_library.h"

#include <optional>

namespace workbench {

/// The blocks that the host's settings name: those of radiators and those of valves.
struct CDrawingBlocks
{
    CDxfDrawing heizkoerper;
    /// Nothing if the settings name none.
    std::optional<CBlockLibrary> ventile;
    /// What could not be read, in the order of the files. What could is there.
    std::vector<CFileFault> errors;

    const CBlockLibrary* Valves() const { return ventile ? &*ventile : nullptr; }
};

CDrawingBlocks ReadDrawingBlocks();

} // namespace workbench
