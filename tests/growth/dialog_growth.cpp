// The dialogs of the module: opening, and one step of the user in each of their lists and fields.

#include "tests/growth/growth.h"

#include "connection/dialog/wand_ab_dlg.h"
#include "connection/presets.h"
#include "frame/entry_points.h"
#include "frame/ventil_kv.h"
#include "host/drawing_records.h"
#include "host/host_catalog.h"
#include "host/host_prompts.h"
#include "platform/encoding.h"
#include "platform/format.h"
#include "tests/dialog_support/dialog_driver.h"
#include "tests/dialog_support/dialog_run.h"
#include "tests/dialog_support/full_drawer.h"
#include "tests/host_defaults/host_dialog_driver.h"
#include "tests/support/memory_catalogue.h"
#include "tests/support/setting_override.h"
#include "tests/support/temp_folder.h"
#include "tools/make_catalogues_writer.h"
#include "tools/make_valves_writer.h"
#include "workbench/drawing/scene_drawer.h"

#include <QApplication>
#include <QGraphicsScene>
#include <QHeaderView>
#include <QTableView>
#include <QTest>

using namespace reference_host;

namespace {

// Controls of the selection dialog, of that for valves and of that for connections.
constexpr int kGrid = 18001;
constexpr int kShortest = 18002;
constexpr int kAll = 18019;
constexpr int kMaker = 18039;
constexpr int kTypes = 362;
constexpr int kSide = 18041;
constexpr int kPreset = 18082;

constexpr wchar_t kDef[] = L"Prova";

/// A data root and working place without anything in it.
class COffice
{
public:
    COffice() { PrepareDialogs(); }

    const CTempFolder folder;

private:
    CSettingOverride m_root{kSettingServerPath, folder.Path()};
    CSettingOverride m_local{kSettingLocalPath, folder.Path()};
    CSettingOverride m_places{kSettingWinposFile, L"fenster.txt"};
    CSettingOverride m_records{kSettingDefFolder, folder.Path()};
    CSettingOverride m_valves{kSettingVEDir, folder.Path("valves")};
    CSettingOverride m_superUser{kSettingSuperUser, L"1"};
    CSettingOverride m_block{kSettingHKBlock, L""};
    CSettingOverride m_blocks{kSettingHKBlockFolder, L"blocchi"};
    CSettingOverride m_valveBlocks{kSettingValveBlockFolder, L"valvole"};
};

using Open = std::function<void()>;
using Step = std::function<void(const CDialogUser&)>;

void Finish()
{
    QApplication::sendPostedEvents();
}

/// From the call to the painted dialog, what the user does there, and its end.
void CountDialog(
    CWorkCount& count, const Open& open, const Step& step = [](const CDialogUser&) {})
{
    count.Of([&] {
        RunDialog(open, [&](CDialog& dialog) {
            Finish();
            step(CDialogUser(dialog));
        });
    });
}

/// The selection dialog over rows in memory, each of another height, with as many layers, blocks
/// and systems as rows.
class CSelection : public COffice
{
public:
    explicit CSelection(int size) : m_drawer(size)
    {
        for (int i = 0; i < size; ++i) {
            const double height = 300.0 + 10.0 * i;
            m_catalogue.Produkt().Hoehen.Add(height);
            m_catalogue.Add(L'M', height, 102.0, 400.0 + i, 1000.0 + (7919 * i) % 700, 0.0, 5.0,
                            L"Tipo");
        }
        folder.WriteBytes("HEIZUNG/CmbData.txt", "[VDI6030_HS]\r\n" + Repeated(size, [](int i) {
                                                     return "Sistema " + std::to_string(1000 + i) +
                                                            " (75/65)|";
                                                 }) + "\r\n");
        m_catalogue.Produkt().Tiefen.Add(102.0);
        m_wish = m_catalogue.Uebergabe(1000.0);
    }

