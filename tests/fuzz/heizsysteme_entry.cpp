#include "common/heizung_ordner.h"
#include "selection/heizsysteme.h"
#include "tests/fuzz/entries.h"
#include "tests/src/common/lines.h"
#include "tests/support/setting_override.h"
#include "tests/support/temp_folder.h"
#include "tests/support/test_liste.h"

#include <string>

using namespace reference_host;

namespace {

CTestListe Lies(const CStringArray& zeilen)
{
    CTestListe liste;
    Require(ListeAusZeilen(zeilen, kListeHeizsysteme, liste), "there is a list or the default");
    return liste;
}

void CheckEntry(const CString& text)
{
    CString name;
    double vorlauf = 0.0;
    double ruecklauf = 0.0;
    SystemZerlegen(text, name, vorlauf, ruecklauf);
    Require(text.starts_with(name), "a name is the beginning of its entry");
    SystemSuchen(name, vorlauf, ruecklauf);
}

} // namespace

void RunHeizsysteme(std::span<const std::uint8_t> bytes)
{
    static const CTempFolder folder;
    const CSettingOverride root(kSettingServerPath, folder.Path());
    folder.WriteBytes("HEIZUNG/CmbData.txt", std::string(bytes.begin(), bytes.end()));
    CTestListe liste;
    Require(ListeLesen(kListeHeizsysteme, liste, kGewerkHeizung), "the file opens");
    for (const CString& text : liste.texte) {
        CheckEntry(text);
    }

    CStringArray zeilen = LinesIn(HeizungPfad(L"CmbData.txt"));
    const int vorher = zeilen.GetSize();
    ListeInZeilen(zeilen, kListeHeizsysteme, liste);
    Require(zeilen.GetSize() == vorher || zeilen.GetSize() == vorher + 2, "other lines stay");
    // A header without a line behind it stays when a second one is added, and then has that one for
    // its entries; from then on the list is stable. A star within the selected entry is lost.
    const CTestListe einmal = Lies(zeilen);
    ListeInZeilen(zeilen, kListeHeizsysteme, einmal);
    Require(Lies(zeilen).Anzahl() == einmal.Anzahl(), "every entry written reads back");
}
