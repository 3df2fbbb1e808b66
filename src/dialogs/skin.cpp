#include "dialogs/skin.h"

#include "host/host_prefs.h"

namespace {

SkinFarben g_skin;

void LeseFarbe(LumoSkinType typ, std::optional<COLORREF>& farbe)
{
    unsigned long wert = 0;
    if (lmGetLumoSkinColor(typ, wert)) {
        farbe = static_cast<COLORREF>(wert);
    }
}

} // namespace

void LeseSkin()
{
    g_skin = {};
    lmGetAllowLumoSkin(g_skin.erlaubt);
    unsigned long hintergrund = 0;
    if (lmGetLumoSkinColor(skinHintergrund, hintergrund)) {
        g_skin.hintergrund = static_cast<COLORREF>(hintergrund);
    }
    LeseFarbe(skinSchaltflaeche, g_skin.schaltflaeche);
    LeseFarbe(skinRahmen, g_skin.rahmen);
    LeseFarbe(skinListe, g_skin.liste);
    LeseFarbe(skinEingabe, g_skin.eingabe);
}

const SkinFarben& AktuellerSkin()
{
    return g_skin;
}

ControlColors SkinFarbenFuer(ColorKind kind)
{
    const COLORREF hintergrund = g_skin.hintergrund;
    switch (kind) {
    case ColorKind::dialog:
        return {{}, hintergrund};
    case ColorKind::label:
        return {hintergrund, hintergrund};
    case ColorKind::button:
        return {g_skin.schaltflaeche, g_skin.schaltflaeche};
    // Fields lie in the colour of the dialog and only their text has one of its own, so that a skin
    // marks what can be typed without drawing boxes.
    case ColorKind::edit:
        return g_skin.eingabe ? ControlColors{g_skin.eingabe, hintergrund} : ControlColors{};
    case ColorKind::listBox:
        return g_skin.liste ? ControlColors{g_skin.liste, hintergrund} : ControlColors{};
    case ColorKind::other:
        break;
    }
    return {};
}
