// A CAD program in small: it chooses a radiator and connects it.
//   cad SETTINGS             chooses silently and prints what it found
//   cad SETTINGS --dialogs   lets the user choose

#include "connection.h"
#include "drawing.h"
#include "frame/entry_points.h"
#include "platform/encoding.h"
#include "platform/exception.h"
#include "settings.h"

#include <cstdlib>
#include <iostream>
#include <string_view>

namespace {

/// The room's wishes, in millimetres, watts and degrees Celsius.
HK_DATEN_VDI3805_UEBERGABE Wishes()
{
    HK_DATEN_VDI3805_UEBERGABE room;
    room.Hersteller = L"Esempio";
    room.Art = L"Radiatori a piastra";
    room.Produkt = L"Tipo 22";
    room.Leistung = 900.0;
    room.Vorlauf = 55.0;
    room.Ruecklauf = 45.0;
    room.Raumtemperatur = 20.0;
    room.HoeheMin = 300.0;
    room.HoeheMax = 600.0;
    room.TiefeMax = 110.0;
    room.LaengeMax = 1400.0;
    // Radiators that are built to measure are made for what is asked now.
    room.NeuLesen = 1;
    return room;
}

/// False if there is no radiator: nothing fits, or the user has cancelled.
bool ChooseRadiator(HK_DATEN_VDI3805_UEBERGABE& room, CDrawing& drawing, bool withDialog)
{
    // The dialog changes the record while it is open, and Cancel takes nothing back.
    HK_DATEN_VDI3805_UEBERGABE asked = room;
    CString layer;
    int layerColor = 0;
    const int answer =
        HeizkoerperauswahlVDI3805(&drawing, &asked, layer, layerColor, withDialog, true);
    if (answer < 0) {
        return false;
    }
    room = asked;
    std::cout << Utf8FromWide(room.TypName) << ": " << room.Daten.Leistung << " W, "
              << room.Daten.Inhalt << " l" << std::endl;
    return true;
}

/// The user picks a valve; its table is fetched with a second call, since a picked valve has none.
void ChooseValve(VDI3805_VENTIL_KV& valve)
{
    if (ShowVentVDI3805Dlg(valve.VentilNr, valve.Hersteller, valve)) {
        VDI3805_VENTIL_KV none;
        VDI3805GetVentilDaten(valve, none);
    }
}

void PrintConnection(const CDrawnRadiator& radiator, const CConnection& connection)
{
    std::cout << Utf8FromWide(connection.points.Name) << '\n'
              << "H_VL_PUNKT " << Utf8FromWide(radiator.Attribute(L"H_VL_PUNKT")) << '\n'
              << "H_RL_PUNKT " << Utf8FromWide(radiator.Attribute(L"H_RL_PUNKT")) << std::endl;
}

int Run(bool withDialogs)
{
    CDrawing drawing;
    HK_DATEN_VDI3805_UEBERGABE room = Wishes();
    if (!ChooseRadiator(room, drawing, withDialogs)) {
        std::cerr << "no radiator" << std::endl;
        return EXIT_FAILURE;
    }
    CDrawnRadiator radiator(room.Daten.Laenge / 1000.0, room.Daten.Tiefe / 1000.0,
                            room.Daten.Hoehe / 1000.0);
    CConnection connection;
    connection.points = ReadConnection(radiator);
    WriteConnection(radiator, connection.points);
    if (withDialogs) {
        ChooseValve(connection.flowValve);
        if (!EditConnection(radiator, connection, drawing)) {
            std::cerr << "not connected" << std::endl;
            return EXIT_FAILURE;
        }
    }
    PrintConnection(radiator, connection);
    return EXIT_SUCCESS;
}

} // namespace

int main(int argc, char** argv)
{
    if (argc < 2) {
        std::cerr << "usage: cad SETTINGS [--dialogs]" << std::endl;
        return EXIT_FAILURE;
    }
    if (!LoadSettings(argv[1])) {
        std::cerr << argv[1] << ": cannot be read" << std::endl;
        return EXIT_FAILURE;
    }
    try {
        return Run(argc > 2 && std::string_view(argv[2]) == "--dialogs");
    } catch (const CException& fault) {
        // A damaged valve file, say. The text is for the user.
        std::cerr << Utf8FromWide(fault.GetErrorMessage()) << std::endl;
        return EXIT_FAILURE;
    }
}
