// A designer's hour at the dialog, replayed in the window and on the criteria without one: after
// each step the hand-over, the fields and the rows are the same.

#include "common/text_file.h"
#include "platform/format.h"
#include "platform/number_scan.h"
#include "tests/src/selection/dialog/auswahl_fixture.h"
#include "tests/src/selection/test_dialog.h"

#include <algorithm>
#include <span>

namespace {

/// What is typed into an edit, chosen in a list, clicked, or picked in grid and tree. Any number
/// stands for a row.
const CString kAufnahme =
    L"zeile=3|zeile=0|18004=400|18008=500|18003=1200|18002=600|zeile=2|18017|18005=1150|zeile=1|"
    L"18005=0|18017|18017|18005=900.5 W|18047|18049|18016=35|18016=4|18016=62.5|zeile=0|kopf=5|"
    L"zeile=0|zeile=1|kopf=5|kopf=0|18019|zeile=20|zeile=4|kopf=7|18019|18107=24|18003=2000|"
    L"18107=18,5|18047|18047|7006=Standard (75/65)|7007=Pompa|7008=55|7009=45.5|268|"
    L"7006=Standard (75/65)|zeile=3|7006=Pompa (55/46)|7008=x|268|7008=50|268|269|produkt=Tipo 33|"
    L"18008=900|zeile=5|18009=155|18003=|18003=1600|18049|18049|18016=50|produkt=Tipo 10|"
    L"18004=300|zeile=6|18107=20|zeile=2|zeile=0|18005=430|18047|produkt=Tipo 22|zeile=1|269|"
    L"269|7007=Nuovo|7008=70|7009=55|268|zeile=0|18002=1400|";

constexpr int kTexte[] = {7007,  7008,  7009,  18002, 18003, 18005, 18011,
                          18012, 18015, 18016, 18018, 18048, 18107};
constexpr int kHaken[] = {18017, 18019, 18047, 18049};
constexpr int kListen[] = {7006, 18004, 18008, 18009, 18010};
constexpr int kKnoepfe[] = {268, 269};
constexpr int kSperrbar[] = {18002, 18003, 18004, 18005, 18008, 18009, 18010, 18011, 18016};

Zeile Felder(const HK_DATEN_VDI3805_UEBERGABE& u)
{
    Zeile felder{u.Hersteller, u.Art, u.Produkt, u.TypName, u.Raumname};
    for (const double wert : {u.LeistungMin,    u.LeistungMax,       u.Leistung,
                              u.Toleranz,       u.LaengeMin,         u.LaengeMax,
                              u.HoeheMin,       u.HoeheMax,          u.TiefeMin,
                              u.TiefeMax,       u.Vorlauf,           u.Ruecklauf,
                              u.Raumtemperatur, u.Umrechnungsfaktor, u.RaumBedarf,
                              u.RaumGedeckt,    double(u.NeuLesen),  u.Daten.Hoehe,
                              u.Daten.Tiefe,    u.Daten.Laenge,      u.Daten.LeistungEN442,
                              u.Daten.Leistung, u.Daten.Elemente,    u.Daten.Exponent,
                              u.Daten.Inhalt}) {
        felder.push_back(FormatExact(wert));
    }
    return felder;
}

bool Hat(std::span<const int> ids, int id)
{
    return std::ranges::count(ids, id) > 0;
}

/// Does each step with mouse and keys in the window and says the same to the criteria.
class CWiedergabe
{
public:
    CWiedergabe(const CDialogUser& user, CTestDialog& ohneFenster)
        : m_user(user), m_ohne(ohneFenster)
    {
    }

    void Mache(const CString& schritt)
    {
        CStringArray teile;
        SplitString(teile, schritt, L'=');
        const CString text = teile.GetSize() > 1 ? teile[1] : CString();
        const int id = _wtoi(teile[0]);
        ASSERT_TRUE(id == 0 || m_user.IsEnabled(id)) << "nobody can do that";
        if (Hat(kListen, id)) {
            // The lists of the driver open without taking the focus.
            m_user.Choose(id, text);
            m_ohne.Waehle(id, SucheGleichen(m_ohne.listen[id], text));
            return;
        }
        if (m_user.Dialog().GetFocusId() == kRaumtemperatur && id != kRaumtemperatur) {
            m_ohne.kriterien.RaumtemperaturVerlassen();
        }
        if (Hat(kTexte, id)) {
            Tippe(id, text);
        } else if (Hat(kHaken, id)) {
            m_user.Click(id);
            m_ohne.Hake(id, m_ohne.haken[id] == 0);
        } else if (Hat(kKnoepfe, id)) {
            m_user.Click(id);
            id == kKnoepfe[0] ? m_ohne.kriterien.SystemSpeichern()
                              : m_ohne.kriterien.SystemLoeschen();
        } else if (teile[0] == L"zeile") {
            WaehleZeile(_wtoi(text));
        } else if (teile[0] == L"kopf") {
            Sortiere(_wtoi(text));
        } else {
            m_user.ChooseInTree(kBaum, {L"Valmorena", L"Radiatori a piastra compatti", text});
            m_ohne.vdi.GetDaten().Produkt = text;
            m_ohne.kriterien.NeuesProdukt();
        }
    }

