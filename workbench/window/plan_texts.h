#pragma once

#include "workbench/building/building.h"

#include <QString>

namespace workbench {

/// What the plan tells about rooms and radiators in words.

/// Whole watts, with a true minus sign.
QString WattText(double value);

/// Type and size of a radiator in a few characters, for example "C 22/600x1200".
QString ShortLabelOf(const CPlacedRadiator& radiator);

/// How a room stands, with the figures where its radiators ought to be of another size.
QString StateOf(const CBuilding& building, const CRoom& room);

/// All data of a room, or of a radiator and the room it stands in, as rich text.
QString ToolTipOf(const CBuilding& building, const CRoom& room);
QString ToolTipOf(const CBuilding& building, const CRoom& room, const CPlacedRadiator& radiator);

} // namespace workbench
