// Files and texts that come from elsewhere.

#include "tests/growth/growth.h"

#include "c_interface/radsel_c.h"
#include "common/heizung_ordner.h"
#include "common/platzierung_datei.h"
#include "common/text_file.h"
#include "connection/kurzliste.h"
#include "connection/presets.h"
#include "dialogs/hilfe_schalter.h"
#include "frame/vdi6030_start.h"
#include "host/host_catalog.h"
#include "host/host_fittings.h"
#include "host/host_prefs.h"
#include "platform/encoding.h"
#include "platform/format.h"
#include "platform/whole_file.h"
#include "reference_host/catalog/catalogue_errors.h"
#include "reference_host/catalog/order_number.h"
#include "reference_host/check/check_run.h"
#include "selection/heizsysteme.h"
#include "tests/src/connection/test_ansicht.h"
#include "tests/src/platform/archived.h"
#include "tests/support/environment_variable.h"
#include "tests/support/setting_override.h"
#include "tests/support/temp_folder.h"
#include "tools/make_catalogues_writer.h"
#include "tools/make_valves_writer.h"
#include "valve/ventil_abruf.h"
#include "valve/ventil_katalog.h"
#include "workbench/dxf/dxf_blocks.h"
#include "workbench/dxf/dxf_writer.h"
#include "workbench/plan/catalogue_check.h"
#include "workbench/plan/connection_name.h"

#include <sstream>

using namespace reference_host;

namespace {

/// As long as any other.
std::string Number(int i)
{
    return std::to_string(100000 + i);
}

/// Records with as many of each kind: in one group, and in groups of their own.
std::string ValveFile(int size, ValveEncoding encoding)
{
    CValveWriter file;
    file.Kopf(L"Prova");
    const auto data = [&](int i) {
        file.Datensatz({1, 15, 0.86, 600.0, true});
        file.Zeile({2.0, L"1", 1.0, 0.0, 0.14, 0.16});
        file.Zusatz(50.0);
        file.Artikel({0, 1, 1, 15, 1}, L"RA-" + FormatInt(i), L"Valvola a squadra");
    };
    file.Hauptgruppe(L"Valvole");
    file.Gruppe(L"Termostatiche");
    for (int i = 0; i < size; ++i) {
        file.Antrieb(i, L"Testa");
        file.Bauform(i, L"Squadra");
        file.Werkstoff(i, L"Ottone");
        data(i);
    }
    for (int i = 0; i < size; ++i) {
        file.Hauptgruppe(L"Detentori");
        file.Gruppe(L"A squadra");
        data(i);
    }
    return file.GetBytes(encoding);
}

/// Many valves of one kind, which take so little work each that what is done for every one of those
/// before shows.
std::string ArticlesFile(int size)
{
    CValveWriter file;
    file.Hauptgruppe(L"Valvole");
    file.Gruppe(L"Termostatiche");
    file.Datensatz({1, 15, 0.86, 600.0, true});
    for (int i = 0; i < size; ++i) {
        file.Artikel({0, 1, 1, 15, 1}, L"RA", L"Valvola");
    }
    return file.GetBytes(ValveEncoding::cp1252);
}

/// A maker's valves, unread so far.
class CValves
{
public:
    explicit CValves(const std::string& bytes) { m_folder.WriteBytes("Prova/ha.tga", bytes); }

private:
    CTempFolder m_folder;
    CSettingOverride m_setting{kSettingVEDir, m_folder.Path()};
};

/// Series in one product, products in one kind, and lengths in one series, as many of each.
std::string RadiatorFile(int size)
{
    CCatalogueWriter file(L"\r\n");
    file.Kopf(L"Prova");
    const auto series = [&file](int number, double height) {
        file.Serie({number, L"22/" + FormatInt(number), L'M', height, 100.0, 1000.0, 1.3, 5.0});
    };
    file.Art(L"Piastre");
    file.Produkt(L"Serie");
    for (int i = 1; i <= size; ++i) {
        series(i, 300.0 + i);
        file.NormLaenge(1000.0);
    }
    for (int i = 1; i <= size; ++i) {
        file.Produkt(L"Tipo " + FormatInt(i));
        series(1, 600.0);
        file.NormLaenge(1000.0);
    }
    file.Produkt(L"Lunghezze");
    series(1, 600.0);
    for (int i = 1; i <= size; ++i) {
        file.NormLaenge(300.0 + i);
    }
    for (int i = 1; i <= size; ++i) {
        file.Artikel(300.0 + i, L"N" + FormatInt(i), L"22/600/" + FormatInt(i));
    }
    return file.GetCp1252();
}

/// A folder of radiator catalogues.
class CCatalogues
{
public:
    void Add(const std::string& maker, const std::string& bytes) const
    {
        m_folder.WriteBytes(maker + "/hk.tga", bytes);
    }

