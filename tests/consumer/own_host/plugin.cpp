// What a CAD program opens at run time: its host and the module in one go.

#include "frame/entry_points.h"

#include <cstdio>

extern "C" RADSEL_API int AskForRadiator()
{
    HK_DATEN_VDI3805_UEBERGABE room;
    room.Hersteller = L"Valmorena";
    room.Art = L"Radiatori a piastra compatti";
    room.Produkt = L"Tipo 22";
    room.Leistung = 900.0;
    room.HoeheMax = room.TiefeMax = room.LaengeMax = 2000.0;
    CString layer;
    int layerColor = 0;
    const int found = HeizkoerperauswahlVDI3805(nullptr, &room, layer, layerColor, false, false);
    std::printf("%d %ls\n", found, room.TypName.c_str());
    return found;
}
