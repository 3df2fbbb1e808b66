#include "tools/radiator_gallery.h"

#include "frame/entry_points.h"
#include "uikit/application.h"
#include "uikit/dialog.h"
#include "uikit/native/access.h"
#include "workbench/drawing/scene_drawer.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QGraphicsScene>

#include <cstdlib>
#include <filesystem>

using namespace workbench;

namespace {

constexpr int kLayerCheck = 3144;
constexpr int kShowAllCheck = 18019;
constexpr int kBlockList = 18080;

HK_DATEN_VDI3805_UEBERGABE SampleHandover()
{
    HK_DATEN_VDI3805_UEBERGABE uebergabe;
    uebergabe.Hersteller = L"Valmorena";
    uebergabe.Art = L"Radiatori a piastra compatti";
    uebergabe.Produkt = L"Tipo 22";
    uebergabe.Leistung = 1500.0;
    uebergabe.LaengeMin = 400.0;
    uebergabe.LaengeMax = 2000.0;
    uebergabe.HoeheMin = 400.0;
    uebergabe.HoeheMax = 600.0;
    uebergabe.TiefeMax = 500.0;
    uebergabe.Vorlauf = 70.0;
    uebergabe.Ruecklauf = 55.0;
    uebergabe.Raumtemperatur = 20.0;
    return uebergabe;
}

void Click(const CDialog& dialog, int id)
{
    CNativeAccess::As<QAbstractButton>(dialog.GetDlgItem(id))->click();
}

/// Opens the dialog with a layer and a block chosen, and what `prepare` does besides.
void OpenSelection(HK_DATEN_VDI3805_UEBERGABE uebergabe,
                   const std::function<void(CDialog&)>& prepare = {})
{
    QGraphicsScene scene;
    CSceneDrawer drawer(
        scene, {{L"0", 7}, {L"RISCALDAMENTO_PT", 1}, {L"RISCALDAMENTO_P1", 5}, {L"MURI", 8}});
    CString layer = L"RISCALDAMENTO_PT";
    int farbe = 1;
    DialogObserver next;
    next = SetDialogObserver([&](CDialog& dialog) {
        Click(dialog, kLayerCheck);
        emit CNativeAccess::As<QComboBox>(dialog.GetDlgItem(kBlockList))->activated(0);
        if (prepare) {
            prepare(dialog);
        }
        next(dialog);
    });
    HeizkoerperauswahlVDI3805(&drawer, &uebergabe, layer, farbe, true, false);
    SetDialogObserver(next);
}

} // namespace

std::vector<GalleryEntry> RadiatorGallery()
{
    // The block chosen goes to the host's settings: to those of nobody.
    setenv("XDG_CONFIG_HOME", (std::filesystem::temp_directory_path() / "radsel-gallery").c_str(),
           1);
    return {
        {"scelta_corpi", [] { OpenSelection(SampleHandover()); }},
        {"scelta_corpi_locale",
         [] {
             HK_DATEN_VDI3805_UEBERGABE uebergabe = SampleHandover();
             uebergabe.Raumname = L"Piano terra.Sala da pranzo";
             uebergabe.RaumBedarf = 2460.0;
             uebergabe.RaumGedeckt = 400.0;
             OpenSelection(uebergabe);
         }},
        {"scelta_corpi_tutti",
         [] {
             OpenSelection(SampleHandover(), [](CDialog& dialog) { Click(dialog, kShowAllCheck); });
         }},
        {"scelta_corpi_vuota",
         [] {
             HK_DATEN_VDI3805_UEBERGABE uebergabe = SampleHandover();
             uebergabe.LaengeMin = uebergabe.LaengeMax = 1.0;
             OpenSelection(uebergabe);
         }},
    };
}
