#pragma once

#include "workbench/building/building.h"

#include <QString>

namespace workbench {

/// What the plan tells about rooms and radiators in words.

/// A number with a comma, and without zeros at its end that say nothing.
QString DecimalText(double value, int decimals);

/// A text that is to be shown as a tooltip as it stands: one that looks like markup would be taken
/// for it.
QString PlainToolTip(const QString& text);

/// Type and size of a radiator in a few characters, for example "C 22/600x1200".
QString ShortLabelOf(const CPlacedRadiator& radiator);

/// How a room stands, with the figures where its radiators ought to be of another size.
QString StateOf(const CBuilding& building, const CRoom& room);

/// All data of a room, or of a radiator and the room it stands in, as rich text.
QString ToolTipOf(const CBuilding& building, const CRoom& room);
QString ToolTipOf(const CBuilding& building, const CRoom& room, const CPlacedRadiator& radiator);

} // namespace workbench
