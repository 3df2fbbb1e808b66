#pragma once

#include "workbench/plan/plan_edit.h"

#include <QRectF>

#include <vector>

namespace workbench {

/// Where the graphic of a valve stands in the plan of its floor, in metres.
struct CValvePlace
{
    CString strBlock;
    double dX = 0.0;
    double dY = 0.0;
    /// Degrees by which the block is turned, counter-clockwise.
    double dWinkel = 0.0;
};

/// The valve graphics of a radiator, that of the flow first, at its connection points, turned for
/// blocks that lie on the left of their base point. One whose pipe goes up or down lies along the
/// radiator towards its nearer end, and at the radiator's middle towards the wall. Graphics that
/// would cover each other stand side by side. The radiator must exist.
std::vector<CValvePlace> ValvePlacesOf(const CBuilding& building, const CRadiatorRef& ref);

/// Degrees by which a block has to be turned besides: its bounds tell on which side of its base
/// point it lies. What belongs to a radiator's right end lies on the right.
double TurnOfBlock(const QRectF& bounds);

} // namespace workbench
