#pragma once

#include "frame/conn_values.h"

#include <vector>

/// Geometry of the connection sketch and of the scrolling picture, in whole pixels. The sketch is a
/// front view of the radiator: its width stands for the length, its height for the height, and the
/// depth is not drawn.

struct CBildPunkt
{
    int x = 0;
    int y = 0;

    friend bool operator==(const CBildPunkt&, const CBildPunkt&) = default;
};

struct CBildRect
{
    int left = 0;
    int top = 0;
    int right = 0;
    int bottom = 0;
};

/// Abscissa of a point in the sketch as a fraction of its width, 0 in the middle. The offset counts
/// threefold, so that points near to each other stay apart in the small picture.
double BildAbszisse(const ConnVector& position, const ConnVector& offset);

/// Place of a point in the sketch.
CBildPunkt PunktAufBild(const CBildRect& bild, const ConnVector& position,
                        const ConnVector& offset);

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
using CStrich = std::vector<CBildPunkt>;
std::vector<CStrich> PfeilStriche(Pfeil richtung, CBildPunkt ort);

/// Which scroll bars a picture needs, and what is left of the client area beside them.
struct CScrollBedarf
{
    bool horizontal = false;
    bool vertikal = false;
    int breite = 0;
    int hoehe = 0;
};

/// A picture as large as the area needs no bar; one bar may make the other needed.
CScrollBedarf ScrollbalkenFuer(int breite, int hoehe, int bildBreite, int bildHoehe,
                               int balkenBreite);

enum class ScrollCode
{
    zeileZurueck,
    zumAnfang,
    seiteZurueck,
    zeileVor,
    zumEnde,
    seiteVor,
    /// The thumb was moved or released.
    daumen,
};

/// The position after a scroll event. `daumen` is the position in the event and counts for the
/// thumb only. To the start and to the end move by one pixel.
int NeueScrollPosition(int position, ScrollCode code, int daumen, int bildGroesse, int groesse);
