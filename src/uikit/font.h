#pragma once

#include "platform/text.h"

/// A font as dialogs name it. Where the face is missing, the nearest one of its kind stands in.
struct CFont
{
    CString face;
    /// Height of a line in pixels at the size for which templates are made; it grows with the
    /// dialogs' font.
    int height = 0;
    /// 100 thin to 900 black; 400 is normal, 700 bold. Nothing is drawn thinner than 400.
    int weight = 400;
    bool italic = false;
    /// Gives all characters one width, so that texts of several rows line up in columns.
    bool fixedPitch = false;
};