    void Open()
    {
        CString layer = L"LAYER-0";
        int color = 1;
        HeizkoerperauswahlVDI3805(&m_drawer, &m_wish, layer, color, true, false);
    }

private:
    CMemoryCatalogue m_catalogue;
    CFullDrawer m_drawer;
    HK_DATEN_VDI3805_UEBERGABE m_wish;
};

QTableView& Grid(const CDialogUser& user)
{
    return *user.Widget(kGrid).findChild<QTableView*>();
}

void SortGrid(const CDialogUser& user)
{
    const QHeaderView& heading = *Grid(user).horizontalHeader();
    const int x = heading.sectionViewportPosition(5) + heading.sectionSize(5) / 2;
    QTest::mouseClick(heading.viewport(), Qt::LeftButton, {}, {x, 10});
}

/// Shows all rows, filters and sorts them.
void WorkInSelection(const CDialogUser& user)
{
    user.Click(kAll);
    user.Type(kShortest, L"1");
    Finish();
    SortGrid(user);
    Finish();
}

void CountSelection(int size, CWorkCount& count)
{
    CSelection selection(size);
    CountDialog(
        count, [&] { selection.Open(); }, WorkInSelection);
}

/// A catalogue of many kinds with a product each.
std::string Kinds(int size)
{
    CCatalogueWriter file(L"\r\n");
    file.Kopf(L"Prova");
    for (int i = 0; i < size; ++i) {
        file.Art(L"Genere " + FormatInt(1000 + i));
        file.Produkt(L"Tipo 22");
        file.Serie({1, L"22/600", L'M', 600.0, 100.0, 1000.0, 1.3, 5.0});
        file.NormLaenge(1000.0);
    }
    return file.GetCp1252();
}

void CountTree(int size, CWorkCount& count)
{
    const COffice office;
    const CTempFolder catalogues;
    const CSettingOverride setting(kSettingHKDir, catalogues.Path());
    for (int i = 0; i < size; ++i) {
        catalogues.WriteBytes("Altro " + std::to_string(1000 + i) + "/hk.tga", "");
    }
    catalogues.WriteBytes("Prova/hk.tga", Kinds(size));
    HK_DATEN_VDI3805_UEBERGABE wish;
    wish.Hersteller = L"Prova";
    wish.Art = L"Genere " + FormatInt(999 + size);
    wish.Produkt = L"Tipo 22";
    wish.Leistung = 1000.0;
    CountDialog(count, [&] { HeizkoerperauswahlVDI3805Tree(&wish); });
}

/// The dialog of valves over the articles of a maker, and with as many other makers.
class CValves : public COffice
{
public:
    explicit CValves(int size)
    {
        CValveWriter file;
        file.Kopf(kDef);
        file.Hauptgruppe(L"Valvole");
        file.Gruppe(L"Termostatiche");
        for (int i = 0; i < size; ++i) {
            file.Datensatz({1, 15, 0.86, 600.0, true});
            file.Zeile({2.0, L"1", 1.0, 0.0, 0.14, 0.16});
            file.Artikel({0, 1, 1, 15, 1}, L"RA-" + FormatInt(1000 + i), L"Valvola a squadra");
        }
        folder.WriteBytes("valves/Prova/ha.tga", file.GetBytes(ValveEncoding::cp1252));
        for (int i = 0; i < size; ++i) {
            folder.WriteBytes("valves/Altro " + std::to_string(1000 + i) + "/ha.tga", "");
        }
        const CString last = FormatInt(1000000 + size).substr(1);
        m_number = L"000001011500000000010000" + last + last.substr(2) + L"00";
    }

