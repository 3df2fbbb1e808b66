#pragma once

#include "workbench/building/building.h"

namespace workbench {

struct CDrawingBlocks;

/// Names of the files below.
inline constexpr wchar_t kPdfName[] = L"progetto.pdf";
inline constexpr wchar_t kDxfName[] = L"pianta.dxf";

/// Writes the plan of a building into a folder, as PDF and as DXF (docs/export-formats.md). Raises
/// CFileException. A process without windows need not have made anything for it.
void WritePlanFiles(const CString& folder, const CBuilding& building, const CDrawingBlocks& blocks);

} // namespace workbench
