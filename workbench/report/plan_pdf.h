#pragma once

#include "workbench/building/building.h"
#include "workbench/drawing/block_library.h"

#include <QDate>

namespace workbench {

/// Writes the plan as a PDF file for the client (docs/export-formats.md): a title with the totals,
/// each floor to scale, the schedule, open rooms, and what is to be ordered. `radiators` has the
/// radiators' blocks, `valves`, which may be null, those of the valves. `date` is that of a project
/// whose building names none. Returns the number of pages.
///
/// Whatever happens meanwhile, the file holds what it held or the new report, whole. Raises
/// CFileException. The toolkit's application object has to exist; it needs no screen.
int WritePlanPdf(const CString& path, const CBuilding& building, const CDxfDrawing& radiators,
                 const CBlockLibrary* valves, const QDate& date);

} // namespace workbench