    void Open()
    {
        VDI3805_VENTIL_KV ventil;
        ShowVentVDI3805Dlg(m_number, kDef, ventil);
    }

private:
    CString m_number;
};

/// The dialog of connections over as many types, drawn radiators and blocks of valves.
class CConnection : public COffice
{
public:
    explicit CConnection(int size)
        : m_radiators(static_cast<std::size_t>(size)),
          m_attributes(static_cast<std::size_t>(3 * size)), m_drawer(size)
    {
        folder.WriteBytes("HEIZUNG/Vent.txt", Repeated(size, [](int i) {
                              return "[Tipo " + std::to_string(1000 + i) + "]\r\nV" + Point(0) +
                                     "\r\nR" + Point(i % 15) + "\r\n";
                          }));
        for (std::size_t i = 0; i < m_radiators.size(); ++i) {
            ALIST* const own = &m_attributes[3 * i];
            own[0] = {L"H_LAENGE", L"1", &own[1]};
            own[1] = {L"H_VL_PUNKT", L"", &own[2]};
            own[2] = {L"H_RL_PUNKT", L"", nullptr};
            m_radiators[i].Attribute = own;
            m_radiators[i].pNext = i + 1 < m_radiators.size() ? &m_radiators[i + 1] : nullptr;
        }
    }

    void Open()
    {
        ConnValues connection;
        connection.AnschlussAN = AnschlussPreset(0);
        connection.AnschlussRI = AnschlussPreset(1);
        VDI3805_VENTIL_KV flow;
        VDI3805_VENTIL_KV back;
        bool groups = true;
        bool withValves = true;
        bool withType = true;
        bool fanCoil = false;
        ShowVentDlg(connection, flow, back, groups, withValves, withType, fanCoil,
                    m_radiators.data(), &m_drawer);
    }

private:
    static std::string Point(int preset) { return Utf8FromWide(AnschlussPreset(preset)); }

    std::vector<TGA_LIST> m_radiators;
    std::vector<ALIST> m_attributes;
    CFullDrawer m_drawer;
};

void CountDistances(int size, CWorkCount& count)
{
    const COffice office;
    office.folder.WriteBytes("fenster.txt", Repeated(size, [](int i) {
                                 return "ALTRO" + std::to_string(1000 + i) + "|1|9|2|8|255|\r\n";
                             }));
    office.folder.WriteBytes("winsett.txt", Repeated(size, [](int i) {
                                 return std::to_string(100000 + i) + "|1|\r\n";
                             }));
    CountDialog(count, [] { CWandAbDlg().DoModal(); });
}

/// The host's dialog over the layers of the workbench's drawing.
void CountLayers(int size, CWorkCount& count)
{
    PrepareDialogs();
    std::vector<workbench::CDxfLayer> layers;
    for (int i = 0; i < size; ++i) {
        layers.push_back({L"LAYER" + FormatInt(1000 + (7919 * i) % size), 3});
    }
    QGraphicsScene scene;
    workbench::CSceneDrawer drawer(scene, layers);
    CString layer = layers.back().strName;
    int color = 1;
    OnNextDialog([](QWidget& dialog) {
        Finish();
        TypeText(dialog, "9");
        Finish();
        PressKey(dialog, Qt::Key_Return);
    });
    count.Of([&] { Require(ShowBigLayerDlg(&drawer, layer, color) && color == 3); });
}

} // namespace

std::vector<CGrowthCase> DialogCases()
{
    return {
        {"SelectionDialog", "rows, layers, blocks and systems", 80, CountSelection},
        {"TreeOfCatalogues", "kinds and makers", 8, CountTree},
        {"ValveDialog", "valves and makers", 24,
         [](int n, CWorkCount& c) {
             CValves valves(n);
             CountDialog(
                 c, [&] { valves.Open(); },
                 [](const CDialogUser& user) {
                     user.Choose(kMaker, kDef);
                     Finish();
                 });
         }},
        {"ConnectionDialog", "types, radiators and blocks", 30,
         [](int n, CWorkCount& c) {
             CConnection connection(n);
             CountDialog(
                 c, [&] { connection.Open(); },
                 [n](const CDialogUser& user) {
                     user.Choose(kTypes, n - 1);
                     user.Click(kPreset);
                     user.Type(kSide, L"1");
                     Finish();
                 });
         }},
        {"DialogOfDistances", "kept dialogs", 100, CountDistances},
        {"DialogOfLayers", "layers", 25, CountLayers},
    };
}
