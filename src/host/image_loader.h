#pragma once

#include "platform/bitmap.h"
#include "platform/export.h"

/// Numbers of the icons that the modules ask for.
enum LumoIcons : int
{
    iconProdukt = 23,
    iconHilfe = 24,
    iconHersteller = 32,
    iconFirma = 33,
    iconSpeichern = 35,
    iconLoeschen = 36,
    iconArtikel = 39,
    iconGruppe = 42
};

/// The host's icons.
class HOST_API CImageLoader
{
public:
    /// The icon of that number (one of LumoIcons) in pixels, its outside transparent; colours are
    /// not multiplied by alpha. Empty for an icon that the host does not have: the dialog leaves it
    /// out.
    CBitmap LoadLumoIcon(int index, int width, int height) const;
};