    CString Folder() const { return m_folder.Path(); }

private:
    CTempFolder m_folder;
    CSettingOverride m_setting{kSettingHKDir, m_folder.Path()};
};

/// A data root, which is the working place as well.
class COffice
{
public:
    void Write(const std::string& name, const std::string& bytes) const
    {
        m_folder.WriteBytes(name, bytes);
    }

    CString Path(const std::string& name) const { return m_folder.Path(name); }

private:
    CTempFolder m_folder;
    CSettingOverride m_root{kSettingServerPath, m_folder.Path()};
    CSettingOverride m_local{kSettingLocalPath, m_folder.Path()};
    CSettingOverride m_places{kSettingWinposFile, L"fenster.txt"};
    CSettingOverride m_records{kSettingDefFolder, m_folder.Path()};
};

/// A point's text that is told from others by its side distance.
std::string PointText(int number)
{
    return "0.5;0;0;0;0.5;-0.03;0;0;0." + Number(number) + ";0;0;0";
}

std::string ShortList(int size)
{
    return Repeated(size, [](int i) {
        return "[Tipo " + Number(i) + "]\r\nV" + PointText(i) + "\r\nR" + PointText(i + 1) + "\r\n";
    });
}

void LoadValves(const std::string& bytes, CWorkCount& count)
{
    const CValves valves(bytes);
    CVentVdiKatalog katalog;
    count.Of([&] { Require(katalog.LadeHersteller(L"Prova")); });
}

void FindValve(int size, CWorkCount& count)
{
    const CValves valves(ValveFile(size, ValveEncoding::cp1252));
    CVentVdiKatalog katalog;
    count.Of([&] { Require(katalog.LadeHersteller(L"Prova")); }, "read");
    const VENT_VDI3805_ARTIKEL* last = katalog.ErsteHauptgruppe->Gruppen->Artikel;
    while (last->Next != nullptr) {
        last = last->Next;
    }
    const CString number = last->TgaNr;
    VDI3805_VENTIL_KV ventil;
    count.Of([&] { Require(katalog.SucheVentil(L"Prova", number, ventil)); }, "by its number");
}

/// Once read, the catalogue is built for every wish anew.
void ReadRadiators(int size, CWorkCount& count, int timesBefore)
{
    const CCatalogues catalogues;
    catalogues.Add("Prova", RadiatorFile(size));
    Require(ReadHKDaten() != nullptr);
    auto* const maker = FindHersteller(L"Prova");
    double output = 1000.0;
    const auto read = [&] { return ReadVdiFile(L"Prova", &maker->pArt, output); };
    for (int i = 0; i < timesBefore; ++i) {
        read();
        output += 1000.0;
    }
    count.Of([&] { Require(read() == 3 * size); });
}

void FindOrderNumbers(int size, CWorkCount& count)
{
    const CCatalogues catalogues;
    catalogues.Add("Prova", RadiatorFile(size));
    HK_DATEN_VDI3805 daten;
    daten.Hoehe = 600.0;
    daten.Tiefe = 100.0;
    daten.Laenge = 300.0 + size;
    const CString typ = L"22/600/" + FormatInt(size);
    count.Of([&] {
        Require(FindOrderNumber(L"Prova", L"Piastre", L"Lunghezze", typ, daten) ==
                L"N" + FormatInt(size));
    });
}

void ListMakers(int size, CWorkCount& count)
{
    const CCatalogues catalogues;
    for (int i = 0; i < size; ++i) {
        catalogues.Add("Prova " + Number(i), "");
    }
    // What is empty is a fault each.
    count.Of(
        [&] { Require(workbench::CheckCatalogues().size() == static_cast<std::size_t>(size)); });
    Require(FindHersteller(WideFromUtf8("Prova " + Number(size - 1))) != nullptr);
}

/// The lists that programs of other languages read.
void ListInC(int size, CWorkCount& count)
{
    const CTempFolder folder;
    folder.WriteBytes("Prova/hk.tga", RadiatorFile(size));
    folder.WriteBytes("Prova/ha.tga", ValveFile(size, ValveEncoding::cp1252));
    radsel_set_text(RADSEL_CATALOGUE_FOLDER, folder.Root().c_str());
    radsel_set_text(RADSEL_VALVE_FOLDER, folder.Root().c_str());
    radsel_list* products = nullptr;
    radsel_valves* valves = nullptr;
    count.Of(
        [&] {
            Require(radsel_list_products("Prova", "Piastre", &products) == RADSEL_OK);
            Require(radsel_list_valves("Prova", &valves) == RADSEL_OK);
        },
        "read");
    radsel_valve valve;
    radsel_valve_init(&valve, sizeof valve);
    count.Of(
        [&] {
            for (std::size_t i = 0; i < static_cast<std::size_t>(size); ++i) {
                Require(radsel_list_text(products, i) != nullptr);
                Require(radsel_valves_get(valves, i, &valve) == RADSEL_OK);
            }
        },
        "line by line");
    radsel_list_free(products);
    radsel_valves_free(valves);
}

void Check(const char* file, const std::string& bytes, CWorkCount& count)
{
    const CTempFolder folder;
    folder.WriteBytes(file, bytes);
    std::ostringstream out;
    std::ostringstream err;
    count.Of([&] {
        const CheckExit exit = RunCheck({folder.Path(file)}, out, err);
        Require(exit == CheckExit::clean || exit == CheckExit::findings);
    });
}

void ReadShortListed(int size, CWorkCount& count)
{
    const COffice office;
    office.Write("HEIZUNG/Vent.txt", ShortList(size));
    CAnschlussZustand zustand;
    CTestAnsicht ansicht;
    zustand.m_Eingang.AnschlussAN = AnschlussPreset(3);
    zustand.m_Eingang.AnschlussRI = AnschlussPreset(5);
    count.Of([&] {
        Require(LeseVentTxt(zustand, ansicht));
        FindeAnschlussTyp(zustand, ansicht);
    });
    Require(zustand.m_Anschlussliste.GetSize() == size);
    ConnValues last = zustand.m_Anschlussliste[size - 1];
    count.Of([&] { Require(workbench::NameOfPoints(last) == last.Name); }, "for a name");
}

void KeepSystems(int size, CWorkCount& count)
{
    const COffice office;
    office.Write("HEIZUNG/CmbData.txt", "[VDI6030_HS]\r\n" + Repeated(size, [](int i) {
                                            return "Sistema " + Number(i) + " (75/65)|";
                                        }) + "\r\n");
    CTestListe liste;
    count.Of([&] { Require(ListeLesen(kListeHeizsysteme, liste, kGewerkHeizung)); }, "read");
    Require(liste.Anzahl() == size);
    CString name;
    count.Of([&] { Require(SystemSuchen(name, 40.0, 30.0) == -1); }, "by temperatures");
    liste.Hinzufuegen(L"Nuovo (55/45)");
    count.Of([&] { Require(ListeSchreiben(kListeHeizsysteme, liste, kGewerkHeizung)); }, "stored");
}

void KeepDialogs(int size, CWorkCount& count)
{
    const COffice office;
    office.Write("fenster.txt", Repeated(size, [](int i) {
                     return "DIALOGO" + Number(i) + "|1|700|2|800|255|\r\n";
                 }));
    office.Write("winsett.txt", Repeated(size, [](int i) { return Number(i) + "|1|\r\n"; }));
    CRect place;
    count.Of(
        [&] {
            SchreibePlatzierung(L"NUOVO", {1, 2, 3, 4}, 200);
            Require(LesePlatzierung(L"NUOVO", place, nullptr));
        },
        "at their places");
    bool allowed = false;
    const auto last = static_cast<unsigned>(std::stoul(Number(size - 1)));
    count.Of([&] { Require(HilfeErlaubt(last, allowed)); }, "with help");
}

void KeepSetting(int size, CWorkCount& count)
{
    const CTempFolder folder;
    const CEnvironmentVariable config("XDG_CONFIG_HOME", folder.Root().c_str());
    // The host lets go of the settings of the size before.
    Require(GetHostSetting(kSettingHKLayer, L"").empty());
    folder.WriteBytes("radsel/settings.txt", "radsel-settings 1\n" + Repeated(size, [](int i) {
                                                 return "Chiave" + Number(i) + "=valore\n";
                                             }));
    count.Of([] {
        Require(StoreHostSetting(kSettingHKLayer, L"RISCALDAMENTO"));
        Require(GetHostSetting(kSettingHKLayer, L"") == L"RISCALDAMENTO");
    });
}

void KeepRecord(int size, CWorkCount& count)
{
    const COffice office;
    VDI6030START start;
    start.Produkt = CString(static_cast<std::size_t>(size), L'x');
    count.Of([&] {
        Require(WriteDefFile_VDI6030START(&start, false));
        const VDI6030START* const kept = ReadDefFile_VDI6030START(false);
        Require(kept != nullptr && kept->Produkt == start.Produkt);
    });
}

void StoreAndLoad(int size, CWorkCount& count)
{
    OCArray<double> numbers;
    for (int i = 0; i < size; ++i) {
        numbers.Add(i);
    }
    HK_DATEN_VDI3805_UEBERGABE record;
    record.Produkt = CString(static_cast<std::size_t>(size), L'x');
    HK_DATEN_VDI3805_UEBERGABE again;
    OCArray<double> numbersAgain;
    count.Of([&] {
        Require(Load(Stored(record), again) == 0);
        Require(Load(Stored(numbers), numbersAgain) == 0);
    });
    Require(again.Produkt == record.Produkt && numbersAgain == numbers);
}

/// Lines of every length, and one that grows.
std::string Lines(int size, const std::string& lineEnd)
{
    return Repeated(size, [&](int i) { return "Linea " + Number(i) + lineEnd; }) +
           std::string(static_cast<std::size_t>(20 * size), 'x') + lineEnd;
}

void ReadLines(const std::string& bytes, int lines, CWorkCount& count)
{
    const CTempFolder folder;
    folder.WriteBytes("lista.txt", bytes);
    CStringArray read;
    count.Of([&] { ReadTextFile(folder.Path("lista.txt"), read, CFile::modeRead, -1); });
    Require(read.GetSize() == lines);
}

std::string Utf16(const std::string& text)
{
    std::string bytes = "\xFF\xFE";
    for (const char c : text) {
        bytes += {c, '\0'};
    }
    return bytes;
}

void ReadFields(int size, CWorkCount& count)
{
    const std::string line = Repeated(size, [](int i) { return Number(i) + ";"; });
    CStringArray fields;
    count.Of([&] { Require(SplitString(fields, WideFromUtf8(line), L';') == size); });
}

void Convert(int size, CWorkCount& count)
{
    const CString text = WideFromUtf8(Repeated(size, [](int) { return "Zähler € 😀 "; }));
    count.Of([&] {
        Require(WideFromUtf8(Utf8FromWide(text)) == text);
        CString wide;
        AppendUtf16(wide, Utf16FromWide(text));
        Require(wide == text);
        CString narrow;
        AppendCp1252(narrow, BytesOf(Cp1252FromWide(text)));
        Require(narrow.size() == text.size());
    });
}

void EvaluatePoints(int size, CWorkCount& count)
{
    std::vector<ALIST> attributes(static_cast<std::size_t>(size));
    for (std::size_t i = 0; i < attributes.size(); ++i) {
        attributes[i] = {i % 2 == 0 ? L"H_VL_PUNKT" : L"H_RL_PUNKT", AnschlussPreset(1),
                         i + 1 < attributes.size() ? &attributes[i + 1] : nullptr};
    }
    LM_APUNKT points[kMaxAnschlussPunkte];
    LM_TRAFO trafo;
    count.Of(
        [&] { Require(lmGet_K_APUNKT_BLOCK_Wc(attributes.data(), points, &trafo, 0, {}) > 0); });
}

/// Blocks, layers and lines in one block, and what a drawing shows, as many of each.
workbench::CDxfDrawing Drawing(int size)
{
    using namespace workbench;
    CDxfDrawing drawing;
    CDxfPolyline outline;
    CDxfBlock large{L"GRANDE", {}};
    for (int i = 0; i < size; ++i) {
        const CString number = FormatInt(i);
        const double x = i;
        drawing.layers.push_back({L"LAYER" + number, 1 + i % 9});
        outline.punkte.push_back({{x, 1.0}, 0.5});
        const CDxfEntity line{L"LAYER" + number, kColorByLayer, CDxfLine{{x, 0.0}, {x, 1.0}}};
        large.entities.push_back(line);
        large.attribute.push_back({L"A" + number, L"1"});
        drawing.blocks.push_back({L"BLOCCO" + number, {}, {line}});
        drawing.entities.push_back(line);
        drawing.texts.push_back({L"LAYER" + number, 7, {x, 2.0}, 0.2, 0.0, DxfAlign::left, L"a"});
        drawing.inserts.push_back({L"LAYER" + number, 7, L"BLOCCO" + number, {x, 3.0}});
    }
    drawing.blocks.push_back(std::move(large));
    drawing.entities.push_back({L"LAYER0", 7, std::move(outline)});
    return drawing;
}

workbench::CDxfDrawing EmptyBlocks(int size)
{
    workbench::CDxfDrawing drawing;
    for (int i = 0; i < size; ++i) {
        drawing.blocks.push_back({WideFromUtf8("BLOCCO" + Number(i)), {}});
    }
    return drawing;
}

void ReadDxf(const workbench::CDxfDrawing& drawing, CWorkCount& count,
             workbench::DxfContent content)
{
    std::string text;
    count.Of([&] { text = workbench::WriteDxf(drawing); }, "written");
    count.Of(
        [&] {
            const auto read = workbench::ParseDxf(BytesOf(text), content);
            const auto& found = std::get<workbench::CDxfDrawing>(read);
            Require(content == workbench::DxfContent::wholeDrawing
                        ? found == drawing
                        : found.blocks == drawing.blocks);
        },
        "read");
}

} // namespace

