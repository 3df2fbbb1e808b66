// A CAD program that binds the module: it asks for the radiator of one room and prints it.

#include "frame/entry_points.h"

#include <clocale>
#include <cstdlib>
#include <iostream>

int main()
{
    std::setlocale(LC_CTYPE, ""); // accents are printed; the decimal point stays

    HK_DATEN_VDI3805_UEBERGABE room;
    room.Hersteller = L"Valmorena";
    room.Art = L"Radiatori a piastra compatti";
    room.Produkt = L"Tipo 22";
    room.Leistung = 900.0;
    room.Vorlauf = 55.0;
    room.Ruecklauf = 45.0;
    room.Raumtemperatur = 20.0;
    room.HoeheMin = 600.0;
    room.HoeheMax = 600.0;
    room.TiefeMax = 110.0;
    room.LaengeMax = 1400.0;

    CString layer;
    int layerColor = 0;
    if (HeizkoerperauswahlVDI3805(nullptr, &room, layer, layerColor, false, false) < 0) {
        std::wcerr << L"no radiator of " << room.Produkt << L" fits\n";
        return EXIT_FAILURE;
    }
    const HK_DATEN_VDI3805& chosen = room.Daten;
    std::wcout << room.TypName << L": " << chosen.Hoehe << L" x " << chosen.Tiefe << L" x "
               << chosen.Laenge << L" mm, " << chosen.Leistung << L" W, " << chosen.Inhalt
               << L" l\n";
    return EXIT_SUCCESS;
}
