#include "host/host_prefs.h"
#include "platform/exception.h"
#include "tests/fuzz/entries.h"
#include "tests/src/common/lines.h"
#include "tests/support/message_log.h"
#include "tests/support/setting_override.h"
#include "tests/support/temp_folder.h"
#include "tests/support/ventil_baum.h"
#include "valve/ventil_bewertung.h"
#include "valve/ventil_texte.h"

#include <string>

using namespace reference_host;

namespace {

constexpr wchar_t kMaker[] = L"Prova";

void Bewerte(const VENT_VDI3805_GRUPPE& gruppe, const VENT_VDI3805_ARTIKEL& artikel)
{
    SucheTexte(gruppe, artikel);
    const VENT_VDI3805_DATEN* const daten = SucheDatensatz(gruppe, artikel);
    if (daten == nullptr) {
        return;
    }
    VDI3805_VENTIL_KV ventil;
    try {
        BewerteVentil(artikel, *daten, ventil);
    } catch (const CInvalidArgException&) {
        // A line without a required field; what was read so far must still be a sound record.
    }
    Require(ventil.AnzahlKv >= 0 && ventil.AnzahlKv <= VDI3805_VENTIL_KV::kMaxKv, "row count");
    Require(KvZeilen(ventil, ventil.VentilTyp == 1).GetSize() == ventil.AnzahlKv, "row texts");
    VentilArtText(ventil.VentilArt);
}

void CheckTree(const CVentVdiKatalog& katalog, CString& ventilNr)
{
    int count = 0;
    ForEachNode(katalog.ErsteHauptgruppe, [&](const VENT_VDI3805_HAUPTGRUPPE& haupt) {
        ++count;
        ForEachNode(haupt.Gruppen, [](const VENT_VDI3805_GRUPPE& gruppe) {
            constexpr auto ignore = [](const auto&) {};
            ForEachNode(gruppe.Daten, ignore);
            ForEachNode(gruppe.Zusaetze, ignore);
            ForEachNode(gruppe.Antriebe, ignore);
            ForEachNode(gruppe.Bauformen, ignore);
            ForEachNode(gruppe.Werkstoffe, ignore);
        });
    });
    Require(count == katalog.AnzahlHauptgruppen, "count of main groups");
    ForEachArtikel(katalog, [&](const auto& gruppe, const auto& artikel) {
        Bewerte(gruppe, artikel);
        ventilNr = artikel.TgaNr;
    });
}

} // namespace

void RunVentilKatalog(std::span<const std::uint8_t> bytes)
{
    static const CTempFolder folder;
    const CSettingOverride setting(kSettingVEDir, folder.Path());
    const CMessageLog messages;
    folder.WriteBytes("Prova/ha.tga", std::string(bytes.begin(), bytes.end()));

    // The cache holds the lines of the run before under the same path.
    const CString path = VentilDateiPfad(folder.Path(), kMaker);
    lmGetCacheObject()->AddFileToCache(path, LinesIn(path), false);

    CVentVdiKatalog katalog;
    bool loaded = true;
    try {
        loaded = katalog.LadeHersteller(kMaker);
    } catch (const CInvalidArgException&) {
        // The nodes before the bad line stay in the tree.
    }
    Require(loaded || katalog.ErsteHauptgruppe == nullptr, "a refused file leaves nothing");
    CString ventilNr;
    CheckTree(katalog, ventilNr);

    VDI3805_VENTIL_KV ventil;
    try {
        const bool found = katalog.SucheVentil(kMaker, ventilNr, ventil);
        Require(found == (ventil.VentilNr == ventilNr && !ventilNr.empty()),
                "key of a found valve");
    } catch (const CInvalidArgException&) {
        // As above.
    }
    for (const CString& text : messages.Texts()) {
        Require(text == L"MAXKV", "no other message");
    }
}