    void Vergleiche() const
    {
        for (const int id : kTexte) {
            EXPECT_EQ(m_user.Text(id), m_ohne.texte[id]) << id;
        }
        for (const int id : kHaken) {
            EXPECT_EQ(m_user.IsChecked(id), m_ohne.haken[id] != 0) << id;
        }
        for (const int id : kListen) {
            EXPECT_EQ(m_user.Items(id), m_ohne.listen[id].texte) << id;
            EXPECT_EQ(m_user.Chosen(id), m_ohne.listen[id].gewaehlt) << id;
        }
        for (const int id : kSperrbar) {
            EXPECT_EQ(m_user.IsEnabled(id), !m_ohne.gesperrt.contains(id)) << id;
        }
        std::vector<Zeile> rows;
        for (const ErgebnisTexte& texte : m_ohne.gitter.zeilen) {
            rows.emplace_back(texte.begin(), texte.end());
        }
        EXPECT_EQ(GitterZeilen(m_user), rows);
        if (!rows.empty()) {
            EXPECT_EQ(Gitter(m_user).currentIndex().row(), m_ohne.gitter.aktuell);
        }
    }

private:
    static constexpr int kRaumtemperatur = 18107;

    void Tippe(int id, const CString& text)
    {
        m_user.Type(id, text);
        if (text.empty()) {
            m_ohne.Tippe(id, text);
        }
        for (std::size_t i = 1; i <= text.size(); ++i) {
            m_ohne.Tippe(id, text.substr(0, i));
        }
    }

    /// A click on the current row chooses nothing new, unless the rows were sorted.
    void WaehleZeile(int nummer)
    {
        ASSERT_FALSE(m_ohne.gitter.zeilen.empty()) << "nobody can do that";
        const int row = nummer % static_cast<int>(m_ohne.gitter.zeilen.size());
        const bool neu =
            Gitter(m_user).currentIndex().row() != row || m_sortiertNach == m_ohne.aufbauten.size();
        m_sortiertNach = 0;
        KlickeZeile(m_user, row);
        if (neu) {
            m_ohne.WaehleZeile(row);
        }
    }

    void Sortiere(int spalte)
    {
        KlickeKopf(m_user, spalte);
        m_ohne.zeilen.UeberschriftGeklickt(spalte);
        m_sortiertNach = m_ohne.aufbauten.size();
        const bool auf = m_ohne.gitter.sortiert.back().second;
        const auto i = static_cast<std::size_t>(spalte);
        const ZellArt art = spalte == 0 ? ZellArt::text : ZellArt::zahl;
        std::ranges::stable_sort(m_ohne.gitter.zeilen, [&](const auto& a, const auto& b) {
            return VergleicheZellen({art, a[i]}, {art, b[i]}, !auf) < 0;
        });
    }

    const CDialogUser& m_user;
    CTestDialog& m_ohne;
    /// The number of rebuilds before the rows were sorted; 0 if they were not, or one was picked.
    std::size_t m_sortiertNach = 0;
};

TEST_F(CAuswahlDialogTest, ARecordedHourDoesInTheWindowWhatItDoesToTheCriteria)
{
    Raum(2400.0, 600.0);
    HK_DATEN_VDI3805_UEBERGABE kopie = m_uebergabe;
    CStringArray aufnahme;
    ASSERT_GE(SplitString(aufnahme, kAufnahme, L'|'), 60);
    const int result = Oeffne([&](CDialogUser& user) {
        CTestDialog ohneFenster(kopie);
        ohneFenster.Oeffnen();
        CWiedergabe wiedergabe(user, ohneFenster);
        std::size_t laengste = 0;
        for (const CString& schritt : aufnahme) {
            SCOPED_TRACE(Utf8FromWide(schritt));
            wiedergabe.Mache(schritt);
            wiedergabe.Vergleiche();
            ASSERT_EQ(Felder(m_uebergabe), Felder(kopie));
            if (HasFailure()) {
                break;
            }
            laengste = std::max(laengste, ohneFenster.gitter.zeilen.size());
        }
        EXPECT_GT(laengste, 40U) << "a recording of empty grids says nothing";
        ohneFenster.kriterien.Uebernehmen();
        user.Click(kIdOk);
    });
    EXPECT_EQ(result, 0);
    EXPECT_EQ(Felder(m_uebergabe), Felder(kopie));
}

} // namespace
