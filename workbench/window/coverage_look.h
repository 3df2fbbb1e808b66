#pragma once

#include "workbench/plan/coverage.h"

#include <QColor>
#include <QPainter>
#include <QString>

namespace workbench {

/// How the plan shows at a glance how a room stands: by a soft fill, and for those who cannot tell
/// the colours apart by a sign as well.

/// Fill of the room's floor; dark text can be read on it.
QColor FillOf(Coverage coverage);

/// Strong form of the same colour, for signs and figures on that fill.
QColor InkOf(Coverage coverage);

/// The same on another ground, such as that of a list: a light one on a dark ground.
QColor InkOn(const QColor& ground, Coverage coverage);

/// In words, as lists and tool tips have it.
QString TextOf(Coverage coverage);

/// Paints the sign into a square, with y downwards: a tick, an exclamation mark in a triangle, a
/// ring for a room without radiator, an arrow to both sides for one that does not fit, a plus for
/// too much, or a dash where nothing is asked.
void PaintSign(QPainter& painter, Coverage coverage, const QRectF& square);

} // namespace workbench
