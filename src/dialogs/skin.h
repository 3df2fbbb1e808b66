#pragma once

#include "platform/color.h"
#include "uikit/dialog.h"

#include <optional>

/// The host's skin colours, one set for the process. Every dialog that is made reads them anew.
struct SkinFarben
{
    bool erlaubt = false;
    /// Behind dialogs and labels; there is always one.
    COLORREF hintergrund = 0xF5E4D6;
    std::optional<COLORREF> schaltflaeche;
    /// Kept for the host's own windows.
    std::optional<COLORREF> rahmen;
    std::optional<COLORREF> liste;
    std::optional<COLORREF> eingabe;
};

/// Reads the host's settings into the set. A colour that the host does not have becomes that of a
/// new SkinFarben, whatever it was before.
void LeseSkin();

const SkinFarben& AktuellerSkin();

/// What the skin gives an area of that kind; empty where the toolkit's own colours stay.
ControlColors SkinFarbenFuer(ColorKind kind);
