#pragma once

#include "frame/conn_values.h"
#include "platform/geometry.h"

#include <vector>

/// Geometry of the connection sketch, in whole pixels. The sketch is a front view of the radiator:
/// its width stands for the length, its height for the height, and the depth is not drawn.

/// The radiator's front view within the frame of the sketch, with a margin for the arrows of points
/// at its edges.
CRect FrontAnsicht(const CRect& rahmen);

/// Abscissa of a point in the sketch as a fraction of its width, 0 in the middle. The offset counts
/// threefold, so that points near to each other stay apart in the small picture.
double BildAbszisse(const ConnVector& position, const ConnVector& offset);

/// Place of a point in the sketch.
CPoint PunktAufBild(const CRect& bild, const ConnVector& position, const ConnVector& offset);

/// Direction of an arrow: of the flow in the pipe, into the radiator at the flow point and out of
/// it at the return point.
enum class Pfeil
{
    rechts = 0,
    links = 1,
    unten = 2,
    oben = 3
};

/// The direction for a point's two angles in degrees.
Pfeil Pfeilrichtung(double winkel1, double winkel2, bool istVorlauf);

/// The strokes of an arrow at a point, each a line from point to point.
using CStrich = std::vector<CPoint>;
std::vector<CStrich> PfeilStriche(Pfeil richtung, CPoint ort);
