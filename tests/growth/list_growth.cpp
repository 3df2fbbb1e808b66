// Lists in memory, without a window.

#include "tests/growth/growth.h"

#include "common/auswahl_liste.h"
#include "common/katalog_pruefung.h"
#include "connection/vorschau.h"
#include "host/drawing_records.h"
#include "platform/array.h"
#include "platform/format.h"
#include "radiator/hk_vdi3805.h"
#include "radiator/size_queries.h"
#include "tests/support/memory_catalogue.h"
#include "tests/support/temp_folder.h"
#include "tests/support/test_liste.h"
#include "uikit/application.h"
#include "workbench/drawing/block_library.h"
#include "workbench/drawing/block_path.h"
#include "workbench/drawing/scene_drawer.h"
#include "workbench/dxf/dxf_writer.h"
#include "workbench/window/plan_blocks.h"

#include <QGraphicsScene>

#include <cmath>

namespace {

void GrowArray(int size, CWorkCount& count)
{
    const CString text = L"Un testo che non sta nell'oggetto";
    CStringArray array;
    count.Of([&] {
        for (int i = 0; i < size; ++i) {
            array.Add(text);
        }
        array.Append(CStringArray(array));
        array.RemoveAt(0, size);
        array.SetSize(2 * size);
    });
    Require(array.GetSize() == 2 * size);
}

/// Rows of a product of different measures, as far as they can.
void Fill(CMemoryCatalogue& catalogue, int size)
{
    for (int i = 0; i < size; ++i) {
        catalogue.Add(L'M', 300.0 + i % 10, 50.0 + i % 10, 400.0 + (7919 * i) % 2000,
                      1000.0 + i % 700, 0.0, 1.0 + i, L"Tipo");
    }
}

/// All questions to the rows of a product.
void Ask(int size, CWorkCount& count, const std::function<void(CHKVdi3805&)>& question)
{
    CMemoryCatalogue rows;
    Fill(rows, size);
    auto wish = rows.Uebergabe(1000.0);
    CHKVdi3805 katalog(&wish);
    katalog.SetAlleAnzeigen(1);
    katalog.Filtern();
    count.Of([&] { question(katalog); });
}

void FilterNone(CHKVdi3805& katalog)
{
    katalog.SetAlleAnzeigen(0);
    katalog.SetLeistungFilter(1);
    katalog.Filtern();
}

void ChooseBest(CHKVdi3805& katalog)
{
    Require(katalog.BesteAuswahl() >= 0);
    katalog.SelectRow(L"Tipo", 0.0, 0.0, 0.0);
}

void ReadSizes(int size, CWorkCount& count)
{
    CMemoryCatalogue rows;
    Fill(rows, size);
    auto wish = rows.Uebergabe(1000.0);
    constexpr int kCapacity = 50;
    short sizes[3][kCapacity + 1];
    double contents[kCapacity];
    OCArray<double> heights;
    OCArray<double> depths;
    count.Of([&] {
        LeseMasse(wish, heights, depths);
        LeseMasse(wish, sizes[0], sizes[1], sizes[2], contents, kCapacity);
        Require(Inhalt(wish, 0.3, 0.05, 0.4) > 0.0);
    });
    count.Of([&] { Require(!PruefeProdukt(rows.Produkt()).empty()); }, "checked");
}

void SortNumbers(int size, CWorkCount& count)
{
    CTestListe liste;
    for (int i = 0; i < size; ++i) {
        liste.Hinzufuegen(FormatInt(1000 + (7919 * i) % 1000));
    }
    count.Of([&] {
        SortComboNumeric(liste, true);
        Require(SucheGleichen(liste, L"0") == -1 && SucheAnfang(liste, L"0") == -1);
        ListeLeeren(liste);
    });
}

using namespace workbench;

CDxfEntity Line(int i)
{
    return {L"LAYER", kColorByLayer, CDxfLine{{double(i), 0.0}, {double(i), 10.0}}};
}

CDxfDrawing Blocks(int size, int first)
{
    CDxfDrawing drawing;
    for (int i = first; i < first + size; ++i) {
        drawing.layers.push_back({L"LAYER" + FormatInt(1000 + i), 3});
        drawing.blocks.push_back({L"BLOCCO" + FormatInt(1000 + i), {}, {Line(i)}});
    }
    return drawing;
}

void ListBlocks(const CBlockLibrary& library, int size)
{
    Require(library.GetNames().size() == static_cast<std::size_t>(size));
    Require(library.Find(L"blocco1000").pBlock != nullptr);
    Require(library.Find(L"nessuno").pBlock == nullptr);
}

void ListBlocksOfFile(int size, CWorkCount& count)
{
    const CTempFolder folder;
    const CDxfDrawing drawing = Blocks(size, 0);
    folder.WriteBytes("blocchi.dxf", WriteDxf(drawing));
    count.Of([&] {
        const CBlockLibrary library(folder.Path());
        ListBlocks(library, size);
        Require(CPlanBlocks(drawing, &library).FindValve(L"BLOCCO1000") != nullptr);
    });
}

void ListBlocksOfFiles(int size, CWorkCount& count)
{
    const CTempFolder folder;
    for (int i = 0; i < size; ++i) {
        folder.WriteBytes("b" + std::to_string(1000 + i) + ".dxf", WriteDxf(Blocks(1, i)));
    }
    count.Of([&] { ListBlocks(CBlockLibrary(folder.Path()), size); });
}

/// What of a block's picture is not the toolkit's painting.
void PreviewBlock(int size, CWorkCount& count)
{
    const CDxfDrawing drawing = Blocks(size, 0);
    CDxfBlock block{L"GRANDE", {}};
    CDxfPolyline outline;
    for (int i = 0; i < size; ++i) {
        block.entities.push_back(Line(i));
        outline.punkte.push_back({{double(i), i % 2 * 5.0}, 0.5});
    }
    block.entities.push_back({L"LAYER", kColorByLayer, outline});
    count.Of([&] {
        Require(BoundsOf(MakeBlockPaths(CLayerColors(drawing.layers), block)).height() > 0.0);
    });
}

/// The marks of radiators that stand in each other's way move aside.
void DrawPoints(int size, CWorkCount& count)
{
    EnsureApplication();
    QGraphicsScene scene;
    CSceneDrawer drawer(scene, {});
    count.Of([&] {
        drawer.BeginPreview();
        for (int i = 0; i < size; ++i) {
            const double place[3] = {1.0 * i, 0.0, 0.0};
            const double direction[3] = {0.0, 1.0, 0.0};
            drawer.DrawConnectionPoint(place, direction, 0.1, 3, i % 2 == 0);
        }
        drawer.EndPreview();
        drawer.ClearPreview();
    });
}

} // namespace

std::vector<CGrowthCase> ListCases()
{
    return {
        {"Array", "texts", 200, GrowArray},
        {"FilterPass", "rows", 200,
         [](int n, CWorkCount& c) { Ask(n, c, [](CHKVdi3805& k) { k.Filtern(); }); }},
        {"FilterPassThatTakesNone", "rows", 200,
         [](int n, CWorkCount& c) { Ask(n, c, FilterNone); }},
        {"BestRow", "rows", 200, [](int n, CWorkCount& c) { Ask(n, c, ChooseBest); }},
        {"SizesOfAProduct", "rows", 50, ReadSizes},
        {"SortedSizes", "sizes", 50, SortNumbers},
        {"BlocksOfAFile", "blocks", 25, ListBlocksOfFile},
        {"BlocksOfAFolder", "files", 10, ListBlocksOfFiles},
        {"BlockPreview", "lines and arcs", 25, PreviewBlock},
        {"ConnectionPreview", "points", 20, DrawPoints},
    };
}
