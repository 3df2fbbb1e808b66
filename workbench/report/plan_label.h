#pragma once

#include "workbench/plan/coverage.h"
#include "workbench/report/report_sheet.h"

namespace workbench {

/// Texts of a printed plan. Sizes in millimetres.

/// Height of the number of a radiator.
inline constexpr double kNumberHeight = 2.3;

/// Writes a room's name, its demand, what is covered of that and what is left into the middle of
/// the space, along its longer side where they do not fit along the other. Where they fit along
/// none it is the name alone, and where that could not be read, nothing. What is left has the
/// colour of how the room stands.
void PaintRoomLabel(CReportSheet& sheet, const QRectF& space, const CRoom& room, Coverage coverage);

/// Writes a radiator's number with its output, in that space without it, about the painter's origin
/// into a line `away` below it. Nothing if there is not even space for the number.
void PaintRadiatorNumber(CReportSheet& sheet, const QString& number, double output, double space,
                         double away);

} // namespace workbench
