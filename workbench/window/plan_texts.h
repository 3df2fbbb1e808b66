#pragma once

#include "workbench/building/building.h"

#include <QString>

namespace workbench {

/// What the plan tells about rooms and radiators in words.

/// Whole watts, with a true minus sign.
QString WattText(double value);

/// Type and size of a radiator in a few characters, for example "C 22/600x1200".
QString ShortLabelOf(const CPlacedRadiator& radiator);

/// All data of a room, or of a radiator and the room it stands in, as rich text.
QString ToolTipOf(const CRoom& room);
QString ToolTipOf(const CRoom& room, const CPlacedRadiator& radiator);

} // namespace workbench
