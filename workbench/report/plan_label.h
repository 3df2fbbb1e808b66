#pragma once

#include "workbench/plan/coverage.h"
#include "workbench/report/report_sheet.h"

namespace workbench {

/// Texts of a printed plan. Sizes in millimetres.

/// Height of the number of a radiator.
inline constexpr double kNumberHeight = 2.3;

/// Writes a room's name, in up to three lines, its demand, what is covered of that and what is left
/// into the middle of the space, along its longer side where they do not fit along the other. Where
/// they fit along none it is the whole name alone, or else the name cut short, and where that could
/// not be read, nothing. What is left has the colour of how the room stands.
void PaintRoomLabel(CReportSheet& sheet, const QRectF& space, const CRoom& room, Coverage coverage);

/// What a text along a wall may take to both sides of its radiator's middle.
struct CSpaceAlong
{
    double dBefore = 0.0;
    double dBehind = 0.0;
};

/// Writes a radiator's number with its output into a line `away` below the painter's origin, as
/// near to the origin as the space allows. Where the space is too small it is the number alone, and
/// if that is too wide as well, nothing.
void PaintRadiatorNumber(CReportSheet& sheet, const QString& number, double output,
                         const CSpaceAlong& space, double away);

} // namespace workbench
