// The only source of the program that knows the headers of the module. It stands in a library of
// its own, with the host's functions, and everything else of it is hidden.

#include "bridge.h"

#include "frame/entry_points.h"
#include "frame/hkauswahl_uebergabe.h"
#include "platform/color.h"

CFoundRadiator FindRadiator(const std::wstring& product, double output)
{
    HK_DATEN_VDI3805_UEBERGABE room;
    room.Hersteller = L"Valmorena";
    room.Art = L"Radiatori a piastra compatti";
    room.Produkt = product;
    room.Leistung = output;
    room.HoeheMax = room.TiefeMax = room.LaengeMax = 2000.0;
    CString layer;
    int color = 0;
    HeizkoerperauswahlVDI3805(nullptr, &room, layer, color, false, false);
    return {room.TypName, room.Daten.Leistung};
}

std::string DescribeUnknownIndex()
{
    // Everything that the program below has by the same name.
    HKAUSWAHL_UEBERGABE record;
    const CObject& object = record;
    OCArray<double> heights;
    heights.Add(ToLower(L'A'));
    CMemoryStream stream;
    CArchive archive(stream, CArchive::Mode::store);
    heights.Serialize(archive);
    archive.Close();
    try {
        heights[object.IsKindOf(CObject::GetThisClass()) ? 1 : 2] = RGB(1, 2, 3);
    } catch (const CException& error) {
        return error.what();
    }
    return {};
}