std::vector<CGrowthCase> ReaderCases()
{
    using workbench::DxfContent;
    return {
        {"ValveFile", "records of each kind", 15, FindValve},
        {"ValveFileInUtf16", "records of each kind", 10,
         [](int n, CWorkCount& c) { LoadValves(ValveFile(n, ValveEncoding::utf16), c); }},
        {"ValvesOfOneKind", "articles", 300,
         [](int n, CWorkCount& c) { LoadValves(ArticlesFile(n), c); }},
        {"RadiatorCatalogue", "records of each kind", 15,
         [](int n, CWorkCount& c) { ReadRadiators(n, c, 0); }},
        {"RadiatorCatalogueForAnotherWish", "records of each kind", 15,
         [](int n, CWorkCount& c) { ReadRadiators(n, c, 1); }},
        {"OrderNumber", "records of each kind", 15, FindOrderNumbers},
        {"FolderOfCatalogues", "makers", 15, ListMakers},
        {"CheckOfValves", "records of each kind", 15,
         [](int n, CWorkCount& c) { Check("ha.tga", ValveFile(n, ValveEncoding::cp1252), c); }},
        {"CheckOfRadiators", "records of each kind", 10,
         [](int n, CWorkCount& c) { Check("hk.tga", RadiatorFile(n), c); }},
        {"CheckOfShortList", "types", 20,
         [](int n, CWorkCount& c) { Check("Vent.txt", ShortList(n), c); }},
        {"ShortList", "types", 20, ReadShortListed},
        {"HeatingSystems", "systems", 50, KeepSystems},
        {"KeptDialogs", "dialogs", 50, KeepDialogs},
        {"Settings", "settings", 50, KeepSetting},
        {"DefFile", "characters", 3000, KeepRecord},
        {"Archive", "numbers and characters", 1500, StoreAndLoad},
        {"TextFileIn8Bit", "lines", 100,
         [](int n, CWorkCount& c) { ReadLines(Lines(n, "\r\n"), n + 1, c); }},
        {"TextFileInUtf16", "lines", 100,
         [](int n, CWorkCount& c) { ReadLines(Utf16(Lines(n, "\r\n")), n + 1, c); }},
        {"FieldsOfALine", "fields", 300, ReadFields},
        {"Encodings", "words", 100, Convert},
        {"ConnectionPoints", "attributes", 200, EvaluatePoints},
        {"DxfBlocks", "of each kind", 8,
         [](int n, CWorkCount& c) { ReadDxf(Drawing(n), c, DxfContent::layersAndBlocks); }},
        {"DxfPlan", "of each kind", 8,
         [](int n, CWorkCount& c) { ReadDxf(Drawing(n), c, DxfContent::wholeDrawing); }},
        {"DxfOfManyBlocks", "blocks", 40,
         [](int n, CWorkCount& c) { ReadDxf(EmptyBlocks(n), c, DxfContent::wholeDrawing); }},
        {"ListsForOtherLanguages", "records of each kind", 8, ListInC},
    };
}
