// Keeps a hand-over in a project file of its own: what the records are made of has to come with the
// module.

#include "frame/handover.h"
#include "frame/ventil_kv.h"

#include <cstdlib>

int main()
{
    HK_DATEN_VDI3805_UEBERGABE kept;
    kept.Produkt = L"Tipo 22";
    kept.Daten.Leistung = 925.0;
    VDI3805_VENTIL_KV valve;
    valve.DN = 15.0;
    OCArray<double> heights;
    heights.Add(600.0);

    CMemoryStream file;
    CArchive storing(file, CArchive::Mode::store);
    kept.Serialize(storing);
    valve.Serialize(storing);
    heights.Serialize(storing);
    storing.Close();

    HK_DATEN_VDI3805_UEBERGABE read;
    VDI3805_VENTIL_KV readValve;
    OCArray<double> readHeights;
    CArchive loading(file, CArchive::Mode::load);
    read.Serialize(loading);
    readValve.Serialize(loading);
    readHeights.Serialize(loading);
    const bool whole = read.Produkt == kept.Produkt && read.Daten.Leistung == 925.0 &&
                       readValve.DN == 15.0 && readHeights == heights;
    try {
        readHeights[1] = 0.0;
    } catch (const CInvalidArgException&) {
        return whole ? EXIT_SUCCESS : EXIT_FAILURE;
    }
    return EXIT_FAILURE;
}
