#pragma once

#include "uikit/scroll_canvas.h"

/// How a picture scrolls within a control, in whole pixels.

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

/// The position after a scroll event. `daumen` is the position in the event and counts for the
/// thumb only. To the start and to the end move by one pixel. A
/// picture that fits, and so has no bar, stays where it is.
int NeueScrollPosition(int position, ScrollAction action, int daumen, int bildGroesse, int groesse);
