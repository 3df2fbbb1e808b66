#pragma once

#include "workbench/plan/coverage.h"
#include "workbench/report/report_sheet.h"

#include <set>
#include <vector>

namespace workbench {

/// How a printed plan shows how a room stands: a light fill, and a strong form of it for
/// figures on that fill.
QColor PrintFillOf(Coverage coverage);
QColor PrintInkOf(Coverage coverage);

/// Metres at which the bar of a scale has its figures, from 0 on: round numbers, in steps that are
/// round as well, for a bar of at most 60 mm.
std::vector<double> ScaleBarMarks(int scale);

/// Paints a bar of the scale with its name, 6.5 mm high, from its upper left corner.
void PaintScaleBar(CReportSheet& sheet, const QPointF& corner, int scale);

/// Paints what the fills mean, in a line of that height, from its upper right corner. What sizes
/// that ought to be others look like comes on a second line, as far as any room shows it.
void PaintLegend(CReportSheet& sheet, const QPointF& corner, const std::set<Coverage>& shown);

/// Paints an arrow to the north, 12 mm high, from its tip.
void PaintNorth(CReportSheet& sheet, const QPointF& tip);

} // namespace workbench
